// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/wizard/parsing_wizard.h"
#include "support/active_window.h"
#include "text/original/parsing_decoder.h"

#include <gtest/gtest.h>

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class ParsingWizardTest : public testing::Test
{
protected:
    void SetUp() override { showActive(wizard); }

    void press(QPushButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    /// The pattern that cmdDone would give now.
    QString done()
    {
        press(wizard.cmdDone);
        return wizard.code();
    }
    /// The name of the page in view.
    QString page() { return wizard.wizTab->currentWidget()->objectName(); }

    ComboBox& list(const QString& name)
    {
        auto* found = wizard.findChild<ComboBox*>(name);
        if (!found)
            qFatal("no list %s", qPrintable(name));
        return *found;
    }
    /// Picks an entry by its text; false when the list doesn't offer it or is closed.
    bool choose(const QString& name, const QString& text)
    {
        ComboBox& box = list(name);
        const int index = box.findItem(text);
        box.setListIndex(index);
        return index >= 0 && box.isEnabled();
    }
    /// From the first page to that of a part of speech, by its place in the list.
    void goToPart(int index, Testament testament = Testament::Old)
    {
        while (page() != u"Chaek")
            press(wizard.cmdPrev);
        wizard.setTestament(testament);
        press(wizard.cmdNext);
        (testament == Testament::Old ? wizard.lstPumsa : wizard.NlstPumsa)->setListIndex(index);
    }

    frmParsingWiz wizard;
};

TEST_F(ParsingWizardTest, StoppingAtAPartOfSpeechAsksForNothingElse)
{
    struct Row
    {
        Testament testament;
        QStringList codes; ///< in the order of the list
    };
    const Row rows[] = {{Testament::Old,
                         {u"@n____S___E_H_R_"_s, u"@p____S___E_H_R_"_s, u"@a___S___E_H_R_"_s,
                          u"@v______S___J_C_A_E_H_R_"_s, u"@P_S___E_H_R_"_s, u"@xxxxxx"_s}},
                        {Testament::New,
                         {u"$n___"_s, u"$r____"_s, u"$d___"_s, u"$vp_____"_s, u"$a____"_s, u"$b_"_s,
                          u"$c"_s, u"$p"_s, u"$q"_s, u"$x"_s, u"$t_"_s, u"$i"_s}}};
    for (const Row& row : rows)
        for (int index = 0; index < row.codes.size(); ++index) {
            goToPart(index, row.testament);
            EXPECT_TRUE(wizard.cmdDone->isEnabled());
            EXPECT_EQ(done(), row.codes[index]);
            showActive(wizard);
        }
}

TEST_F(ParsingWizardTest, PagesLeadToOneAnotherAndBack)
{
    struct Row
    {
        Testament testament;
        int part;
        QStringList pages;
        bool goesOn; ///< whether the last page still offers a next one
    };
    const Row rows[] = {
        {Testament::Old, 2, {u"Pumsa"_s, u"Hyungyongsa"_s}, false},
        {Testament::Old, 3, {u"Pumsa"_s, u"Dongsa1"_s, u"Dongsa2"_s}, false},
        {Testament::Old, 5, {u"Pumsa"_s}, true}, // a paragraph mark has no page
        {Testament::New, 3, {u"NPumsa"_s, u"NDongsa"_s}, false},
        {Testament::New, 7, {u"NPumsa"_s}, false},
        {Testament::New, 10, {u"NPumsa"_s, u"NBulbyunsa"_s}, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.pages.join(u' ').toStdString());
        goToPart(row.part, row.testament);
        for (const QString& name : row.pages) {
            EXPECT_EQ(page(), name);
            EXPECT_TRUE(wizard.cmdDone->isEnabled());
            press(wizard.cmdNext);
        }
        EXPECT_EQ(page(), row.pages.last());
        EXPECT_EQ(wizard.cmdNext->isEnabled(), row.goesOn);
        for (qsizetype at = row.pages.size() - 2; at >= 0; --at) {
            press(wizard.cmdPrev);
            EXPECT_EQ(page(), row.pages[at]);
            EXPECT_TRUE(wizard.cmdNext->isEnabled());
        }
    }
}

TEST_F(ParsingWizardTest, BothPagesOfAVerbEnterItsCodeAndClosedListsDont)
{
    goToPart(3);
    ListBox& parts = *wizard.lstPumsa;
    const QPoint verb = parts.visualItemRect(parts.item(3)).center();
    QTest::mouseClick(parts.viewport(), Qt::LeftButton, {}, verb);
    QTest::mouseDClick(parts.viewport(), Qt::LeftButton, {}, verb);
    ASSERT_EQ(page(), u"Dongsa1"_s);
    ASSERT_TRUE(choose(u"cbvInching"_s, u"3인칭"_s));
    ASSERT_TRUE(choose(u"cbvSung"_s, u"여성"_s));
    ASSERT_TRUE(choose(u"cbvSang"_s, u"분사"_s));
    EXPECT_EQ(done(), u"@v_P_f__S___J_C_A_E_H_R_"_s);
    showActive(wizard);
    ASSERT_TRUE(choose(u"cbvSang"_s, u"부정사 절대형"_s));
    EXPECT_EQ(done(), u"@v_a____S___J_C_A_E_H_R_"_s);
    showActive(wizard);
    ASSERT_TRUE(choose(u"cbvEogeun"_s, u"Hiphil"_s));
    ASSERT_TRUE(choose(u"cbvSang"_s, u"와우계속"_s));
    ASSERT_TRUE(choose(u"cbvSu"_s, u"복수"_s));
    press(wizard.cmdNext);
    ASSERT_TRUE(choose(u"cbvsIlgi"_s, u"Kethib"_s));
    EXPECT_EQ(done(), u"@vhw__p_S___J_C_A_E_H_Rk"_s);
}

TEST_F(ParsingWizardTest, FirstPageChoosesTheLanguage)
{
    const std::pair<QRadioButton*, QString> rows[] = {{wizard.OpHebrew, u"@xxxxxx"_s},
                                                      {wizard.OpAram, u"%xxxxxx"_s},
                                                      {wizard.OpBoth, u"_xxxxxx"_s}};
    EXPECT_FALSE(wizard.cmdPrev->isEnabled());
    EXPECT_FALSE(wizard.cmdDone->isEnabled());
    for (const auto& [option, code] : rows) {
        while (page() != u"Chaek")
            press(wizard.cmdPrev);
        EXPECT_FALSE(wizard.cmdDone->isEnabled());
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
        press(wizard.cmdNext);
        wizard.lstPumsa->setListIndex(5);
        EXPECT_EQ(done(), code);
        showActive(wizard);
    }
    wizard.setTestament(Testament::Old);
    EXPECT_FALSE(wizard.OpNT->isEnabled());
    wizard.setTestament(Testament::New);
    EXPECT_TRUE(wizard.OpNT->isChecked());
    EXPECT_FALSE(wizard.OpHebrew->isEnabled());
}

TEST_F(ParsingWizardTest, CancellingGivesNoPattern)
{
    goToPart(0);
    press(wizard.cmdNext);
    press(wizard.cmdCancel);
    EXPECT_EQ(wizard.code(), QString());
    EXPECT_EQ(wizard.result(), QDialog::Rejected);

    showActive(wizard);
    QTest::keyClick(&wizard, Qt::Key_Escape);
    EXPECT_EQ(wizard.code(), QString());
    EXPECT_FALSE(wizard.isVisible());
}

TEST_F(ParsingWizardTest, AnotherPartOfSpeechLeavesNothingOfTheFormer)
{
    goToPart(3);
    press(wizard.cmdNext);
    press(wizard.cmdNext);
    ASSERT_TRUE(choose(u"cbvsIlgi"_s, u"Qere"_s));
    press(wizard.cmdPrev);
    press(wizard.cmdPrev);
    wizard.lstPumsa->setListIndex(4);
    EXPECT_EQ(done(), u"@P_S___E_H_R_"_s);
    showActive(wizard);
    wizard.lstPumsa->setListIndex(5);
    EXPECT_EQ(done(), u"@xxxxxx"_s);
}

TEST_F(ParsingWizardTest, EveryChoiceMeansWhatTheDecoderReads)
{
    const auto plain = [](QStringView text) { return text.toString().remove(u' '); };
    int choices = 0;
    for (const ParsingPage& row : parsingPages()) {
        // The kind of an adverb doesn't enter the code.
        if (row.page == WizardPage::NBusa)
            continue;
        const QStringView partOfSpeech = row.page == WizardPage::Dongsa2 ? u"Dongsa1" : row.key;
        const auto isPart = [&](const PartOfSpeech& part) {
            return part.page != WizardPage::Chaek && parsingPage(part.page).key == partOfSpeech;
        };
        const bool greek = row.key.startsWith(u'N');
        const auto parts = greek ? greekPartsOfSpeech() : semiticPartsOfSpeech();
        const auto part = std::ranges::find_if(parts, isPart);
        ASSERT_NE(part, parts.end()) << row.key.toString().toStdString();
        for (const ParsingField& field : row.fields) {
            const QString name = field.control.toString();
            frmParsingWiz fresh;
            fresh.setTestament(greek ? Testament::New : Testament::Old);
            fresh.cmdNext->click();
            (greek ? fresh.NlstPumsa : fresh.lstPumsa)->setListIndex(int(part - parts.begin()));
            fresh.cmdNext->click();
            if (row.page == WizardPage::Dongsa2)
                fresh.cmdNext->click();
            for (const ParsingChoice& choice : field.choices) {
                if (choice.code == u'_')
                    continue;
                SCOPED_TRACE((name + u' ' + choice.text.toString()).toStdString());
                // The adverbs used as imperatives are a tense of that mood; the person and the
                // tenses of past time are of the indicative.
                if (name == u"NcbvInching" || name == u"NcbvSije")
                    fresh.findChild<ComboBox*>(u"NcbvBup"_s)
                        ->setListIndex(choice.code == u'v' ? 3 : 2);
                auto* box = fresh.findChild<ComboBox*>(name);
                box->setListIndex(box->findItem(choice.text.toString()));
                fresh.cmdDone->click();
                QString code = fresh.code();
                const QString value =
                    BibleCode::ParsingDecoder(code).section(u',', -1).section(u':', -1);
                EXPECT_TRUE(plain(choice.text).endsWith(plain(value))) << code.toStdString();
                ++choices;
            }
        }
    }
    EXPECT_GT(choices, 200);
}

TEST_F(ParsingWizardTest, GreekVerbPutsItsFieldsBehindTheVoice)
{
    goToPart(3, Testament::New);
    press(wizard.cmdNext);
    ASSERT_TRUE(choose(u"NcbvTae"_s, u"중간/수동태"_s));
    ASSERT_TRUE(choose(u"NcbvGyeok"_s, u"여격"_s));
    ASSERT_TRUE(choose(u"NcbvSung"_s, u"중성"_s));
    ASSERT_TRUE(choose(u"NcbvSu"_s, u"단수"_s));
    EXPECT_EQ(done(), u"$vp_edns"_s);
    showActive(wizard);
    // The number stays chosen, the case is closed and forgotten.
    ASSERT_TRUE(choose(u"NcbvBup"_s, u"가정법"_s));
    ASSERT_TRUE(choose(u"NcbvInching"_s, u"2인칭"_s));
    EXPECT_EQ(done(), u"$vs_e2s"_s);
    showActive(wizard);
    // A tense that another mood lacks is dropped, one that it has stays.
    ASSERT_TRUE(choose(u"NcbvSije"_s, u"과거"_s));
    ASSERT_TRUE(choose(u"NcbvBup"_s, u"소원법"_s));
    EXPECT_EQ(done(), u"$voae2s"_s);
    showActive(wizard);
    ASSERT_TRUE(choose(u"NcbvBup"_s, u"직설법"_s));
    ASSERT_TRUE(choose(u"NcbvSije"_s, u"미완료"_s));
    ASSERT_TRUE(choose(u"NcbvBup"_s, u"부정사"_s));
    EXPECT_EQ(done(), u"$vn_e"_s);
}

TEST_F(ParsingWizardTest, KeysAloneBuildAPattern)
{
    wizard.OpAram->setFocus();
    QTest::keyClick(wizard.OpAram, Qt::Key_Space);
    QTest::keyClick(wizard.OpAram, Qt::Key_Return);
    ASSERT_EQ(wizard.focusWidget(), wizard.lstPumsa);
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(wizard.lstPumsa, Qt::Key_Down);
    // One Enter is one page, though the next page has a next one too.
    QTest::keyClick(wizard.lstPumsa, Qt::Key_Return);
    ASSERT_EQ(page(), u"Dongsa1"_s);
    QWidget* stem = wizard.focusWidget();
    ASSERT_EQ(stem->objectName(), u"cbvEogeun"_s);
    QTest::keyClick(stem, Qt::Key_End);
    QTest::keyClick(stem, Qt::Key_Return);
    ASSERT_EQ(page(), u"Dongsa2"_s);
    QTest::keyClick(wizard.focusWidget(), Qt::Key_Down);
    QTest::keyClick(wizard.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(wizard.isVisible());
    EXPECT_EQ(wizard.code(), u"%vC_____S___JfC_A_E_H_R_"_s);
}

} // namespace
} // namespace lumen
