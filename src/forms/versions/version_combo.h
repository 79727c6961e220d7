// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_lists.h"

namespace lumen {

class ActiveToolBars;
class ComboBox;

/// Fills a version combo anew; ItemData is the version code. Nothing is chosen afterwards and no
/// event runs.
void fillVersionCombo(ComboBox& combo, const QList<VersionItem>& items);

/// Puts the tools of a version menu on bars: the first call adds them as Toggles of the menu, a
/// later one brings captions and states up to date. The tag is the place in the combo.
void setUpVersionMenu(ActiveToolBars& bars, QStringView menuId, const QList<VersionTool>& tools);

} // namespace lumen
