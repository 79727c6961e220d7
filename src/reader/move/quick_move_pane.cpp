// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/move/quick_move_pane.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

namespace lumen {

using namespace Qt::StringLiterals;

QuickMovePane::QuickMovePane(QWidget* parent) : QWidget(parent)
{
    tx즉석이동->setPlaceholderText(u"요 3:16"_s);
    cmd즉석이동->setToolTip(u"입력한 곳으로 이동"_s);
    cmd즉석이동->setAccessibleName(cmd즉석이동->toolTip());
    auto* typing = new QHBoxLayout;
    typing->addWidget(tx즉석이동, 1);
    typing->addWidget(cmd즉석이동);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(typing);
    layout->addWidget(lst즉석이동, 1);

    connect(cmd즉석이동, &QPushButton::clicked, this, [this] { moveToTyped(); });
    connect(tx즉석이동, &QLineEdit::returnPressed, this, [this] { moveToTyped(); });
    lst즉석이동->onDblClick = [this] { moveToSelected(); };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(key, lst즉석이동, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this] { moveToSelected(); });
    }
}

void QuickMovePane::remember(const QString& entry)
{
    if (!m_history.add(entry))
        return;
    lst즉석이동->Clear();
    lst즉석이동->AddItems(m_history.entries());
    lst즉석이동->setListIndex(0);
}

void QuickMovePane::startTyping()
{
    tx즉석이동->setFocus();
    tx즉석이동->selectAll();
}

bool QuickMovePane::isTyping() const
{
    const QWidget* const focused = window()->focusWidget();
    return focused == tx즉석이동 || focused == cmd즉석이동;
}

void QuickMovePane::moveToTyped()
{
    QString reference = tx즉석이동->text();
    if (onMove)
        onMove(reference);
}

void QuickMovePane::moveToSelected()
{
    QString reference = lst즉석이동->Text();
    if (lst즉석이동->ListIndex() >= 0 && onMove)
        onMove(reference);
}

} // namespace lumen
