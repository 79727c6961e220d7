// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"
#include "panel/panel_tab.h"
#include "platform/controls/named.h"
#include "platform/controls/tab_control.h"

#include <QWidget>

#include <functional>
#include <map>
#include <memory>

namespace lumen {

struct Services;

/// The reference panel of the reader: ten tabs that follow its place. In the state Collapsed only
/// the headers are in view and no tab loads anything; a click on a header opens that tab. A click
/// on the header of the tab on show, or beside the headers, turns the state; so does toggle() from
/// a tool.
class ReferencePanel : public QWidget // no Q_OBJECT: moc cannot read the member's name
{
public:
    explicit ReferencePanel(Services& services, QWidget* parent = nullptr);
    ~ReferencePanel() override;

    /// Fills the tab of the same caption. Tabs that nothing fills are empty.
    void addTab(std::unique_ptr<PanelTab> tab);

    PanelState state() const { return m_state; }
    /// Sets the state as it was stored; nothing is loaded or saved.
    void setState(PanelState state);
    void toggle();
    /// Brings a tab on show, expanding the panel for it.
    void showTab(int tab);
    /// The caption of the tab last shown.
    const QString& shownCaption() const { return m_shownCaption; }

    /// The reader stands at another place: Expanded, the tab on show follows. May throw a JetError.
    void showPlace();
    /// The reader's selection has changed within the chapter.
    void showSelection();
    /// Stores what was typed in the tabs. To be called before the reader's place or window state
    /// changes and before it closes. A JetError comes through, so that a failed save stops what
    /// was to follow.
    void leave();
    /// Frees the files of the tabs, behind leave().
    void closeTabs();

    TabControl* sst관주사전 = named<TabControl>(u"sst관주사전", u"관주사전");

    /// A text for the first panel of the status bar.
    std::function<void(const QString&)> onStatus;
    /// The state has turned: the reader lays out its panes anew.
    std::function<void()> onLayout;
    /// The floating text box has to go.
    std::function<void()> onHideTextBox;

private:
    void tabChanged(int previousTab);
    void setStatus(const QString& text);
    void hideTextBox();
    PanelTab* tabOf(const QString& caption) const;
    PanelTab* currentTab() const { return tabOf(sst관주사전->Caption()); }
    void enterCurrentTab();

    Services& m_services;
    std::map<QString, std::unique_ptr<PanelTab>> m_tabs; // by caption
    PanelState m_state = PanelState::Collapsed;
    QString m_shownCaption;
};

} // namespace lumen
