// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "reader/move/move_history.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWidget>

#include <functional>

namespace lumen {

/// The box for a typed reference and the history of moves under it.
class QuickMovePane : public QWidget // no Q_OBJECT: moc cannot read the members' names
{
public:
    explicit QuickMovePane(QWidget* parent = nullptr);

    /// Takes a move that succeeded into the history and selects it there; one that the history
    /// has already is left alone.
    void remember(const QString& entry);
    const QStringList& history() const { return m_history.entries(); }
    /// Puts the focus into the box, its text selected.
    void startTyping();
    /// Whether the focus is where a reference is typed.
    bool isTyping() const;

    /// Goes to a reference, typed or of the history; the text may be changed on the way.
    std::function<void(QString& reference)> onMove;

    QLineEdit* tx즉석이동 = named<QLineEdit>(u"tx즉석이동", u"즉석 이동");
    QPushButton* cmd즉석이동 = named<QPushButton>(u"cmd즉석이동", u"이동(&J)");
    ListBox* lst즉석이동 = named<ListBox>(u"lst즉석이동", u"이동 기록");

private:
    void moveToTyped();
    void moveToSelected();

    MoveHistory m_history;
};

} // namespace lumen
