// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"
#include "reader/reader_tools.h"
#include "support/module_files.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QDir>
#include <QHeaderView>
#include <QMenuBar>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class BibleWindowTest : public ReaderTest
{
};

TEST_F(BibleWindowTest, EveryToolHasAHandlerAndEveryHandlerATool)
{
    start();
    const ToolFaults faults =
        unpairedTools(reader->atbar.rows(), reader->toolClicks(), reader->toolCombos());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
}

TEST_F(BibleWindowTest, StartShowsTheFirstChapterBehindTheSplash)
{
    start();
    EXPECT_EQ(splash.steps, (std::vector<int>{20, 25, 40, 50, 60, 70, 80, 85, 90, 95, 100}));
    EXPECT_FALSE(splash.visible);
    EXPECT_TRUE(reader->txCont->isVisible());
    EXPECT_FALSE(reader->hflex본문->isVisible());
    const QString text = reader->txCont->Text();
    EXPECT_TRUE(text.startsWith(u"\t『지어낸 첫째 제목』\n\n1\t"_s + TinyData::text(101, 0, 1, 1)))
        << text.left(80).toStdString();
    EXPECT_TRUE(text.contains(u"\n5\t\n6\t"_s)) << "Null is an empty text";
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
    EXPECT_EQ(combo(u"ID_cb책명").count(), 66);
    EXPECT_EQ(combo(u"ID_cb장").count(), 50);
}

TEST_F(BibleWindowTest, WithoutAnyVersionAMessageEndsTheStart)
{
    for (const QString& module : QDir(services.folders.data({})).entryList({u"*.dts"_s}))
        QFile::remove(services.folders.data(module));
    services.messages.expect(
        u"성경 데이터 모듈 없음"_s,
        u"설치된 성경 및 사전 데이터 모듈이 없습니다.\r\nLumenscript을 종료합니다."_s, 48);
    frm성서 empty(services.services, services.state, opener);
    EXPECT_FALSE(empty.Form_Load(splash));
    EXPECT_FALSE(empty.isVisible());
}

TEST_F(BibleWindowTest, ChaptersGoRoundWithinTheBook)
{
    start();
    click(u"ID_이전장");
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 49);
    click(u"ID_다음장");
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
    combo(u"ID_cb책명").setListIndex(65);
    EXPECT_EQ(combo(u"ID_cb장").count(), 22);
    combo(u"ID_cb장").setListIndex(21);
    click(u"ID_다음장");
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 0);
    EXPECT_EQ(reader->book(), 65);
}

TEST_F(BibleWindowTest, TableHasAColumnForEachOpenVersionInOrder)
{
    start();
    click(u"ID_테이블형식");
    FlexGrid& grid = *reader->hflex본문;
    EXPECT_TRUE(grid.isVisible());
    EXPECT_FALSE(reader->txCont->isVisible());
    EXPECT_FALSE(reader->atbar.tool(u"ID_줄간격1.5배").enabled());
    EXPECT_EQ(grid.Cols(), 3);

    pickVersion(u"ID_cb대역본2", 201);
    pickVersion(u"ID_cb대역본3", 301);
    ASSERT_EQ(grid.Cols(), 5);
    EXPECT_EQ(grid.TextMatrix(0, 1), u"절"_s);
    EXPECT_EQ(grid.TextMatrix(0, 2), u"개역한글"_s);
    EXPECT_EQ(grid.TextMatrix(0, 3), u"대역본2 - KJV"_s);
    EXPECT_EQ(grid.TextMatrix(0, 4), u"대역본3 - BHS"_s);
    EXPECT_EQ(grid.TextMatrix(1, 2), u"『지어낸 첫째 제목』"_s);
    EXPECT_EQ(grid.TextMatrix(1, 1), QString());
    EXPECT_EQ(grid.TextMatrix(2, 1), u"1"_s);
    EXPECT_EQ(grid.TextMatrix(2, 2), TinyData::text(101, 0, 1, 1));
    EXPECT_EQ(grid.TextMatrix(2, 3), TinyData::text(201, 0, 1, 1));
    EXPECT_FALSE(grid.TextMatrix(2, 4).isEmpty());
    EXPECT_EQ(grid.TextMatrix(grid.Rows() - 1, 3), QString()) << "KJV has two verses less";
    EXPECT_EQ(grid.TextMatrix(2, 0), u"▶"_s) << "a heading row stands for the verse below it";

    click(u"ID_텍스트형식");
    EXPECT_TRUE(reader->atbar.tool(u"ID_줄간격1.5배").enabled());
    EXPECT_TRUE(reader->txCont->Text().contains(TinyData::text(201, 0, 1, 1)));
}

TEST_F(BibleWindowTest, TheMarkFollowsMouseAndKeys)
{
    start();
    click(u"ID_소주제표시"); // off: row n is verse n
    click(u"ID_테이블형식");
    FlexGrid& grid = *reader->hflex본문;
    const QModelIndex third = grid.model()->index(2, 2);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(third).center());
    EXPECT_EQ(grid.Tag(), u"3"_s);
    EXPECT_EQ(grid.TextMatrix(3, 0), u"▶"_s);
    EXPECT_EQ(grid.TextMatrix(1, 0), QString());
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(place(), u"창세기 1장 4절"_s);
    QTest::keyClick(&grid, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(reader->GetCurVerseRange(), u"4-5"_s);
    click(u"ID_다음장");
    EXPECT_EQ(place(), u"창세기 2장 1절"_s);
}

TEST_F(BibleWindowTest, AnotherLookKeepsTheVerse)
{
    start();
    quickMove(u"요 3:4"_s);
    for (const QStringView look :
         {u"ID_글자크기5", u"ID_줄간격2배", u"ID_테이블형식", u"ID_글자크기2", u"ID_소주제표시",
          u"ID_대역본1-201", u"ID_텍스트형식"}) {
        click(look);
        EXPECT_EQ(place(), u"요한복음 3장 4절"_s) << look.toString().toStdString();
        EXPECT_TRUE(reader->focusWidget() == reader->txCont ||
                    reader->focusWidget() == reader->hflex본문);
    }
    click(u"ID_다음장");
    EXPECT_EQ(reader->GetCurVerse(), 1);
}

TEST_F(BibleWindowTest, AViewThatWasScrolledStaysWhereItIs)
{
    start();
    click(u"ID_글자크기5");
    reader->resize(reader->width(), 320);
    QApplication::processEvents();
    TextControl& text = *reader->txCont;
    FlexGrid& grid = *reader->hflex본문;
    const QString fourth = TinyData::text(101, 0, 1, 4);
    const auto top = [&text] {
        QTextCursor line(text.document());
        line.setPosition(text.firstVisiblePosition());
        return line.block().text();
    };
    text.scrollToPosition(static_cast<int>(text.Text().indexOf(fourth)));
    ASSERT_TRUE(top().contains(fourth)) << top().toStdString();
    for (const QStringView look : {u"ID_줄간격1.5배", u"ID_소주제표시", u"ID_글자크기4"}) {
        click(look);
        EXPECT_TRUE(top().contains(fourth)) << look.toString().toStdString() << top().toStdString();
        EXPECT_EQ(reader->GetCurVerse(), 1) << "the caret has not moved";
    }
    click(u"ID_테이블형식");
    QApplication::processEvents();
    EXPECT_EQ(grid.TextMatrix(grid.TopRow(), 1), u"4"_s);
    click(u"ID_대역본1-201");
    EXPECT_EQ(grid.TextMatrix(grid.TopRow(), 1), u"4"_s);
    EXPECT_EQ(reader->GetCurVerse(), 1);
}

TEST_F(BibleWindowTest, DraggedColumnsStayOverChaptersAndStarts)
{
    start();
    click(u"ID_테이블형식");
    click(u"ID_대역본1-201");
    QApplication::processEvents();
    QHeaderView* const header = reader->hflex본문->horizontalHeader();
    const int room = header->sectionSize(2) + header->sectionSize(3);
    const auto drag = [header](int col, int by) {
        const QPoint edge(header->sectionViewportPosition(col) + header->sectionSize(col) - 1, 5);
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(header->viewport(), edge + QPoint(by, 0));
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(by, 0));
    };
    drag(2, 90);
    const int wide = header->sectionSize(2);
    EXPECT_NEAR(wide, room / 2 + 90, 3);
    EXPECT_EQ(wide + header->sectionSize(3), room) << "the right edge stays";
    click(u"ID_다음장");
    EXPECT_NEAR(header->sectionSize(2), wide, 1);
    start();
    QHeaderView* const next = reader->hflex본문->horizontalHeader();
    EXPECT_NEAR(next->sectionSize(2), wide, 1);
    click(u"ID_대역본2-201");
    EXPECT_NEAR(next->sectionSize(2), next->sectionSize(3), 1) << "three columns are as they were";
    click(u"ID_대역본2-없음");
    EXPECT_NEAR(next->sectionSize(2), wide, 1);
    const QPoint edge(next->sectionViewportPosition(2) + next->sectionSize(2) - 1, 5);
    QTest::mousePress(next->viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(next->viewport(), {0, 5});
    QTest::mouseRelease(next->viewport(), Qt::LeftButton, {}, {0, 5});
    EXPECT_GT(next->sectionSize(2), 40) << "a word has room";
}

TEST_F(BibleWindowTest, AHeadingStaysInViewAboveItsVerse)
{
    start();
    click(u"ID_테이블형식");
    click(u"ID_글자크기5");
    reader->resize(reader->width(), 300);
    FlexGrid& grid = *reader->hflex본문;
    ASSERT_GT(grid.verticalScrollBar()->maximum(), 0);
    quickMove(u"창 1:1"_s);
    EXPECT_EQ(grid.TextMatrix(grid.TopRow(), 2), u"『지어낸 첫째 제목』"_s);
    click(u"ID_소주제표시");
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
}

TEST_F(BibleWindowTest, HeadingsFollowTheirSwitchInBothViews)
{
    start();
    click(u"ID_소주제표시");
    EXPECT_FALSE(reader->txCont->Text().contains(u"『"_s));
    quickMove(u"시 3:1"_s);
    EXPECT_FALSE(reader->txCont->Text().contains(u"[지어낸 머리글]"_s));
    click(u"ID_소주제표시");
    EXPECT_TRUE(reader->txCont->Text().contains(u"1\t[지어낸 머리글] "_s));
    click(u"ID_테이블형식");
    EXPECT_TRUE(reader->hflex본문->TextMatrix(2, 2).startsWith(u"[지어낸 머리글] "_s));
}

TEST_F(BibleWindowTest, AnAbsentVersionIsRefusedAndTheFormerOneStays)
{
    start();
    const QString before = reader->txCont->Text();
    services.messages.expect(u"CD 삽입 후 재실행 요망"_s,
                             u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s, 48);
    pickVersion(u"ID_cb기본버전", 204);
    EXPECT_EQ(combo(u"ID_cb기본버전").Text(), u"개역한글"_s);
    services.messages.expect(u"역본 미설치"_s, u"해당 역본이 설치되어 있지 않습니다."_s, 48);
    pickVersion(u"ID_cb대역본1", 305);
    EXPECT_EQ(combo(u"ID_cb대역본1").Text(), u"대역본1 - 없음"_s);
    EXPECT_EQ(reader->versionName(1), u"None"_s);

    // The module goes while the program runs.
    ASSERT_TRUE(QFile::remove(services.folders.data(u"201.dts"_s)));
    services.messages.expect(u"CD 삽입 후 재시행 요망"_s,
                             u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s, 48);
    click(u"ID_대역본0-201");
    EXPECT_EQ(reader->versionName(0), u"개역한글"_s);
    EXPECT_TRUE(reader->atbar.tool(u"ID_대역본0-101").checked());
    EXPECT_FALSE(reader->atbar.tool(u"ID_대역본0-201").checked());
    EXPECT_EQ(reader->txCont->Text(), before);
}

TEST_F(BibleWindowTest, MenusAndCombosChooseTheSameVersion)
{
    start();
    click(u"ID_대역본1-201");
    EXPECT_EQ(combo(u"ID_cb대역본1").Text(), u"대역본1 - KJV"_s);
    EXPECT_EQ(reader->versionName(1), u"KJV"_s);
    click(u"ID_대역본0-201");
    EXPECT_EQ(reader->versionName(0), u"KJV"_s) << "the same version may stand in two slots";
    EXPECT_TRUE(reader->txCont->Text().startsWith(u"1\t"_s + TinyData::text(201, 0, 1, 1)));
    click(u"ID_대역본1-없음");
    EXPECT_EQ(reader->versionCode(1), 0);
}

TEST_F(BibleWindowTest, ABaseVersionWithoutTheBookEmptiesTheViews)
{
    start();
    pickVersion(u"ID_cb기본버전", 215);
    EXPECT_EQ(reader->txCont->Text(), QString());
    EXPECT_EQ(place(), u"창세기 1장"_s);
    click(u"ID_테이블형식");
    EXPECT_EQ(reader->hflex본문->Rows(), 1);
    EXPECT_EQ(reader->hflex본문->TextMatrix(0, 2), combo(u"ID_cb기본버전").Text());
    pickVersion(u"ID_cb기본버전", 101);
    EXPECT_EQ(reader->hflex본문->TextMatrix(0, 2), u"개역한글"_s);
    pickVersion(u"ID_cb기본버전", 215);
    EXPECT_EQ(reader->hflex본문->TextMatrix(0, 2), combo(u"ID_cb기본버전").Text());
    quickMove(u"창 1:3"_s); // selects nothing and says nothing
    combo(u"ID_cb책명").setListIndex(42);
    EXPECT_EQ(reader->hflex본문->Rows(), 6);
}

TEST_F(BibleWindowTest, AVersionThatCannotBeReadIsEmptyWithItsReasonBesideTheOthers)
{
    start();
    pickVersion(u"ID_cb대역본1", 201);
    click(u"ID_테이블형식");
    const QString module = services.folders.data(u"201.dts"_s);
    const auto damage = [&module] {
        // As a disc that gives other bytes back at the next start.
        QFile file(module);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.write(QByteArray(static_cast<qsizetype>(file.size()), 'x'));
    };
    const auto expectUnread = [this, &module] {
        services.messages.expect(
            u"역본 읽기 실패"_s,
            u"다음 역본은 읽을 수 없어 비워 둡니다. 모듈 파일을 다시 만들거나 "
            "설치하시기 바랍니다.\r\nKJV: 알 수 없는 형식이거나 손상된 데이터베이스입니다.\n"_s +
                module,
            48);
    };
    close();
    damage();
    expectUnread();
    start();
    FlexGrid& grid = *reader->hflex본문;
    quickMove(u"요 3:2"_s); // told once
    EXPECT_EQ(place(), u"요한복음 3장 2절"_s);
    EXPECT_EQ(grid.TextMatrix(2, 2), TinyData::text(101, 42, 3, 2));
    EXPECT_EQ(grid.TextMatrix(2, 3), QString()) << "not the verse of the chapter before";
    pickVersion(u"ID_cb대역본1", 0);
    expectUnread();
    pickVersion(u"ID_cb기본버전", 201);
    EXPECT_EQ(grid.Rows(), 1);
    pickVersion(u"ID_cb기본버전", 101);
    EXPECT_EQ(grid.TextMatrix(1, 2), TinyData::text(101, 42, 3, 1));
}

TEST_F(BibleWindowTest, HebrewLinesAppearOnceTheWindowIsShown)
{
    start();
    pickVersion(u"ID_cb기본버전", 301);
    close();
    start();
    ASSERT_EQ(reader->versionName(0), u"BHS"_s);
    const QString text = reader->txCont->Text();
    EXPECT_TRUE(text.startsWith(u"1   "_s));
    EXPECT_GT(text.split(u'\n').first().size(), 10) << text.left(60).toStdString();
}

TEST_F(BibleWindowTest, TheChapterWindowGoesToAChapter)
{
    start();
    click(u"ID_42");
    auto* const chapters = reader->findChild<QFrame*>(u"frmHotMove"_s);
    ASSERT_NE(chapters, nullptr);
    auto* const third = chapters->findChild<QToolButton*>(u"chapter(3)"_s);
    ASSERT_NE(third, nullptr);
    QTest::mouseClick(third, Qt::LeftButton);
    EXPECT_EQ(place(), u"요한복음 3장 1절"_s);

    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    click(u"ID_0");
    auto* const keys = reader->findChild<QFrame*>(u"frmHotMove"_s);
    ASSERT_NE(keys, nullptr);
    const auto press = [keys](Qt::Key key) { QTest::keyClick(keys->focusWidget(), key); };
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    press(Qt::Key_Return);
    EXPECT_EQ(place(), u"창세기 12장"_s) << "ten chapters a row";
    click(u"ID_성서책18");
    EXPECT_EQ(combo(u"ID_cb책명").Text(), u"시편"_s);
    EXPECT_EQ(combo(u"ID_cb장").count(), 150);
}

TEST_F(BibleWindowTest, TypedReferencesMoveOrTellWhatIsWrong)
{
    start();
    quickMove(u"요한복음 3장16절"_s);
    EXPECT_EQ(place(), u"요한복음 3장 16절"_s);
    EXPECT_EQ(reader->GetCurVerseRange(), u"16"_s);
    EXPECT_EQ(reader->quickMove->history(), QStringList{u"요3:16"_s});

    services.messages.expect(
        u"입력 오류"_s,
        u"입력이 잘못되었습니다. '요 3:16' 또는 '요한복음 3:16'과 같은 방식으로 입력하시기 바랍니다."_s,
        48);
    quickMove(u"창 3"_s);
    services.messages.expect(u"절 입력 오류"_s,
                             u"입력하신 장이 실제 장 수보다 큽니다. 마지막 장을 선택합니다."_s, 48);
    quickMove(u"창 99:1"_s);
    EXPECT_EQ(combo(u"ID_cb장").ListIndex(), 49);
    services.messages.expect(u"절 입력 오류"_s,
                             u"입력하신 절이 실제 절 수보다 큽니다. 마지막 절을 선택합니다."_s, 48);
    quickMove(u"창 2:9"_s);
    EXPECT_EQ(place(), u"창세기 2장 3절"_s);
    EXPECT_EQ(reader->quickMove->history().first(), u"창2:3"_s);
}

TEST_F(BibleWindowTest, AChapterWithHolesKeepsItsVerseNumbers)
{
    const auto write = [this](const QString& file, const QString& name, const QList<int>& numbers) {
        QList<PlainVerse> verses;
        for (const int verse : numbers)
            verses << PlainVerse{42, 3, verse, u"%1 %2절"_s.arg(name).arg(verse), {}, {}};
        writeVersion(services.folders.data(file), name, verses);
    };
    write(u"101.dts"_s, u"개역한글"_s, {1, 2, 4, 6});
    write(u"201.dts"_s, u"KJV"_s, {1, 3, 4, 5, 6});
    start();
    pickVersion(u"ID_cb대역본1", 201);
    const auto bookmarked = [this] {
        QTest::mouseClick(reader->bookmarks->cmd책갈피추가, Qt::LeftButton);
        return reader->bookmarks->lst책갈피->Text();
    };
    for (const QStringView view : {u"ID_텍스트형식", u"ID_테이블형식"}) {
        SCOPED_TRACE(view.toString().toStdString());
        click(view);
        quickMove(u"요 3:6"_s);
        EXPECT_EQ(place(), u"요한복음 3장 6절"_s);
        EXPECT_EQ(bookmarked(), u"요3:6"_s);
        click(u"ID_UnicodeCopy");
        EXPECT_TRUE(services.clipboard.plainText().startsWith(u"6\t개역한글 6절\r\n6\tKJV 6절"_s))
            << services.clipboard.plainText().toStdString();
        services.messages.expect(u"절 입력 오류"_s,
                                 u"입력하신 절이 실제 절 수보다 큽니다. 마지막 절을 선택합니다."_s,
                                 48);
        quickMove(u"요 3:7"_s);
        EXPECT_EQ(place(), u"요한복음 3장 6절"_s);
        services.messages.expect(
            u"절 입력 오류"_s, u"기본 역본에는 입력하신 절이 없습니다. 그 앞의 절을 선택합니다."_s,
            48);
        quickMove(u"요 3:5"_s);
        EXPECT_EQ(place(), u"요한복음 3장 4절"_s);
    }
    const FlexGrid& grid = *reader->hflex본문;
    EXPECT_EQ(grid.TextMatrix(2, 3), QString()) << "KJV has no second verse here";
    EXPECT_EQ(grid.TextMatrix(3, 3), u"KJV 4절"_s);
}

TEST_F(BibleWindowTest, LineEndsAndControlCharactersOfAModuleShiftNothing)
{
    writeVersion(services.folders.data(u"101.dts"_s), u"개역한글"_s,
                 {{0, 1, 1, u"첫째\r\n줄\u0001과\n둘째\t줄"_s, u"앞\r\n"_s, u"제\n목"_s},
                  {0, 1, 2, u"가\u2028나\u2029다\u000B라"_s, {}, {}},
                  {0, 1, 3, u"셋째 절"_s, {}, {}}});
    start();
    EXPECT_EQ(reader->txCont->Text(),
              u"\t『제 목』\n\n1\t앞 첫째 줄과 둘째 줄\n2\t가 나 다 라\n3\t셋째 절\n"_s);
    quickMove(u"창 1:3"_s);
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);
    EXPECT_EQ(reader->txCont->textCursor().selectedText(), u"3\t셋째 절"_s);
    quickMove(u"창 1:1"_s);
    click(u"ID_UnicodeCopy");
    EXPECT_EQ(services.clipboard.plainText(), u"1\t앞 첫째 줄과 둘째 줄 (개역한글 창1:1)"_s);
    click(u"ID_테이블형식");
    EXPECT_EQ(reader->hflex본문->TextMatrix(2, 2), u"앞 첫째 줄과 둘째 줄"_s);
}

TEST_F(BibleWindowTest, ABookOfOneChapterStaysAtItsVerse)
{
    writeVersion(services.folders.data(u"101.dts"_s), u"개역한글"_s,
                 {{64, 1, 1, u"하나"_s, {}, {}}, {64, 1, 2, u"둘"_s, {}, {}}});
    start();
    click(u"ID_테이블형식");
    quickMove(u"유 1:2"_s);
    for (const QStringView step : {u"ID_다음장", u"ID_이전장"}) {
        click(step);
        EXPECT_EQ(reader->hflex본문->TextMatrix(2, 0), u"▶"_s);
        EXPECT_EQ(reader->GetCurVerse(), 2);
        EXPECT_EQ(place(), u"유다서 1장 2절"_s);
    }
}

TEST_F(BibleWindowTest, ASelectionIsNamedCopiedAndKeptByItsVerses)
{
    start();
    TextControl& text = *reader->txCont;
    const auto at = [&text](const QString& piece) {
        return static_cast<int>(text.Text().indexOf(piece));
    };
    const auto copied = [this] {
        click(u"ID_UnicodeCopy");
        return services.clipboard.plainText();
    };
    // From the first verse into the heading of the third.
    const int first = at(u"1\t"_s + TinyData::text(101, 0, 1, 1));
    text.select(first, at(u"둘째 제목"_s) + 2 - first);
    EXPECT_EQ(reader->GetCurVerseRange(), u"1-2"_s);
    EXPECT_TRUE(copied().endsWith(u"(개역한글 창1:1~2)"_s)) << copied().toStdString();
    for (const QStringView look : {u"ID_글자크기5", u"ID_테이블형식", u"ID_글자크기2",
                                   u"ID_소주제표시", u"ID_소주제표시", u"ID_텍스트형식"}) {
        click(look);
        EXPECT_EQ(reader->GetCurVerseRange(), u"1-2"_s) << look.toString().toStdString();
    }
    quickMove(u"창 1:1"_s);
    click(u"ID_글자크기3");
    EXPECT_GT(text.SelLength(), 0) << "the first verse too";

    text.select(at(u"지어낸 둘째"_s), 6);
    EXPECT_EQ(copied().section(u" ("_s, 0, 0), u"지어낸 둘째"_s);
    quickMove(u"창 1:2"_s);
    text.setFocus();
    click(u"ID_전체선택");
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
    EXPECT_EQ(reader->GetCurVerseRange(), u"1-31"_s);
}

TEST_F(BibleWindowTest, AHeadingRowStandsForTheVerseBelow)
{
    start();
    click(u"ID_테이블형식");
    quickMove(u"창 1:2"_s);
    QTest::keyClick(reader->hflex본문, Qt::Key_Down);
    ASSERT_EQ(reader->hflex본문->TextMatrix(reader->hflex본문->RowSel(), 2),
              u"『지어낸 둘째 제목』"_s);
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);
    click(u"ID_UnicodeCopy");
    EXPECT_EQ(services.clipboard.plainText(),
              u"3\t"_s + TinyData::text(101, 0, 1, 3) + u" (개역한글 창1:3)"_s);
    quickMove(u"창 1:2"_s);
    QTest::keyClick(reader->hflex본문, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(reader->GetCurVerseRange(), u"2"_s);
}

TEST_F(BibleWindowTest, EverythingIsThereAgainAtTheNextStart)
{
    start();
    quickMove(u"요 3:16"_s);
    pickVersion(u"ID_cb대역본1", 201);
    pickVersion(u"ID_cb대역본3", 306);
    click(u"ID_글자크기5");
    click(u"ID_줄간격2배");
    click(u"ID_테이블형식");
    click(u"ID_성서이동도구모음");
    close();
    EXPECT_EQ(stored(u"BookNum"_s), u"42"_s);
    EXPECT_EQ(stored(u"ViewMode"_s), u"0"_s);
    EXPECT_EQ(stored(u"Path"_s), u"C:\\lumenscript"_s);

    start();
    EXPECT_EQ(place(), u"요한복음 3장 1절"_s);
    EXPECT_TRUE(reader->hflex본문->isVisible());
    EXPECT_EQ(reader->versionName(1), u"KJV"_s);
    EXPECT_EQ(reader->versionName(2), u"None"_s);
    EXPECT_EQ(reader->versionName(3), u"TR Stephanus"_s);
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기5").checked());
    EXPECT_FALSE(reader->atbar.tool(u"ID_글자크기3").checked());
    EXPECT_TRUE(reader->atbar.tool(u"ID_줄간격2배").checked());
    EXPECT_FALSE(reader->atbar.barVisible(reader_bar::kMove1));
}

TEST_F(BibleWindowTest, StoredValuesOutsideTheirLimitsFallBack)
{
    store(u"FontSize"_s, u"9"_s);
    store(u"ChapNum"_s, u"49"_s);
    store(u"BookNum"_s, u"42"_s);
    store(u"DefVerNum"_s, u"9999"_s);
    store(u"Interlinear1"_s, u"12"_s); // NIV, which is absent
    start();
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기3").checked());
    EXPECT_EQ(place(), u"요한복음 1장 1절"_s);
    EXPECT_EQ(reader->versionName(0), u"개역한글"_s);
    EXPECT_EQ(reader->versionName(1), u"None"_s);
}

TEST_F(BibleWindowTest, ThePreviewHoldsTheChapterWithItsOwnHeadings)
{
    start();
    pickVersion(u"ID_cb대역본2", 201);
    reader->Proc텍스트미리보기채우기();
    const QString preview = reader->tx미리보기->Text();
    EXPECT_TRUE(preview.startsWith(u"\t[지어낸 첫째 제목]\n\n1\t"_s));
    QString shown = reader->txCont->Text();
    EXPECT_EQ(preview, shown.replace(u'『', u'[').replace(u'』', u']'));
    EXPECT_FALSE(reader->tx미리보기->isVisible());
}

TEST_F(BibleWindowTest, TheEndLeavesTwoGenerationsOfBackups)
{
    start();
    close();
    const QString backup = services.folders.root() + u"/OrvaneBackup/"_s;
    EXPECT_TRUE(QFile::exists(backup + u"myc.mdb"_s));
    EXPECT_FALSE(QFile::exists(backup + u"mycbak.mdb"_s));
    EXPECT_FALSE(QFile::exists(services.folders.data(u"mycc.mdb"_s)));
    start();
    quickMove(u"창 2:2"_s);
    QTest::mouseClick(reader->bookmarks->cmd책갈피추가, Qt::LeftButton);
    close();
    EXPECT_TRUE(QFile::exists(backup + u"mycbak.mdb"_s));
    QFile bookmarks(backup + u"bmk.bmf"_s);
    ASSERT_TRUE(bookmarks.open(QIODevice::ReadOnly));
    EXPECT_EQ(bookmarks.readAll(), QByteArray("\xc3\xa2"
                                              "2:2\r\n"))
        << "code page 949";
}

TEST_F(BibleWindowTest, KeysBringTheTabsOfThePanelOnShow)
{
    start();
    EXPECT_EQ(reader->panel->state(), PanelState::Collapsed);
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier);
    EXPECT_EQ(reader->panel->state(), PanelState::Expanded);
    EXPECT_EQ(reader->panel->shownCaption(), u"개인주석"_s);
    EXPECT_TRUE(reader->atbar.tool(u"ID_Panel").checked());
    QTest::keyClick(reader->txCont, Qt::Key_F8);
    EXPECT_EQ(reader->panel->state(), PanelState::Collapsed);
}

TEST_F(BibleWindowTest, TheFocusGoesToTheTextWhenItsPlaceHasGone)
{
    start();
    quickMove(u"창 1:2"_s);
    EXPECT_EQ(reader->focusWidget(), reader->txCont) << "to read and copy there";
    QTest::keyClick(reader->txCont, Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(reader->focusWidget(), reader->quickMove->tx즉석이동);
    QTest::keyClick(reader->quickMove->tx즉석이동, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(reader->focusWidget(), reader->txCont);

    ComboBox& chapters = combo(u"ID_cb장");
    chapters.setFocus();
    QTest::keyClick(&chapters, Qt::Key_Down);
    EXPECT_EQ(reader->focusWidget(), &chapters) << "the next key may go further";
    QTest::keyClick(&chapters, Qt::Key_Space);
    QTest::keyClick(chapters.view(), Qt::Key_Return);
    EXPECT_EQ(reader->focusWidget(), reader->txCont);

    reader->bookmarks->lst책갈피->setFocus();
    click(u"ID_SidePane");
    EXPECT_EQ(reader->focusWidget(), reader->txCont);
    click(u"ID_SidePane");
    QTest::keyClick(reader->txCont, Qt::Key_7, Qt::AltModifier);
    reader->findChild<QLineEdit*>(u"tx개인주석절범위"_s)->setFocus();
    click(u"ID_Panel");
    EXPECT_EQ(reader->focusWidget(), reader->txCont);
    click(u"ID_테이블형식");
    start();
    EXPECT_EQ(reader->focusWidget(), reader->hflex본문);
}

TEST_F(BibleWindowTest, CtrlAndWheelGoThroughTheSizesOfTheMenu)
{
    start();
    const auto turn = [this](QAbstractScrollArea& view, int delta) {
        QWheelEvent wheel({20, 20}, {20, 20}, {}, {0, delta}, Qt::NoButton, Qt::ControlModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &wheel);
    };
    turn(*reader->txCont, 120);
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기4").checked());
    EXPECT_FALSE(reader->atbar.tool(u"ID_글자크기3").checked());
    for (int notch = 0; notch < 3; ++notch)
        turn(*reader->txCont, 60); // half a notch each
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기5").checked());
    click(u"ID_테이블형식");
    for (int notch = 0; notch < 6; ++notch)
        turn(*reader->hflex본문, -120);
    EXPECT_TRUE(reader->atbar.tool(u"ID_글자크기1").checked());
    close();
    EXPECT_EQ(stored(u"FontSize"_s), u"1"_s);
}

TEST_F(BibleWindowTest, ARightClickActsOnTheVerseUnderIt)
{
    start();
    quickMove(u"창 1:1"_s);
    const QString text = reader->txCont->Text();
    const auto at = static_cast<int>(text.indexOf(TinyData::text(101, 0, 1, 3))) + 2;
    QTextCursor caret(reader->txCont->document());
    caret.setPosition(at);
    const QPoint point = reader->txCont->cursorRect(caret).center();
    QTest::mousePress(reader->txCont->viewport(), Qt::RightButton, {}, point);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, point,
                           reader->txCont->viewport()->mapToGlobal(point));
    QApplication::sendEvent(reader->txCont->viewport(), &menu);
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);
    reader->atbar.menu(u"ID_편집")->hide();
}

TEST_F(BibleWindowTest, EditToolsComeAliveAgainBehindTheirMenu)
{
    start();
    reader->bookmarks->cmd책갈피추가->setFocus();
    QMenu& edit = *reader->atbar.menu(u"ID_편집");
    edit.popup(QPoint());
    EXPECT_FALSE(reader->atbar.tool(u"ID_복사").enabled());
    EXPECT_FALSE(reader->atbar.tool(u"ID_UnicodeCopy").enabled());
    edit.hide();
    reader->txCont->setFocus();
    ASSERT_EQ(reader->txCont->SelLength(), 0);
    edit.popup(QPoint());
    EXPECT_TRUE(reader->atbar.tool(u"ID_복사").enabled()) << "the current verse";
    EXPECT_TRUE(reader->atbar.tool(u"ID_전체선택").enabled());
    EXPECT_FALSE(reader->atbar.tool(u"ID_잘라내기").enabled());
    edit.hide();
    pickVersion(u"ID_cb대역본3", 201);
    QTest::keyClick(reader->txCont, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(services.clipboard.plainText().startsWith(u"1\t"_s));
    EXPECT_TRUE(services.clipboard.plainText().trimmed().endsWith(u"(개역한글/KJV 창1:1)"_s))
        << services.clipboard.plainText().toStdString();
    EXPECT_TRUE(reader->atbar.tool(u"ID_복사").enabled());
}

TEST_F(BibleWindowTest, AllBooksStandOnTheirBarsInASmallWindow)
{
    start();
    reader->resize(800, 533);
    QApplication::processEvents();
    for (const int book : {0, 38, 39, 65}) {
        const QToolBar* const bar =
            reader->atbar.bar(book < 39 ? reader_bar::kMove1 : reader_bar::kMove2);
        QAction* const action = reader->atbar.tool(u"ID_%1"_s.arg(book)).action();
        EXPECT_TRUE(bar->widgetForAction(action)->isVisible()) << book;
    }
}

TEST_F(BibleWindowTest, NoAccessKeyStandsForTwoThingsInView)
{
    start();
    QStringList inWindow;
    for (const QAction* menu : reader->menuBar()->actions())
        inWindow << QKeySequence::mnemonic(menu->text()).toString();
    for (int tab = 0; tab < reader->panel->sst관주사전->count(); ++tab) {
        reader->panel->showTab(tab);
        QStringList keys = inWindow;
        for (const auto* button : reader->findChildren<QAbstractButton*>())
            if (button->isVisible() && qobject_cast<const QToolButton*>(button) == nullptr)
                keys << QKeySequence::mnemonic(button->text()).toString();
        keys.removeAll(QString());
        EXPECT_EQ(keys.removeDuplicates(), 0) << tab << keys.join(u' ').toStdString();
    }
    for (const QMenu* menu : reader->findChildren<QMenu*>()) {
        QStringList keys;
        for (const QAction* action : menu->actions())
            keys << QKeySequence::mnemonic(action->text()).toString();
        keys.removeAll(QString());
        EXPECT_EQ(keys.removeDuplicates(), 0) << menu->title().toStdString();
    }
}

TEST_F(BibleWindowTest, BookmarksThatCannotBeStoredAreToldOnce)
{
    ASSERT_TRUE(QDir().mkpath(services.folders.data(u"bmk.bmf"_s))); // a folder in its place
    start();
    services.messages.expect(u"책갈피 저장 실패"_s,
                             u"책갈피를 저장할 수 없습니다. 저장할 디스크를 확인하시기 바랍니다."_s,
                             48);
    click(u"ID_AddBookmark");
    quickMove(u"창 1:2"_s);
    click(u"ID_AddBookmark");
    EXPECT_EQ(reader->bookmarks->references().size(), 2);
    close();
}

TEST_F(BibleWindowTest, PagesAndHelpGoToTheDesktopAndMissingOnesAreTold)
{
    start();
    click(u"ID_책별소개");
    EXPECT_EQ(services.shell.opened,
              QStringList{u"C:\\lumenscript\\data\\책별소개(현대인의 성경).htm"_s});
    click(u"ID_목차");
    EXPECT_EQ(services.help.asked, QStringList{u"Lumens_Intro.htm"_s});
    services.shell.failure = Failure{FailureKind::NotFound, {}};
    services.messages.expect(
        u"파일 없음"_s, u"파일을 열 수 없습니다.\r\nC:\\lumenscript\\data\\역본설명.htm"_s, 48);
    click(u"ID_역본설명");
    click(u"ID_검색");
    click(u"ID_환경설정");
    EXPECT_EQ(opener.opened, (std::vector{WindowId::Search, WindowId::Preferences}));
}

} // namespace
} // namespace lumen
