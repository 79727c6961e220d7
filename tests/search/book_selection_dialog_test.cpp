// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_fixture.h"
#include "search/verses/book_selection_dialog.h"
#include "support/active_window.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kBooks = 13; // the entry of the scopes that opens the dialog

void press(QDialog& dialog, const QString& name)
{
    QTest::mouseClick(dialog.findChild<QAbstractButton*>(name), Qt::LeftButton);
}

TEST(BookSelectionDialog, ButtonsAndBoxesTickBooksAndEnterTakesThem)
{
    const std::pair<QStringList, QString> rows[] = {
        {{u"cmd모세오경"_s}, u"창,출,레,민,신"_s},
        {{u"cmd사복음서"_s, u"chk책명(43)"_s, u"chk책명(65)"_s}, u"마,막,눅,요,행,계"_s},
        {{u"cmd역사서"_s, u"cmd지우기"_s, u"chk책명(42)"_s}, u"요"_s},
        {{u"cmd공동서신"_s, u"chk책명(57)"_s}, u"약,벧전,벧후,요일,요이,요삼,유"_s},
    };
    for (const auto& [buttons, tag] : rows) {
        SCOPED_TRACE(tag.toStdString());
        TestServices test;
        dlog책별선택 dialog(test.services);
        showActive(dialog);
        for (const QString& button : buttons)
            press(dialog, button);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(dialog.result(), QDialog::Accepted);
        EXPECT_EQ(dialog.scopeTag(), tag);
    }
}

/// The choice of books as the search window offers it.
class BookScopeTest : public SearchFixture
{
protected:
    void expectBooks(const QStringList& buttons)
    {
        test.modal.expect([buttons](QDialog& dialog) {
            for (const QString& button : buttons)
                press(dialog, button);
        });
    }
    void expectQuestion(Answer answer)
    {
        test.messages.expect(u"선택된 책 없음"_s,
                             u"선택된 책이 없습니다. 그대로 문서창을 닫을까요?"_s, 52, answer);
    }
};

TEST_F(BookScopeTest, TickedBooksAreTheScopeOfBothTabs)
{
    open();
    expectBooks({u"chk책명(40)"_s, u"chk책명(1)"_s, u"cmd승인"_s});
    combo(u"cb범위"_s).setListIndex(kBooks);
    EXPECT_EQ(panel(1), u"검색 대상: 출,막"_s);
    EXPECT_EQ(combo(u"cbP범위"_s).ListIndex(), kBooks);
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    EXPECT_EQ(references(), (QStringList{u"출1:1"_s, u"막1:1"_s}));
    // The entry stands already: button and tool open the dialog again.
    expectBooks({u"chk책명(4)"_s, u"cmd승인"_s});
    window->atbar_event9(u"ID_책별선택"_s);
    EXPECT_EQ(panel(1), u"검색 대상: 신"_s);
    window->sstSearch->setTab(1);
    expectBooks({u"chk책명(65)"_s, u"cmd승인"_s});
    click(u"cmd책별선택(1)"_s);
    typeAndEnter(u"txPSearch1"_s, u"은혜"_s);
    EXPECT_EQ(references(), QStringList{u"계1:1"_s});
}

TEST_F(BookScopeTest, TheThirdTabOffersTheTestamentOfItsLanguage)
{
    open();
    window->sstSearch->setTab(2);
    for (const bool greek : {false, true}) {
        combo(u"cbParVer"_s).setListIndex(greek ? 1 : 0);
        test.modal.expect([greek](QDialog& dialog) {
            for (const QString& name : {u"chk책명(38)"_s, u"cmd소선지서"_s})
                EXPECT_EQ(dialog.findChild<QWidget*>(name)->isEnabled(), !greek);
            for (const QString& name : {u"chk책명(39)"_s, u"cmd사복음서"_s})
                EXPECT_EQ(dialog.findChild<QWidget*>(name)->isEnabled(), greek);
            press(dialog, greek ? u"chk책명(42)"_s : u"chk책명(3)"_s);
            press(dialog, u"cmd승인"_s);
        });
        click(u"cmd책별선택(2)"_s);
        EXPECT_EQ(panel(1), greek ? u"검색 대상: 요"_s : u"검색 대상: 민"_s);
    }
}

} // namespace
} // namespace lumen
