// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/keyboard/keyboard_window.h"
#include "support/active_window.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class KeyboardWindowTest : public testing::Test
{
protected:
    void SetUp() override { showActive(keyboard); }

    void press(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    /// Clicks the keys that bear these characters in the plain map.
    void clickKeys(const QString& characters)
    {
        const QString plain = u"1234567890-=qwertyuiop[]\\asdfghjkl;'zxcvbnm,./`"_s;
        for (const QChar character : characters)
            press(keyboard.ctKey(int(plain.indexOf(character))));
    }
    /// The captions of all keys, without what carries a mark.
    QString captions()
    {
        QString text;
        for (const QPushButton* key : keyboard.ctKey)
            text += key->text().replace(u"&&"_s, u"&"_s).remove(u"^"_s);
        return text;
    }
    QString typed() { return keyboard.txInput->text(); }

    TestServices test;
    QLineEdit searchBox;
    frmHeGrkInput keyboard{test.services, searchBox, OriginalLanguage::Hebrew};
};

TEST_F(KeyboardWindowTest, HebrewGoesInFromTheRightTypedOrClicked)
{
    clickKeys(u"b5;"_s);
    EXPECT_EQ(typed(), u";5b"_s);
    QTest::keyClicks(keyboard.txInput, u"r2a"_s);
    EXPECT_EQ(typed(), u"a2r;5b"_s);
    press(keyboard.keySpace);
    clickKeys(u"t"_s);
    EXPECT_EQ(typed(), u"t a2r;5b"_s);
    // "=" steps back as well, here where the window knows the character.
    QTest::keyClick(keyboard.txInput, '=');
    EXPECT_EQ(typed(), u"=t a2r;5b"_s);
    EXPECT_EQ(keyboard.txInput->cursorPosition(), 0);
}

TEST_F(KeyboardWindowTest, GreekGoesInFromTheLeft)
{
    EXPECT_EQ(keyboard.txInput->font().family(), u"OrvaneHeb"_s);
    press(keyboard.opGrk);
    EXPECT_EQ(keyboard.txInput->font().family(), u"OrvaneGrk"_s);
    // A mark stands on something that carries it, and is read aloud by its letter.
    EXPECT_EQ(keyboard.ctKey(2)->text(), u"a3"_s);
    EXPECT_EQ(keyboard.ctKey(12)->accessibleName(), u"θ"_s);
    clickKeys(u"lo3"_s);
    QTest::keyClicks(keyboard.txInput, u"goj"_s);
    EXPECT_EQ(typed(), u"lo3goj"_s);
    keyboard.txInput->setSelection(0, 3);
    clickKeys(u"a"_s);
    EXPECT_EQ(typed(), u"agoj"_s);
}

TEST_F(KeyboardWindowTest, CaptionsFollowShiftAndCapsLock)
{
    const QString plain = u"1234567890-=qwertyuiop[]\\asdfghjkl;'zxcvbnm,./`"_s;
    const QString shift = u"!@#$%&*()_+QWERTYUIOP{}|ASDFGHJKL:\"ZXCVBNM<>?~"_s; // no "^"
    EXPECT_EQ(captions(), plain);
    QTest::keyPress(keyboard.txInput, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_EQ(captions(), shift);
    QTest::keyRelease(keyboard.txInput, Qt::Key_Shift);
    EXPECT_EQ(captions(), plain);
    press(keyboard.cmdKeyCaps);
    EXPECT_EQ(captions(), u"1234567890-=QWERTYUIOP[]\\ASDFGHJKL:'ZXCVBNM,.?`"_s);
    QTest::keyPress(keyboard.cmdCopy, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_EQ(captions(), u"!@#$%&*()_+qwertyuiop[]\\asdfghjkl;'zxcvbnm,./~"_s);
    clickKeys(u"q7"_s);
    QTest::keyRelease(keyboard.cmdCopy, Qt::Key_Shift);
    clickKeys(u"q;"_s);
    EXPECT_EQ(typed(), u":Q&q"_s);
    press(keyboard.cmdKeyCaps);
    EXPECT_EQ(captions(), plain);
}

TEST_F(KeyboardWindowTest, ShiftThatIsLetGoElsewhereIsForgotten)
{
    const QString plain = captions();
    QTest::keyPress(keyboard.txInput, Qt::Key_Shift, Qt::ShiftModifier);
    ASSERT_NE(captions(), plain);
    QWidget other;
    showActive(other);
    EXPECT_EQ(captions(), plain);
}

TEST_F(KeyboardWindowTest, RealCapsLockIsKnownFromWhatIsTyped)
{
    press(keyboard.opGrk);
    QTest::keyClick(keyboard.txInput, 'Q', Qt::NoModifier); // a capital without Shift
    EXPECT_EQ(keyboard.ctKey(12)->text(), u"Q"_s);
    EXPECT_TRUE(keyboard.cmdKeyCaps->isChecked());
    QTest::keyClick(keyboard.txInput, Qt::Key_CapsLock);
    EXPECT_EQ(keyboard.ctKey(12)->text(), u"q"_s);
    // Turned by the mouse, the keyboard types as if the key had been pressed.
    press(keyboard.cmdKeyCaps);
    QTest::keyClick(keyboard.txInput, 'w');
    QTest::keyClick(keyboard.txInput, 'W', Qt::ShiftModifier);
    QTest::keyClick(keyboard.txInput, '7');
    EXPECT_EQ(typed(), u"QWw7"_s);
}

TEST_F(KeyboardWindowTest, CharactersTypedElsewhereReachTheBoxAndCommandsStay)
{
    press(keyboard.opGrk);
    keyboard.cmdClose->setFocus();
    QTest::keyClicks(keyboard.cmdClose, u"lo"_s);
    EXPECT_EQ(typed(), u"lo"_s);
    EXPECT_TRUE(keyboard.isVisible());
    QTest::keyClick(keyboard.txInput, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(keyboard.txInput->selectedText(), u"lo"_s);
    QTest::keyClick(keyboard.cmdClose, Qt::Key_Space);
    EXPECT_FALSE(keyboard.isVisible());
    EXPECT_EQ(searchBox.text(), QString());
}

TEST_F(KeyboardWindowTest, TheLastCharacterIsTakenBackInBothDirections)
{
    clickKeys(u"abg"_s);
    press(keyboard.keyBack);
    EXPECT_EQ(typed(), u"ba"_s);
    press(keyboard.opGrk);
    keyboard.txInput->end(false);
    press(keyboard.keyBack);
    EXPECT_EQ(typed(), u"b"_s);
}

TEST_F(KeyboardWindowTest, PointsOfAHebrewTextCanBeLeftOut)
{
    clickKeys(u"b5;r2av`iyt"_s);
    press(keyboard.keyConsonants);
    EXPECT_EQ(typed(), u"tyvarb"_s);
    press(keyboard.opGrk);
    EXPECT_FALSE(keyboard.keyConsonants->isEnabled());
}

TEST_F(KeyboardWindowTest, CopyGivesCodesAndReadableText)
{
    clickKeys(u"v`4lwo7"_s);
    press(keyboard.cmdCopy);
    EXPECT_EQ(test.clipboard.content.plain, u"7owl4`v"_s);
    EXPECT_EQ(test.clipboard.content.html, u"\u05E9\u05B8\u05C1\u05DC\u05D5\u05B9\u05DD"_s);
    EXPECT_TRUE(keyboard.isVisible());
}

TEST_F(KeyboardWindowTest, InputFillsTheSearchBoxAndCloses)
{
    searchBox.setText(u"old"_s);
    searchBox.setFont(QFont(u"DejaVu Sans"_s, 13));
    clickKeys(u"ab"_s);
    QTest::keyClick(keyboard.txInput, Qt::Key_Return);
    EXPECT_EQ(searchBox.text(), u"ba"_s);
    EXPECT_EQ(searchBox.font().family(), u"OrvaneHeb"_s);
    EXPECT_EQ(searchBox.font().pointSize(), 13);
    EXPECT_FALSE(keyboard.isVisible());
    EXPECT_EQ(keyboard.result(), QDialog::Accepted);
}

} // namespace
} // namespace lumen
