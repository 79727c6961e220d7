// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/right_to_left_typing.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(RightToLeftTyping, StepsBackBehindACharacterInTheHebrewVersionsOnly)
{
    struct Row
    {
        QString version;
        Qt::KeyboardModifiers modifiers;
        QList<Qt::Key> keys;
        int caret;
        int expected;
    };
    using enum Qt::Key;
    const Qt::KeyboardModifiers none;
    const Row rows[] = {
        {u"BHS"_s, none, {Key_A, Key_0, Key_Space, Key_QuoteLeft, Key_BraceLeft, Key_Bar}, 3, 2},
        {u"BHS 자음"_s, Qt::ShiftModifier, {Key_Z}, 1, 0},
        {u"BHS"_s, none, {Key_A}, 0, 0},
        {u"BHS"_s,
         none,
         {Key_Equal, Key_Plus, Key_Left, Key_Backspace, Key_Return, Key_Shift},
         3,
         3},
        {u"BHS"_s, Qt::ControlModifier, {Key_A}, 3, 3},
        {u"BHS"_s, Qt::KeypadModifier, {Key_5, Key_Plus, Key_Minus}, 3, 2},
        {u"BHS"_s, Qt::KeypadModifier, {Key_Slash, Key_Asterisk, Key_Period}, 3, 3},
        {u"KJV"_s, none, {Key_A}, 3, 3},
    };
    for (const Row& row : rows)
        for (const Qt::Key key : row.keys) {
            SCOPED_TRACE(row.version.toStdString() + ", key " + std::to_string(key));
            QLineEdit box(u"abc"_s);
            box.setCursorPosition(row.caret);
            stepBackAfterTyping(box, {QEvent::KeyRelease, key, row.modifiers}, row.version);
            EXPECT_EQ(box.cursorPosition(), row.expected);
        }
}

} // namespace
} // namespace lumen
