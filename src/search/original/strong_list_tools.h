// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/edit_menu.h"

#include <array>

namespace lumen {

inline constexpr QStringView kStrongListBar = u"관주 도구 모음";

inline constexpr EditToolIds kStrongListEditTools{
    .cut = u"", .paste = u"", .remove = u"", .selectAll = u""};

// clang-format off
/// The tools of the list of a Strong's number's verses.
inline constexpr std::array kStrongListFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
};
// Stands behind the rows of the edit menu.
inline constexpr std::array kStrongListTools{
    ToolRow{u"ID_Move", u"이동(&M)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_PreviousPage", u"이전 쪽(&P)", ToolKind::Button, u"ID_Move", u"Alt+PgUp"},
    ToolRow{u"ID_NextPage", u"다음 쪽(&N)", ToolKind::Button, u"ID_Move", u"Alt+PgDown"},

    ToolRow{u"ID_cb기본버전", u"역본", ToolKind::Combo, kStrongListBar},
    ToolRow{u"ID_복사", u"복사", ToolKind::Button, kStrongListBar},
    ToolRow{u"ID_닫기", u"닫기", ToolKind::Button, kStrongListBar},
};
// clang-format on

} // namespace lumen
