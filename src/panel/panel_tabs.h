// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

class ReferencePanel;
struct PanelHost;

/// Fills the panel with all tabs of this folder: a new one costs its file and a row.
void addPanelTabs(ReferencePanel& panel, const PanelHost& host);

} // namespace lumen
