// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/version_combo.h"

#include "platform/controls/active_tool_bars.h"

namespace lumen {

void fillVersionCombo(ComboBox& combo, const QList<VersionItem>& items)
{
    combo.Clear();
    for (const VersionItem& item : items)
        combo.AddItem(item.label, item.code);
}

void setUpVersionMenu(ActiveToolBars& bars, QStringView menuId, const QList<VersionTool>& tools)
{
    for (const VersionTool& row : tools) {
        if (!bars.tool(row.id).exists())
            bars.add(ToolRow{row.id, row.caption, ToolKind::Toggle, menuId});
        Tool tool = bars.tool(row.id);
        tool.setCaption(row.caption);
        tool.setEnabled(row.enabled);
        tool.setVisible(row.visible);
        tool.setTag(row.itemNumber);
    }
}

} // namespace lumen
