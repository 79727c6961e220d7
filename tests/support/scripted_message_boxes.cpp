// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/scripted_message_boxes.h"

#include <gtest/gtest.h>

namespace lumen {

ScriptedMessageBoxes::~ScriptedMessageBoxes()
{
    verify();
}

void ScriptedMessageBoxes::expect(const QString& title, const QString& text, int flags,
                                  Answer answer, std::function<void()> whileOpen)
{
    m_expected.append({title, text, flags, answer, std::move(whileOpen)});
}

void ScriptedMessageBoxes::expectAny(const QString& title, int flags, Answer answer)
{
    m_expected.append({title, QString(), flags, answer, {}});
}

Answer ScriptedMessageBoxes::show(QWidget* parent, const QString& title, const QString& text,
                                  int flags)
{
    return show(parent, title, text, flags, {});
}

Answer ScriptedMessageBoxes::show(QWidget* /*parent*/, const QString& title, const QString& text,
                                  int flags, const QString& advice)
{
    m_advice = advice;
    ++m_shown;
    if (m_expected.isEmpty()) {
        ADD_FAILURE() << "unexpected message box: " << title.toStdString() << " | "
                      << text.toStdString() << " | " << flags;
        return Answer::Cancel;
    }
    const Box box = m_expected.takeFirst();
    EXPECT_EQ(title, box.title) << "title of a message box";
    if (box.text.isEmpty())
        EXPECT_FALSE(text.isEmpty()) << "text of the message box " << title.toStdString();
    else
        EXPECT_EQ(text, box.text) << "text of a message box";
    EXPECT_EQ(flags, box.flags) << "flags of the message box " << title.toStdString();
    if (box.whileOpen)
        box.whileOpen();
    return box.answer;
}

void ScriptedMessageBoxes::verify()
{
    for (const Box& box : m_expected)
        ADD_FAILURE() << "a message box never came: " << box.title.toStdString() << " | "
                      << box.text.toStdString();
    m_expected.clear();
}

} // namespace lumen
