// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/tab_control.h"

#include <QEvent>
#include <QMouseEvent>
#include <QTabBar>

namespace lumen {

TabControl::TabControl(QWidget* parent) : QTabWidget(parent)
{
    tabBar()->installEventFilter(this);
    connect(this, &QTabWidget::currentChanged, this, [this](int tab) {
        const int previous = m_previous;
        m_previous = tab;
        if (onTabClick && previous >= 0 && tab >= 0)
            onTabClick(tab, previous);
    });
}

bool TabControl::selectCaption(const QString& caption)
{
    for (int tab = 0; tab < count(); ++tab)
        if (tabText(tab) == caption) {
            setCurrentIndex(tab);
            return true;
        }
    return false;
}

int TabControl::headerHeight() const
{
    return tabBar()->sizeHint().height();
}

void TabControl::setCollapsed(bool collapsed)
{
    m_collapsed = collapsed;
    const bool headersOnTop = tabPosition() == North || tabPosition() == South;
    if (!headersOnTop)
        return;
    setMaximumHeight(collapsed ? headerHeight() : QWIDGETSIZE_MAX);
}

bool TabControl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != tabBar())
        return QTabWidget::eventFilter(watched, event);
    // The tab bar changes the tab on the press, before the release tells of a click.
    if (event->type() == QEvent::MouseButtonPress)
        m_currentAtPress = currentIndex();
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const int tab = tabBar()->tabAt(mouse->position().toPoint());
        const bool changesNoPage =
            tab == m_currentAtPress || (m_collapsed && tab == currentIndex());
        if (mouse->button() == Qt::LeftButton && onHeaderClick && (tab < 0 || changesNoPage))
            onHeaderClick(tab);
    }
    return QTabWidget::eventFilter(watched, event);
}

void TabControl::mouseReleaseEvent(QMouseEvent* event)
{
    // The ground beside the headers belongs to the control itself.
    const QRect header(0, tabBar()->y(), width(), tabBar()->height());
    if (event->button() == Qt::LeftButton && header.contains(event->position().toPoint()) &&
        onHeaderClick)
        onHeaderClick(-1);
    QTabWidget::mouseReleaseEvent(event);
}

} // namespace lumen
