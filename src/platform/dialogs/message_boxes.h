// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace lumen {

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Shows message boxes and waits for the answer. Esc answers Cancel where there is one, else No.
class MessageBoxes
{
public:
    virtual ~MessageBoxes() = default;
    virtual Answer show(QWidget* parent, const QString& title, const QString& text, int flags) = 0;
    /// The same with advice below the text, "" for none.
    virtual Answer show(QWidget* parent, const QString& title, const QString& text, int flags,
                        const QString& advice) = 0;

    /// A message with its advice; %1, %2, ... of the text are taken from `arguments`, which may
    /// hold signs like them.
    Answer show(QWidget* parent, const MessageText& message, const QStringList& arguments = {})
    {
        QString text = QString::fromUtf16(message.text);
        const auto mark = [](qsizetype place) {
            return QChar(static_cast<char16_t>(0xE000 + place));
        };
        for (qsizetype place = arguments.size(); place > 0; --place)
            text.replace(u'%' + QString::number(place), mark(place));
        for (qsizetype place = 1; place <= arguments.size(); ++place)
            text.replace(mark(place), arguments[place - 1]);
        return show(parent, QString::fromUtf16(message.title), text, message.flags,
                    message.advice ? QString::fromUtf16(message.advice) : QString());
    }
};

} // namespace lumen
