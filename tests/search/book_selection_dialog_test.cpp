// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/book_selection_dialog.h"
#include "search/search_fixture.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kQuestion = u"선택된 책이 없습니다. 그대로 문서창을 닫을까요?"_s;

void press(QDialog& dialog, const QString& name)
{
    QTest::mouseClick(dialog.findChild<QAbstractButton*>(name), Qt::LeftButton);
}

class BookSelectionDialogTest : public testing::Test
{
protected:
    QString tagAfter(const QStringList& buttons)
    {
        dlog책별선택 dialog(test.services);
        dialog.show();
        for (const QString& button : buttons)
            press(dialog, button);
        press(dialog, u"cmd승인"_s);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        return dialog.scopeTag();
    }

    TestServices test;
};

TEST_F(BookSelectionDialogTest, GroupButtonsAddTheirBooksAndClearingTakesAllAway)
{
    EXPECT_EQ(tagAfter({u"cmd모세오경"_s}), u"창,출,레,민,신"_s);
    EXPECT_EQ(tagAfter({u"cmd사복음서"_s, u"chk책명(43)"_s, u"chk책명(65)"_s}),
              u"마,막,눅,요,행,계"_s);
    EXPECT_EQ(tagAfter({u"cmd역사서"_s, u"cmd지우기"_s, u"chk책명(42)"_s}), u"요"_s);
    EXPECT_EQ(tagAfter({u"cmd공동서신"_s, u"chk책명(57)"_s}), u"약,벧전,벧후,요일,요이,요삼,유"_s);
}

TEST_F(BookSelectionDialogTest, AnEmptyChoiceIsAskedAboutAndNoKeepsTheDialogOpen)
{
    dlog책별선택 dialog(test.services);
    dialog.show();
    test.messages.expect(u"선택된 책 없음"_s, kQuestion, 52, Answer::No);
    press(dialog, u"cmd승인"_s);
    EXPECT_TRUE(dialog.isVisible());
    test.messages.expect(u"선택된 책 없음"_s, kQuestion, 52, Answer::Yes);
    press(dialog, u"cmd승인"_s);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.scopeTag(), QString());
}

TEST_F(BookSelectionDialogTest, ALanguageLeavesItsTestamentAlone)
{
    struct Row
    {
        Testament testament;
        QString usable;
        QString barred;
    };
    for (const Row& row : {Row{Testament::Old, u"cmd소선지서"_s, u"cmd사복음서"_s},
                           Row{Testament::New, u"cmd사복음서"_s, u"cmd소선지서"_s}}) {
        dlog책별선택 dialog(test.services);
        dialog.chk책명(3)->setChecked(true);
        dialog.restrictTo(row.testament);
        EXPECT_FALSE(dialog.chk책명(3)->isChecked());
        const bool old = row.testament == Testament::Old;
        EXPECT_EQ(dialog.chk책명(38)->isEnabled(), old);
        EXPECT_EQ(dialog.chk책명(39)->isEnabled(), !old);
        EXPECT_TRUE(dialog.findChild<QPushButton*>(row.usable)->isEnabled());
        EXPECT_FALSE(dialog.findChild<QPushButton*>(row.barred)->isEnabled());
    }
}

/// The choice of books as the search window offers it.
class BookScopeTest : public SearchFixture
{
protected:
    static constexpr int kBooks = 13;

    void expectBooks(const QStringList& buttons)
    {
        test.modal.expect([buttons](QDialog& dialog) {
            for (const QString& button : buttons)
                press(dialog, button);
        });
    }
};

TEST_F(BookScopeTest, TickedBooksAreTheScopeOfBothTabs)
{
    open();
    expectBooks({u"chk책명(40)"_s, u"chk책명(1)"_s, u"cmd승인"_s});
    combo(u"cb범위"_s).setListIndex(kBooks);
    EXPECT_EQ(panel(1), u"검색 대상: 출,막"_s);
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    EXPECT_EQ(references(), (QStringList{u"출1:1"_s, u"막1:1"_s}));
    EXPECT_TRUE(
        query().endsWith(u") and (index like '??출:*' or index like '??막:*')  order by index"_s));

    window->sstSearch->setTab(1);
    expectBooks({u"chk책명(65)"_s, u"cmd승인"_s});
    click(u"cmd책별선택(1)"_s);
    typeAndEnter(u"txPSearch1"_s, u"은혜"_s);
    EXPECT_EQ(references(), QStringList{u"계1:1"_s});
}

TEST_F(BookScopeTest, TheButtonOpensTheDialogAgainWhenTheEntryStandsAlready)
{
    open();
    expectBooks({u"chk책명(2)"_s, u"cmd승인"_s});
    click(u"cmd책별선택(0)"_s);
    EXPECT_EQ(combo(u"cb범위"_s).ListIndex(), kBooks);
    EXPECT_EQ(combo(u"cbP범위"_s).ListIndex(), kBooks);
    expectBooks({u"chk책명(3)"_s, u"cmd승인"_s});
    click(u"cmd책별선택(0)"_s);
    EXPECT_EQ(panel(1), u"검색 대상: 민"_s);
    expectBooks({u"chk책명(4)"_s, u"cmd승인"_s});
    window->atbar_event9(u"ID_책별선택"_s);
    EXPECT_EQ(panel(1), u"검색 대상: 신"_s);
}

TEST_F(BookScopeTest, ACancelledChoiceLeavesTheFormerScopeInForce)
{
    open();
    pick(u"cb범위"_s, 3);
    expectBooks({u"chk책명(0)"_s, u"cmd취소"_s});
    combo(u"cb범위"_s).setListIndex(kBooks);
    EXPECT_EQ(combo(u"cb범위"_s).ListIndex(), kBooks);
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    EXPECT_TRUE(query().endsWith(u") and Testa = '신' order by index"_s));
}

TEST_F(BookScopeTest, NoBookAfterAllGoesBackToTheWholeRange)
{
    open();
    pick(u"cb범위"_s, 3);
    combo(u"cbParVer"_s).setListIndex(1);
    test.messages.expect(u"선택된 책 없음"_s, kQuestion, 52, Answer::Yes);
    expectBooks({u"cmd승인"_s});
    combo(u"cb범위"_s).setListIndex(kBooks);
    EXPECT_EQ(combo(u"cb범위"_s).ListIndex(), 0);
    EXPECT_EQ(combo(u"cbP범위"_s).ListIndex(), 0);
    EXPECT_EQ(combo(u"cbParVer"_s).ListIndex(), 0);
    EXPECT_EQ(panel(1), u"검색 범위: 전체"_s);
}

TEST_F(BookScopeTest, TheThirdTabOffersTheTestamentOfItsLanguage)
{
    open();
    window->sstSearch->setTab(2);
    combo(u"cbParVer"_s).setListIndex(1);
    test.modal.expect([](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QCheckBox*>(u"chk책명(0)"_s)->isEnabled());
        press(dialog, u"chk책명(42)"_s);
        press(dialog, u"cmd승인"_s);
    });
    click(u"cmd책별선택(2)"_s);
    EXPECT_EQ(panel(1), u"검색 대상: 요"_s);
}

} // namespace
} // namespace lumen
