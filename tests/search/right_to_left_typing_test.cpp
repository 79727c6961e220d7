// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/right_to_left_typing.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QKeyEvent released(int key, Qt::KeyboardModifiers modifiers = {})
{
    return {QEvent::KeyRelease, key, modifiers};
}

TEST(RightToLeftTyping, KnowsTheKeysThatTypeACharacter)
{
    for (const int key :
         {int(Qt::Key_A), int(Qt::Key_Z), int(Qt::Key_0), int(Qt::Key_Space), int(Qt::Key_Comma),
          int(Qt::Key_QuoteLeft), int(Qt::Key_BraceLeft), int(Qt::Key_Minus), int(Qt::Key_Bar)})
        EXPECT_TRUE(typesCharacter(released(key))) << key;
    for (const int key : {int(Qt::Key_Equal), int(Qt::Key_Plus), int(Qt::Key_Left),
                          int(Qt::Key_Backspace), int(Qt::Key_Return), int(Qt::Key_Shift)})
        EXPECT_FALSE(typesCharacter(released(key))) << key;
    EXPECT_FALSE(typesCharacter(released(Qt::Key_A, Qt::ControlModifier)));
    EXPECT_TRUE(typesCharacter(released(Qt::Key_A, Qt::ShiftModifier)));
    for (const int key : {int(Qt::Key_5), int(Qt::Key_Plus), int(Qt::Key_Minus)})
        EXPECT_TRUE(typesCharacter(released(key, Qt::KeypadModifier))) << key;
    for (const int key : {int(Qt::Key_Slash), int(Qt::Key_Asterisk), int(Qt::Key_Period)})
        EXPECT_FALSE(typesCharacter(released(key, Qt::KeypadModifier))) << key;
}

TEST(RightToLeftTyping, StepsBackInTheHebrewVersionsOnly)
{
    struct Row
    {
        QString version;
        int caret;
        int expected;
    };
    for (const Row& row : {Row{u"BHS"_s, 3, 2}, Row{u"BHS 자음"_s, 1, 0}, Row{u"BHS"_s, 0, 0},
                           Row{u"KJV"_s, 3, 3}, Row{u"bhs"_s, 3, 3}}) {
        SCOPED_TRACE(row.version.toStdString());
        QLineEdit box(u"abc"_s);
        box.setCursorPosition(row.caret);
        stepBackAfterTyping(box, released(Qt::Key_A), row.version);
        EXPECT_EQ(box.cursorPosition(), row.expected);
    }
}

} // namespace
} // namespace lumen
