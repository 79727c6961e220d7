// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/versions/version_combo.h"

#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/combo_habits.h"

#include <QActionGroup>
#include <QMenu>

namespace lumen {

void fillVersionCombo(ComboBox& combo, const QList<VersionItem>& items)
{
    combo.Clear();
    for (const VersionItem& item : items) {
        combo.AddItem(item.label, item.code);
        if (!item.present && item.code != 0)
            setPassedOver(combo, combo.ListCount() - 1);
    }
}

void setUpVersionMenu(ActiveToolBars& bars, QStringView menuId, const QList<VersionTool>& tools)
{
    QMenu* const menu = bars.menu(menuId);
    auto* group = menu->findChild<QActionGroup*>();
    if (group == nullptr)
        group = new QActionGroup(menu); // one of them is in use: the menu marks it so
    for (const VersionTool& row : tools) {
        if (!bars.tool(row.id).exists())
            bars.add(ToolRow{row.id, row.caption, ToolKind::Toggle, menuId});
        Tool tool = bars.tool(row.id);
        tool.setCaption(row.caption);
        tool.setEnabled(row.enabled);
        tool.setVisible(row.visible);
        tool.setTag(row.itemNumber);
        group->addAction(tool.action());
    }
}

} // namespace lumen
