// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "data/app_state.h"
#include "panel/panel_host.h"
#include "panel/panel_tab.h"

#include <QWidget>

#include <optional>

namespace lumen {

class Recordset;

/// A tab that asks one module. It knows what it has shown, so that coming back to the same place
/// asks nothing.
class ModuleTab : public PanelTab
{
public:
    QWidget* page() override { return m_page; }

protected:
    using Flag = bool InstalledFlags::*;

    /// `module` is relative to the program, "\Data\CRef.dts"; `installed` tells whether the start
    /// has found it; a module without a flag is looked for each time. The host outlives the tab.
    ModuleTab(const PanelHost& host, QStringView module, Flag installed = nullptr);

    /// False without the module: the page takes no input then, and the status is empty.
    bool takeStock();
    /// The rows of a query, on the first one; the recordset holds until the next tab asks. May
    /// throw a JetError.
    Recordset& ask(const QString& query);
    void tell(const QString& status) const;
    /// The reader's place; nothing while the window is loading or hidden.
    std::optional<VersePlace> readerPlace() const;

    PanelHost m_host;
    QWidget* m_page; // before the controls, which it takes over

private:
    QStringView m_module;
    Flag m_installed;
};

} // namespace lumen
