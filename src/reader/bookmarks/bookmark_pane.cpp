// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/bookmarks/bookmark_pane.h"

#include <QGridLayout>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {

BookmarkPane::BookmarkPane(QWidget* parent) : QWidget(parent)
{
    layOut();
    wire();
}

void BookmarkPane::layOut()
{
    auto* buttons = new QGridLayout;
    buttons->addWidget(cmd책갈피추가, 0, 0);
    buttons->addWidget(cmd책갈피삭제, 0, 1);
    buttons->addWidget(cmd책갈피위로, 1, 0);
    buttons->addWidget(cmd책갈피아래로, 1, 1);
    buttons->addWidget(cmd책갈피이동, 2, 0, 1, 2);
    cmd책갈피이동->setToolTip(u"선택한 책갈피로 이동"_s);
    cmd책갈피이동->setAccessibleName(cmd책갈피이동->toolTip());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lst책갈피, 1);
    layout->addLayout(buttons);
}

void BookmarkPane::wire()
{
    connect(cmd책갈피추가, &QPushButton::clicked, this, [this] { cmd책갈피추가_Click(); });
    connect(cmd책갈피삭제, &QPushButton::clicked, this, [this] { change(&BookmarkList::remove); });
    connect(cmd책갈피위로, &QPushButton::clicked, this, [this] { change(&BookmarkList::moveUp); });
    connect(cmd책갈피아래로, &QPushButton::clicked, this,
            [this] { change(&BookmarkList::moveDown); });
    connect(cmd책갈피이동, &QPushButton::clicked, this, [this] { cmd책갈피이동_Click(); });
    lst책갈피->onDblClick = [this] { cmd책갈피이동_Click(); };

    const auto onKey = [this](const QKeySequence& keys, auto handler) {
        auto* shortcut = new QShortcut(keys, lst책갈피, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, handler);
    };
    onKey(Qt::Key_Return, [this] { cmd책갈피이동_Click(); });
    onKey(Qt::Key_Enter, [this] { cmd책갈피이동_Click(); });
    onKey(Qt::Key_Delete, [this] { change(&BookmarkList::remove); });
    onKey(Qt::CTRL | Qt::Key_Up, [this] { change(&BookmarkList::moveUp); });
    onKey(Qt::CTRL | Qt::Key_Down, [this] { change(&BookmarkList::moveDown); });
}

void BookmarkPane::setReferences(const QStringList& references)
{
    m_list = BookmarkList(references);
    showList();
}

void BookmarkPane::cmd책갈피추가_Click()
{
    const QString reference = currentReference ? currentReference() : QString();
    if (reference.isEmpty())
        return;
    m_list.select(lst책갈피->ListIndex());
    m_list.add(reference);
    showList();
    if (onChanged)
        onChanged();
}

void BookmarkPane::cmd책갈피이동_Click()
{
    if (lst책갈피->ListIndex() >= 0 && onMove)
        onMove(lst책갈피->Text());
}

void BookmarkPane::change(void (BookmarkList::*work)())
{
    m_list.select(lst책갈피->ListIndex());
    (m_list.*work)();
    showList();
    if (onChanged)
        onChanged();
}

void BookmarkPane::showList()
{
    lst책갈피->Clear();
    lst책갈피->AddItems(m_list.references());
    lst책갈피->setListIndex(m_list.selected());
}

} // namespace lumen
