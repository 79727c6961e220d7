// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/keyboard_window.h"
#include "search/parsing_wizard.h"
#include "search/search_fixture.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The keyboard and the wizard as the search window opens them.
class InputAidsTest : public SearchFixture
{
protected:
    static void press(QDialog& dialog, const QString& name)
    {
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(name), Qt::LeftButton);
    }
    /// The user types in the next keyboard and presses a button of it.
    void expectKeyboard(const QString& typed, const QString& button)
    {
        test.modal.expect([this, typed, button](QDialog& dialog) {
            m_hebrew = dialog.findChild<QRadioButton*>(u"opHeb"_s)->isChecked();
            QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txInput"_s), typed);
            press(dialog, button);
        });
    }
    void chooseHebrewVersion()
    {
        combo(u"cb역본"_s).setListIndex(combo(u"cb역본"_s).findItem(u"BHS"_s));
    }
    QStringList phrases(int condition)
    {
        ListBox& list = control<ListBox>(u"lstParsing(%1)"_s.arg(condition));
        QStringList texts;
        for (int row = 0; row < list.ListCount(); ++row)
            texts << list.List(row);
        return texts;
    }

    bool m_hebrew = false; ///< the language that the last keyboard came up with
};

TEST_F(InputAidsTest, KeyboardOfTheEasySearchFillsItsBox)
{
    open();
    chooseHebrewVersion();
    expectKeyboard(u"abc"_s, u"cmdInput"_s);
    click(u"cmdKeyboard"_s);
    EXPECT_TRUE(m_hebrew);
    EXPECT_EQ(box(u"tx검색"_s).text(), u"cba"_s);
    EXPECT_EQ(box(u"tx검색"_s).font().family(), u"OrvaneHeb"_s);
    expectKeyboard(u"zzz"_s, u"cmdClose"_s);
    click(u"cmdKeyboard"_s);
    EXPECT_EQ(box(u"tx검색"_s).text(), u"cba"_s);
}

TEST_F(InputAidsTest, KeyboardOfThePowerSearchFillsTheBoxThatHadTheFocus)
{
    open();
    chooseHebrewVersion();
    window->sstSearch->setTab(1);
    box(u"txPSearch3"_s).setFocus();
    control<QPushButton>(u"cmdPKeyboard"_s).setFocus();
    expectKeyboard(u"ab"_s, u"cmdInput"_s);
    click(u"cmdPKeyboard"_s);
    EXPECT_EQ(box(u"txPSearch3"_s).text(), u"ba"_s);
    EXPECT_EQ(box(u"txPSearch1"_s).text(), QString());
    EXPECT_TRUE(box(u"txPSearch3"_s).hasFocus());
}

TEST_F(InputAidsTest, KeyboardOfAConditionSpeaksItsLanguage)
{
    open();
    window->sstSearch->setTab(2);
    combo(u"cbParVer"_s).setListIndex(1);
    control<TabControl>(u"sstHGSearch"_s).setTab(3);
    expectKeyboard(u"logoj"_s, u"cmdInput"_s);
    click(u"cmdInput(3)"_s);
    EXPECT_FALSE(m_hebrew);
    EXPECT_EQ(box(u"txHGSearch(3)"_s).text(), u"logoj"_s);
    EXPECT_EQ(box(u"txHGSearch(3)"_s).font().family(), u"OrvaneGrk"_s);
    combo(u"cbParVer"_s).setListIndex(0);
    expectKeyboard(u"ab"_s, u"cmdInput"_s);
    click(u"cmdInput(3)"_s);
    EXPECT_TRUE(m_hebrew);
    EXPECT_EQ(box(u"txHGSearch(3)"_s).text(), u"ba"_s);
}

TEST_F(InputAidsTest, WizardGivesTheConditionItsPatternAndCancellingTakesIt)
{
    open();
    window->sstSearch->setTab(2);
    combo(u"cbType(0)"_s).setListIndex(4);
    test.modal.expect([](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QRadioButton*>(u"OpNT"_s)->isEnabled());
        press(dialog, u"cmdNext"_s);
        press(dialog, u"cmdNext"_s);
        dialog.findChild<ComboBox*>(u"cbnSung"_s)->setListIndex(2);
        press(dialog, u"cmdDone"_s);
    });
    click(u"cmdSetParsing(0)"_s);
    EXPECT_EQ(phrases(0), (QStringList{u"언어: 히브리어"_s, u"품사: 명사"_s, u"성 : 여성"_s}));
    EXPECT_EQ(window->parsing->question().conditions[0].pattern, u"@n_f__S___E_H_R_"_s);

    test.modal.expect([](QDialog& dialog) { press(dialog, u"cmdCancel"_s); });
    click(u"cmdSetParsing(0)"_s);
    EXPECT_EQ(window->parsing->question().conditions[0].pattern, QString());
}

TEST_F(InputAidsTest, WizardOfAGreekConditionBeginsWithTheNewTestament)
{
    open();
    window->sstSearch->setTab(2);
    combo(u"cbParVer"_s).setListIndex(1);
    combo(u"cbType(0)"_s).setListIndex(4);
    test.modal.expect([](QDialog& dialog) {
        press(dialog, u"cmdNext"_s);
        dialog.findChild<ListBox*>(u"NlstPumsa"_s)->setListIndex(7);
        press(dialog, u"cmdDone"_s);
    });
    click(u"cmdSetParsing(0)"_s);
    EXPECT_EQ(phrases(0), (QStringList{u"언어: 헬라어"_s, u"품사: 전치사"_s}));
}

} // namespace
} // namespace lumen
