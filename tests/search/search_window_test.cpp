// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "jet/error.h"
#include "search/search_fixture.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kHead = u"select Chap, Verse, Cont, index from [개역한글] where "_s;

class SearchWindowTest : public SearchFixture
{
protected:
    /// What the engine says of a file that it can't open.
    QString errorOf(const QString& file)
    {
        try {
            test.jet.OpenDatabase(file);
        } catch (const JetError& error) {
            return error.text();
        }
        return {};
    }
};

TEST_F(SearchWindowTest, LoadingChoosesTheFirstInstalledVersionAndTheWholeRange)
{
    ASSERT_TRUE(QFile::remove(test.folders.data(u"101.dts"_s)));
    open();
    EXPECT_EQ(combo(u"cb역본"_s).Text(), u"KJV"_s);
    EXPECT_EQ(combo(u"cbPVersion"_s).Text(), u"KJV"_s);
    EXPECT_EQ(combo(u"cb범위"_s).ListIndex(), 0);
    EXPECT_EQ(panel(1), u"검색 범위: 전체"_s);
    EXPECT_EQ(window->atbar.tool(u"ID_대역본0-201").checked(), true);
    EXPECT_TRUE(control<QLineEdit>(u"tx검색"_s).hasFocus());
    EXPECT_EQ(references(), QStringList());
}

TEST_F(SearchWindowTest, EnterSearchesAndShowsReferencesAndReadableText)
{
    open();
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    EXPECT_EQ(query(), kHead + u"(Cont like '*떵찹*') order by index"_s);
    EXPECT_EQ(panel(2), u"65개 검색"_s);
    EXPECT_EQ(references().size(), 50);
    EXPECT_EQ(references().first(), u"출1:1"_s);
    EXPECT_EQ(texts().first(), u"은혜와 평강이 출애굽기"_s);
    EXPECT_EQ(window->hflex결과->TextMatrix(0, 0), u"장절"_s);
    EXPECT_EQ(window->hflex결과->TextMatrix(0, 1), u"본문"_s);
    EXPECT_EQ(allReferences(), plainScan(korean, u"은혜"_s));
}

TEST_F(SearchWindowTest, AnEmptyBoxIsToldAndBlanksAloneFindEveryVerse)
{
    open();
    test.messages.expect(u"검색 문자열이 없음"_s,
                         u"검색하고자 하는 문자열을 입력한 후 [검색] 단추를 누르시기 바랍니다."_s,
                         64);
    click(u"cmd검색"_s);
    test.messages.verify();
    typeAndEnter(u"tx검색"_s, u"  "_s);
    EXPECT_EQ(query(), kHead + u"(Cont like '**') order by index"_s);
    EXPECT_EQ(panel(2), QString::number(korean.size()) + u"개 검색"_s);
}

TEST_F(SearchWindowTest, APastedTextIsSearchedAsTheModulesHoldIt)
{
    open();
    const QString pasted =
        u"\u110B\u1173\u11AB\u1112\u1168\u110B\u116A\t\u3000\u1111\u1167\u11BC\u1100\u1161\u11BC"_s;
    typeAndEnter(u"tx검색"_s, pasted);
    EXPECT_EQ(control<QLineEdit>(u"tx검색"_s).text(), u"은혜와 평강"_s);
    EXPECT_EQ(panel(2), u"65개 검색"_s);
}

TEST_F(SearchWindowTest, EveryScopeFindsWhatAPlainLookFindsInBothSearches)
{
    open();
    const QString word = u"평강"_s;
    for (int index = 2; index <= 12; ++index) {
        const auto inScope = [&](const PlainVerse& verse) {
            if (!verse.cont->contains(word))
                return false;
            const QString groups = u"모역시대소사바공계"_s;
            if (index <= 3)
                return testament(verse.book) == (index == 2 ? u"구" : u"신");
            return bookGroup(verse.book) == groups.mid(index - 4, 1);
        };
        SCOPED_TRACE(combo(u"cb범위"_s).List(index).toStdString());
        window->sstSearch->setTab(0);
        pick(u"cb범위"_s, index);
        EXPECT_EQ(panel(1), u"검색 범위: "_s + combo(u"cb범위"_s).List(index));
        typeAndEnter(u"tx검색"_s, word);
        EXPECT_EQ(allReferences(), plainScan(korean, inScope));
        window->sstSearch->setTab(1);
        pick(u"cbP범위"_s, index);
        EXPECT_EQ(combo(u"cb범위"_s).ListIndex(), index);
        typeAndEnter(u"txPSearch1"_s, word);
        EXPECT_EQ(allReferences(), plainScan(korean, inScope));
    }
}

TEST_F(SearchWindowTest, PowerSearchCombinesThreeTexts)
{
    open();
    QTest::keyClick(&*window, Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(box(u"txPSearch1"_s).hasFocus());
    test.messages.expect(
        u"검색 문자열이 없음"_s,
        u"첫번째 검색 대상은 반드시 입력되어야 합니다. 검색하고자 하는 문자열을 입력한 후 "
        u"[검색] 단추를 누르시기 바랍니다."_s,
        64);
    click(u"cmdPSearch"_s);
    test.messages.verify();

    type(box(u"txPSearch1"_s), u"셋째"_s);
    pick(u"cbCond1"_s, 1);
    type(box(u"txPSearch2"_s), u"다섯째"_s);
    typeAndEnter(u"txPSearch3"_s, u"백절"_s);
    EXPECT_EQ(allReferences(), plainScan(korean, [](const PlainVerse& verse) {
                  return (verse.cont->contains(u"셋째") || verse.cont->contains(u"다섯째")) &&
                         verse.cont->contains(u"백절");
              }));
    EXPECT_EQ(combo(u"cb검색"_s).ListCount(), 0);

    pick(u"cbCond1"_s, 0);
    pick(u"cbCond2"_s, 1);
    click(u"cmdPSearch"_s);
    EXPECT_EQ(allReferences(), plainScan(korean, [](const PlainVerse& verse) {
                  return (verse.cont->contains(u"셋째") && verse.cont->contains(u"다섯째")) ||
                         verse.cont->contains(u"백절");
              }));
}

TEST_F(SearchWindowTest, NarrowingNothingIsToldAndRunsTheEasySearchFromBothTabs)
{
    open();
    type(box(u"tx검색"_s), u"은혜"_s);
    for (const int tab : {0, 1}) {
        window->sstSearch->setTab(tab);
        type(box(u"txPSearch1"_s), u"셋째"_s);
        pick(tab == 0 ? u"cb범위"_s : u"cbP범위"_s, 1);
        test.messages.expect(u"안내"_s,
                             u"앞서 검색된 내용이 없으므로 전체 범위에 대하여 검색합니다."_s, 48);
        click(tab == 0 ? u"cmd검색"_s : u"cmdPSearch"_s);
        test.messages.verify();
        EXPECT_EQ(combo(u"cb범위"_s).ListIndex(), 0);
        EXPECT_EQ(query(), kHead + u"(Cont like '*떵찹*') order by index"_s);
    }
}

TEST_F(SearchWindowTest, AChangeOfTheTabEmptiesTheResultAndItsScope)
{
    open();
    pick(u"cb범위"_s, 3);
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    QTest::keyClick(&*window, Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(references(), QStringList());
    EXPECT_EQ(query(), u"select * from [개역한글] where index = '0'"_s);
    EXPECT_EQ(panel(1), u"검색 범위: 전체"_s);
    EXPECT_EQ(panel(2), QString());
    EXPECT_EQ(combo(u"cbPPage"_s).ListCount(), 0);
    EXPECT_TRUE(window->atbar.tool(u"ID_파워검색").checked());
    EXPECT_FALSE(window->atbar.tool(u"ID_쉬운검색").checked());

    QTest::keyClick(&*window, Qt::Key_3, Qt::ControlModifier);
    EXPECT_FALSE(window->hflex결과->isVisible());
    EXPECT_TRUE(control<QWidget>(u"splitParsing"_s).isVisible());
    EXPECT_EQ(panel(1), u"검색 범위: 역본별 전체"_s);
    EXPECT_TRUE(box(u"txHGSearch(0)"_s).hasFocus());
}

TEST_F(SearchWindowTest, TheHistoryKeepsEachTextOnceAndBringsItBack)
{
    open();
    for (const QString& word : {u"은혜"_s, u"없는말"_s, u"평강 "_s, u"은혜"_s})
        typeAndEnter(u"tx검색"_s, word);
    ComboBox& history = combo(u"cb검색"_s);
    ASSERT_EQ(history.ListCount(), 2);
    pick(u"cb검색"_s, 1);
    EXPECT_EQ(box(u"tx검색"_s).text(), u"평강"_s);
    EXPECT_TRUE(box(u"tx검색"_s).hasFocus());
}

TEST_F(SearchWindowTest, ClosingFreesTheModuleAndKeepsPlaceAndMarks)
{
    open();
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    EXPECT_TRUE(test.jet.isOpen(test.folders.data(u"101.dts"_s)));
    window->atbar_event9(u"ID_MarkHits"_s);
    window->resize(700, 600);
    QTest::keyClick(&*window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(test.jet.isOpen(test.folders.data(u"101.dts"_s)));

    // Loaded again, the same window begins afresh.
    window->resize(600, 500);
    window->Form_Load();
    window->show();
    EXPECT_EQ(window->size(), QSize(700, 600));
    EXPECT_EQ(box(u"tx검색"_s).text(), QString());
    EXPECT_EQ(references(), QStringList());
    EXPECT_FALSE(window->atbar.tool(u"ID_MarkHits").checked());
    EXPECT_EQ(combo(u"cb검색"_s).ListCount(), 0);
}

TEST_F(SearchWindowTest, AFailedSearchIsToldAndLeavesNoFormerResult)
{
    open();
    typeAndEnter(u"tx검색"_s, u"오십일"_s);
    QFile module(test.folders.data(u"201.dts"_s));
    ASSERT_TRUE(module.open(QIODevice::WriteOnly));
    module.write("no database at all, but long enough to have a header");
    module.close();
    window->atbar_event9(u"ID_대역본0-201"_s);
    test.messages.expect(u"Lumenscript"_s, errorOf(module.fileName()), 16);
    click(u"cmd검색"_s);
    test.messages.verify();
    EXPECT_EQ(references(), QStringList());
    EXPECT_EQ(panel(2), QString());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(SearchWindowTest, HelpShowsItsPagesAndSaysWhatIsMissing)
{
    open();
    for (const QString& tool : {u"ID_목차"_s, u"ID_색인"_s, u"ID_도움말검색"_s})
        window->atbar_event9(tool);
    EXPECT_EQ(test.help.asked, (QStringList{u"HowtoSearchBible.htm"_s, u"index"_s, u"search"_s}));
    test.help.failure = Failure{FailureKind::NotFound, u"HowtoSearchBible.htm"_s};
    test.messages.expect(u"도움말 없음"_s, u"도움말을 열 수 없습니다.\r\nHowtoSearchBible.htm"_s,
                         48);
    window->atbar_event9(u"ID_목차"_s);
}

TEST_F(SearchWindowTest, BoxesAndResultOfferTheEditMenu)
{
    open();
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    QMenu& edit = *window->atbar.menu(u"ID_편집");
    for (QWidget* control :
         std::initializer_list<QWidget*>{&box(u"tx검색"_s), window->hflex결과->viewport()}) {
        contextMenu(*control);
        EXPECT_TRUE(edit.isVisible());
        edit.hide();
    }
}

TEST_F(SearchWindowTest, TabsOfTheKeyboardFollowTheOrderOfTheWork)
{
    open();
    typeAndEnter(u"tx검색"_s, u"은혜"_s);
    for (const QString& next : {u"cmd검색"_s, u"cb검색"_s}) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(window->focusWidget()->objectName(), next);
    }
}

TEST_F(SearchWindowTest, EveryToolHasItsHandlerAndEveryHandlerItsTool)
{
    open();
    const ToolFaults faults = unpairedTools(window->atbar.rows(), window->toolClicks());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
}

} // namespace
} // namespace lumen
