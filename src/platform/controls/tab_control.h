// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QTabWidget>

#include <functional>

namespace lumen {

/// A tab control whose header area can be clicked for itself. Tabs count from 0.
class TabControl : public QTabWidget
{
    Q_OBJECT

public:
    explicit TabControl(QWidget* parent = nullptr);

    /// The caption of a tab, "" outside; of the current one without an argument.
    QString Caption(int tab) const { return tabText(tab); }
    QString Caption() const { return tabText(currentIndex()); }
    int Tab() const { return currentIndex(); }
    /// Runs onTabClick when the tab changes.
    void setTab(int tab) { setCurrentIndex(tab); }
    /// Shows the tab of a caption; false when there is none.
    bool selectCaption(const QString& caption);
    /// Leaves the headers alone in view, or shows the pages again.
    void setCollapsed(bool collapsed);
    /// The height of the headers in pixels, which is all that a collapsed control takes.
    int headerHeight() const;

    /// Another tab is shown, by the user or by code.
    std::function<void(int tab, int previousTab)> onTabClick;
    /// The user clicked (left button) in the header area without changing the page on show: on the
    /// header of the current tab, in a collapsed control on any header (behind onTabClick), or on
    /// the empty ground beside the headers (tab -1).
    std::function<void(int tab)> onHeaderClick;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_previous = -1;
    int m_currentAtPress = -1;
    bool m_collapsed = false;
};

} // namespace lumen
