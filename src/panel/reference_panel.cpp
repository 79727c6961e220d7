// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/reference_panel.h"

#include "forms/guarded.h"

#include <QVBoxLayout>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QWidget* emptyPage()
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    return page;
}

/// What takes the keys when a tab is opened by a key: the page's own choice, else its first
/// control.
QWidget* firstControl(QWidget& page)
{
    if (page.focusProxy() != nullptr && page.focusProxy()->isEnabled())
        return page.focusProxy();
    for (QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain())
        if (page.isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) != 0 &&
            next->isVisibleTo(&page))
            return next;
    return nullptr;
}

} // namespace

ReferencePanel::ReferencePanel(Services& services, QWidget* parent)
    : QWidget(parent), m_services(services)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(sst관주사전);
    for (const QStringView caption : kPanelCaptions)
        sst관주사전->addTab(emptyPage(), caption.toString());
    m_shownCaption = sst관주사전->Caption();
    setState(PanelState::Collapsed);
    sst관주사전->onTabClick = [this](int, int previousTab) { tabChanged(previousTab); };
    sst관주사전->onHeaderClick = [this](int) { toggle(); };
}

ReferencePanel::~ReferencePanel() = default;

void ReferencePanel::addTab(std::unique_ptr<PanelTab> tab)
{
    const auto place = std::find(kPanelCaptions.cbegin(), kPanelCaptions.cend(), tab->caption());
    Q_ASSERT(place != kPanelCaptions.cend());
    const auto index = static_cast<int>(place - kPanelCaptions.cbegin());
    sst관주사전->widget(index)->layout()->addWidget(tab->page());
    tab->setStatus = [this](const QString& text) { setStatus(text); };
    tab->bringOnShow = [this, index] { showTab(index); };
    m_tabs[tab->caption().toString()] = std::move(tab);
}

void ReferencePanel::setState(PanelState state)
{
    m_state = state;
    const bool collapsed = state == PanelState::Collapsed;
    sst관주사전->setCollapsed(collapsed);
    layout()->setAlignment(sst관주사전, collapsed ? Qt::AlignTop : Qt::Alignment());
}

void ReferencePanel::toggle()
{
    const bool expand = m_state == PanelState::Collapsed;
    // A save that fails keeps the panel open, so that what was typed stays in view.
    if (!expand && !guarded(m_services, this, [this] { leave(); }))
        return;
    setStatus(QString());
    hideTextBox();
    setState(expand ? PanelState::Expanded : PanelState::Collapsed);
    if (onLayout)
        onLayout();
    if (expand) {
        enterCurrentTab();
        m_shownCaption = sst관주사전->Caption();
    }
}

void ReferencePanel::showTab(int tab)
{
    sst관주사전->setTab(tab);
    if (m_state == PanelState::Collapsed)
        toggle();
    if (PanelTab* const shown = currentTab())
        if (QWidget* const first = firstControl(*shown->page()))
            first->setFocus(Qt::ShortcutFocusReason); // a line is selected: typing replaces it
}

void ReferencePanel::showPlace()
{
    if (m_state == PanelState::Collapsed)
        return;
    if (PanelTab* tab = currentTab())
        tab->showPlace();
}

void ReferencePanel::showSelection()
{
    if (m_state == PanelState::Collapsed)
        return;
    if (PanelTab* tab = currentTab())
        tab->showSelection();
}

void ReferencePanel::leave()
{
    // All tabs: one whose save failed when it was left tries again.
    for (const auto& [caption, tab] : m_tabs)
        tab->leave();
}

void ReferencePanel::closeTabs()
{
    for (const auto& [caption, tab] : m_tabs)
        tab->close();
}

void ReferencePanel::tabChanged(int previousTab)
{
    hideTextBox();
    if (m_state == PanelState::Expanded) {
        if (PanelTab* left = tabOf(sst관주사전->Caption(previousTab)))
            guarded(m_services, this, [left] { left->leave(); });
        enterCurrentTab();
    }
    m_shownCaption = sst관주사전->Caption();
}

void ReferencePanel::enterCurrentTab()
{
    PanelTab* tab = currentTab();
    if (tab)
        guarded(m_services, this, [tab] { tab->enter(); });
    else
        setStatus(QString());
}

void ReferencePanel::setStatus(const QString& text)
{
    if (onStatus)
        onStatus(text);
}

void ReferencePanel::hideTextBox()
{
    if (onHideTextBox)
        onHideTextBox();
}

PanelTab* ReferencePanel::tabOf(const QString& caption) const
{
    const auto found = m_tabs.find(caption);
    return found == m_tabs.cend() ? nullptr : found->second.get();
}

} // namespace lumen
