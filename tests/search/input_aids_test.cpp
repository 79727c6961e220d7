// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/keyboard/keyboard_window.h"
#include "search/search_fixture.h"
#include "search/wizard/parsing_wizard.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The keyboard and the wizard as the search window opens them.
class InputAidsTest : public SearchFixture
{
protected:
    InputAidsTest() { open(); }

    static void press(QDialog& dialog, const QString& name)
    {
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(name), Qt::LeftButton);
    }
    /// The user types in the next keyboard, which speaks a language, and presses a button of it.
    void expectKeyboard(bool isHebrew, const QString& typed, const QString& button)
    {
        test.modal.expect([isHebrew, typed, button](QDialog& dialog) {
            EXPECT_EQ(dialog.findChild<QRadioButton*>(u"opHeb"_s)->isChecked(), isHebrew);
            QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txInput"_s), typed);
            press(dialog, button);
        });
    }
    QStringList phrases(int condition)
    {
        ListBox& list = control<ListBox>(u"lstParsing(%1)"_s.arg(condition));
        QStringList texts;
        for (int row = 0; row < list.ListCount(); ++row)
            texts << list.List(row);
        return texts;
    }
    QString pattern(int condition)
    {
        return window->parsing->question().conditions[std::size_t(condition)].pattern;
    }
};

TEST_F(InputAidsTest, KeyboardFillsTheBoxThatHadTheFocus)
{
    window->atbar_event9(u"ID_대역본0-301"_s);
    expectKeyboard(true, u"abc"_s, u"cmdInput"_s);
    click(u"cmdKeyboard"_s);
    EXPECT_EQ(box(u"tx검색"_s).text(), u"cba"_s);
    EXPECT_TRUE(box(u"tx검색"_s).hasFocus());
    expectKeyboard(true, u"zzz"_s, u"cmdClose"_s);
    click(u"cmdKeyboard"_s);
    EXPECT_EQ(box(u"tx검색"_s).text(), u"cba"_s);

    window->sstSearch->setTab(1);
    box(u"txPSearch3"_s).setFocus();
    control<QPushButton>(u"cmdPKeyboard"_s).setFocus();
    expectKeyboard(true, u"ab"_s, u"cmdInput"_s);
    click(u"cmdPKeyboard"_s);
    EXPECT_EQ(box(u"txPSearch3"_s).text(), u"ba"_s);
    EXPECT_EQ(box(u"txPSearch1"_s).text(), QString());
    EXPECT_TRUE(box(u"txPSearch3"_s).hasFocus());
}

TEST_F(InputAidsTest, KeyboardOfAConditionSpeaksItsLanguage)
{
    window->sstSearch->setTab(2);
    control<TabControl>(u"sstHGSearch"_s).setTab(3);
    for (const bool isHebrew : {false, true}) {
        combo(u"cbParVer"_s).setListIndex(isHebrew ? 0 : 1);
        expectKeyboard(isHebrew, u"logoj"_s, u"cmdInput"_s);
        click(u"cmdInput(3)"_s);
        EXPECT_EQ(box(u"txHGSearch(3)"_s).text(), isHebrew ? u"jogol"_s : u"logoj"_s);
    }
}

TEST_F(InputAidsTest, WizardGivesItsConditionThePatternAndCancellingTakesIt)
{
    window->sstSearch->setTab(2);
    combo(u"cbType(0)"_s).setListIndex(4);
    window->parsing->sstHGSearch->setTab(1);
    combo(u"cbType(1)"_s).setListIndex(4);
    test.modal.expect([](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QRadioButton*>(u"OpNT"_s)->isEnabled());
        press(dialog, u"cmdNext"_s);
        press(dialog, u"cmdNext"_s);
        dialog.findChild<ComboBox*>(u"cbnSung"_s)->setListIndex(2);
        press(dialog, u"cmdDone"_s);
    });
    click(u"cmdSetParsing(1)"_s);
    EXPECT_EQ(phrases(1), (QStringList{u"언어: 히브리어"_s, u"품사: 명사"_s, u"성 : 여성"_s}));
    EXPECT_EQ(pattern(1), u"@n_f__S___E_H_R_"_s);
    EXPECT_EQ(pattern(0), QString());
    test.modal.expect([](QDialog& dialog) { press(dialog, u"cmdCancel"_s); });
    click(u"cmdSetParsing(1)"_s);
    EXPECT_EQ(pattern(1), QString());

    combo(u"cbParVer"_s).setListIndex(1);
    test.modal.expect([](QDialog& dialog) {
        press(dialog, u"cmdNext"_s);
        dialog.findChild<ListBox*>(u"NlstPumsa"_s)->setListIndex(7);
        press(dialog, u"cmdDone"_s);
    });
    click(u"cmdSetParsing(1)"_s);
    EXPECT_EQ(phrases(1), (QStringList{u"언어: 헬라어"_s, u"품사: 전치사"_s}));
}

} // namespace
} // namespace lumen
