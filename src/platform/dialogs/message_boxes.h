// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace lumen {

/// A message word for word. Flags: low four bits for the buttons (0 확인; 1 확인, 취소;
/// 3 예, 아니요, 취소; 4 예, 아니요) plus the icon (16 critical, 32 question, 48 warning,
/// 64 information).
struct MessageText
{
    const char16_t* title;
    const char16_t* text;
    int flags;
};

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Shows message boxes and waits for the answer. Esc answers Cancel where there is one, else No.
class MessageBoxes
{
public:
    virtual ~MessageBoxes() = default;
    virtual Answer show(QWidget* parent, const QString& title, const QString& text, int flags) = 0;

    Answer show(QWidget* parent, const MessageText& message)
    {
        return show(parent, QString::fromUtf16(message.title), QString::fromUtf16(message.text),
                    message.flags);
    }
};

} // namespace lumen
