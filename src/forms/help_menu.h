// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/bars/tool_row.h"

#include <array>

class QWidget;

namespace lumen {

class ToolDispatch;
struct Services;

// clang-format off
/// The help menu that all windows end their menu bar with; more rows may stand behind these.
inline constexpr std::array kHelpMenu{
    ToolRow{u"ID_도움말", u"도움말(&H)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_목차", u"목차(&C)", ToolKind::Button, u"ID_도움말", u"F1", u"help"},
    ToolRow{u"ID_색인", u"색인(&I)", ToolKind::Button, u"ID_도움말"},
    ToolRow{u"ID_도움말검색", u"도움말 검색(&S)", ToolKind::Button, u"ID_도움말"},
};
// clang-format on

/// Binds the rows; `page` is the window's own page of the help, such as "HowtoSearchBible.htm".
/// What can't be shown is told.
void bindHelpMenu(ToolDispatch& tools, Services& services, QWidget* window, QStringView page);

} // namespace lumen
