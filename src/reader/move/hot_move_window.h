// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>

#include <functional>
#include <vector>

class QToolButton;

namespace lumen {

/// `frmHotMove`: the chapters of one book as a grid of buttons beside the tool that asked. A click
/// (or Enter) on a chapter goes there and closes it, Esc closes it.
class HotMoveWindow : public QFrame // no Q_OBJECT is needed
{
public:
    /// `book` is zero-based.
    HotMoveWindow(int book, QWidget* parent);

    /// Shows the window with its left top corner at a global point, kept within the screen.
    void openAt(const QPoint& corner);

    std::function<void(int chapter)> onChapter;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose(int chapter);

    std::vector<QToolButton*> m_buttons; // by chapter; they belong to the window
};

} // namespace lumen
