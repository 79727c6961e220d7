// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

namespace lumen {

/// What a tool is. A Toggle has a check mark that its window sets, a Menu drops down its own tools,
/// a Combo is a list on a bar, a Separator only parts its neighbours (its id stays empty).
enum class ToolKind { Button, Toggle, Menu, Combo, Separator };

/// The place of the menus of a window's menu bar.
inline constexpr QStringView kMenuBar = u"메뉴 모음";
/// The place of tools that stand nowhere: menus that only pop up, commands that only have a key.
inline constexpr QStringView kNowhere = u"";

/// One tool in one place. The place is the caption of a bar, the id of a Menu, kMenuBar or
/// kNowhere. Two rows with one id are one tool in two places; its caption, kind, shortcut and icon
/// are those of the first row.
struct ToolRow
{
    QStringView id;
    QStringView caption; ///< "&" marks an access key
    ToolKind kind = ToolKind::Button;
    QStringView place;
    QStringView shortcut = {}; ///< "Ctrl+F"
    QStringView icon = {};     ///< the drawing's name, "" for a caption alone
};

} // namespace lumen
