// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/message_boxes.h"

#include <QList>
#include <QString>

#include <functional>

namespace lumen {

/// Answers message boxes as a test expects them, in their order. An unexpected box, other words and
/// a box that never came fail the test.
class ScriptedMessageBoxes : public MessageBoxes
{
public:
    ~ScriptedMessageBoxes() override;

    using MessageBoxes::show;
    Answer show(QWidget* parent, const QString& title, const QString& text, int flags) override;
    Answer show(QWidget* parent, const QString& title, const QString& text, int flags,
                const QString& advice) override;

    /// The next box. `whileOpen` runs while it is up, before the answer is given.
    void expect(const QString& title, const QString& text, int flags, Answer answer = Answer::Ok,
                std::function<void()> whileOpen = {});
    /// The next box by its title alone, for words that the system or a library chooses.
    void expectAny(const QString& title, int flags, Answer answer = Answer::Ok);
    /// Fails for each box that hasn't come, and forgets them; the destructor does it too.
    void verify();
    int shownCount() const { return m_shown; }
    /// What stood below the text of the last box.
    const QString& lastAdvice() const { return m_advice; }

private:
    struct Box
    {
        QString title;
        QString text;
        int flags;
        Answer answer;
        std::function<void()> whileOpen;
    };

    QList<Box> m_expected;
    QString m_advice;
    int m_shown = 0;
};

} // namespace lumen
