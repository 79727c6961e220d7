// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/move/hot_move_window.h"

#include "canon/canon_table.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr int kChaptersPerRow = 10;

} // namespace

HotMoveWindow::HotMoveWindow(int book, QWidget* parent) : QFrame(parent, Qt::Popup)
{
    setObjectName(u"frmHotMove"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(this);
    grid->setSpacing(1);
    grid->setContentsMargins(4, 4, 4, 4);
    auto* title = new QLabel(bookName(book), this);
    grid->addWidget(title, 0, 0, 1, kChaptersPerRow);
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter) {
        auto* button = new QToolButton(this);
        button->setObjectName(u"chapter(%1)"_s.arg(chapter));
        button->setText(QString::number(chapter));
        button->setAccessibleName(u"%1 %2장"_s.arg(bookName(book)).arg(chapter));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->installEventFilter(this);
        m_buttons.push_back(button);
        connect(button, &QToolButton::clicked, this, [this, chapter] { choose(chapter); });
        const int place = chapter - 1;
        grid->addWidget(button, 1 + place / kChaptersPerRow, place % kChaptersPerRow);
        if (chapter == 1)
            button->setFocus();
    }
}

void HotMoveWindow::openAt(const QPoint& corner)
{
    adjustSize();
    const QRect room = screen()->availableGeometry();
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())),
         std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    show();
}

bool HotMoveWindow::eventFilter(QObject* watched, QEvent* event)
{
    // By itself a button would pass the focus on to the next one, also for a step down.
    const auto from = std::find(m_buttons.begin(), m_buttons.end(), watched);
    if (event->type() != QEvent::KeyPress || from == m_buttons.end())
        return QFrame::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        (*from)->click();
        return true;
    }
    if (key != Qt::Key_Down && key != Qt::Key_Up)
        return QFrame::eventFilter(watched, event);
    const auto place = from - m_buttons.begin() + (key == Qt::Key_Down ? 1 : -1) * kChaptersPerRow;
    if (place >= 0 && place < std::ssize(m_buttons))
        m_buttons[static_cast<std::size_t>(place)]->setFocus();
    return true;
}

void HotMoveWindow::choose(int chapter)
{
    const auto go = onChapter;
    close();
    if (go)
        go(chapter);
}

} // namespace lumen
