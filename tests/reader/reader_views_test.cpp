// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/reader_fixture.h"
#include "support/module_files.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTextBlock>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

/// A chapter in the text view and in the table: what they show, mark, select and keep.
class ReaderViewsTest : public ReaderTest
{
protected:
    const FlexGrid& grid() const { return *reader->hflex본문; }
    QString cell(int row, int col) const { return grid().TextMatrix(row, col); }
    int positionOf(const QString& piece) const
    {
        return static_cast<int>(reader->txCont->Text().indexOf(piece));
    }
};

TEST_F(ReaderViewsTest, TheTableHasAColumnForEachOpenVersionInOrder)
{
    start();
    click(u"ID_테이블형식");
    EXPECT_TRUE(grid().isVisible());
    EXPECT_FALSE(reader->txCont->isVisible());
    EXPECT_FALSE(reader->atbar.tool(u"ID_줄간격1.5배").enabled());
    EXPECT_EQ(grid().Cols(), 3);

    pickVersion(u"ID_cb대역본2", 201);
    pickVersion(u"ID_cb대역본3", 301);
    const QList<QStringList> rows{
        {u"절"_s, u"개역한글"_s, u"대역본2 - KJV"_s, u"대역본3 - BHS"_s},
        {u""_s, u"『지어낸 첫째 제목』"_s, u""_s, u""_s},
        {u"1"_s, TinyData::text(101, 0, 1, 1), TinyData::text(201, 0, 1, 1)}};
    ASSERT_EQ(grid().Cols(), 5);
    for (int row = 0; row < rows.size(); ++row)
        for (int col = 0; col < rows[row].size(); ++col)
            EXPECT_EQ(cell(row, col + 1), rows[row][col]) << row << col;
    EXPECT_FALSE(cell(2, 4).isEmpty());
    const QVariant hebrew = grid().model()->index(1, 4).data(Qt::TextAlignmentRole);
    EXPECT_TRUE(Qt::Alignment(hebrew.toInt()).testFlag(Qt::AlignRight));
    EXPECT_EQ(cell(grid().Rows() - 1, 3), QString()) << "KJV has two verses less";
    EXPECT_EQ(cell(2, 0), u"▶"_s) << "a heading row stands for the verse below it";

    click(u"ID_텍스트형식");
    EXPECT_TRUE(reader->atbar.tool(u"ID_줄간격1.5배").enabled());
    EXPECT_TRUE(reader->txCont->Text().contains(TinyData::text(201, 0, 1, 1)));
}

TEST_F(ReaderViewsTest, TheMarkFollowsMouseAndKeys)
{
    start();
    click(u"ID_소주제표시"); // off: row n is verse n
    click(u"ID_테이블형식");
    FlexGrid& table = *reader->hflex본문;
    const QModelIndex third = table.model()->index(2, 2);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(third).center());
    EXPECT_EQ(cell(3, 0), u"▶"_s);
    EXPECT_EQ(cell(1, 0), QString());
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(place(), u"창세기 1장 4절"_s);
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(reader->model.GetCurVerseRange(), u"4-5"_s);
    click(u"ID_다음장");
    EXPECT_EQ(place(), u"창세기 2장 1절"_s);

    click(u"ID_텍스트형식");
    QTest::keyClick(reader->txCont, Qt::Key_Down);
    EXPECT_EQ(place(), u"창세기 2장 2절"_s);
}

TEST_F(ReaderViewsTest, AnotherLookKeepsTheVerse)
{
    start();
    quickMove(u"요 3:4"_s);
    for (const QStringView look :
         {u"ID_글자크기5", u"ID_줄간격2배", u"ID_테이블형식", u"ID_글자크기2", u"ID_소주제표시",
          u"ID_대역본1-201", u"ID_텍스트형식"}) {
        click(look);
        EXPECT_EQ(place(), u"요한복음 3장 4절"_s) << look.toString().toStdString();
        EXPECT_TRUE(reader->focusWidget() == reader->txCont || reader->focusWidget() == &grid());
    }
    click(u"ID_다음장");
    EXPECT_EQ(reader->model.GetCurVerse(), 1);
}

TEST_F(ReaderViewsTest, AViewThatWasScrolledStaysWhereItIs)
{
    start();
    click(u"ID_글자크기5");
    reader->resize(reader->width(), 320);
    QApplication::processEvents();
    TextControl& text = *reader->txCont;
    const QString fourth = TinyData::text(101, 0, 1, 4);
    const auto top = [&text] {
        QTextCursor line(text.document());
        line.setPosition(text.firstVisiblePosition());
        return line.block().text();
    };
    text.scrollToPosition(positionOf(fourth));
    ASSERT_TRUE(top().contains(fourth)) << top().toStdString();
    for (const QStringView look : {u"ID_줄간격1.5배", u"ID_소주제표시", u"ID_글자크기4"}) {
        click(look);
        EXPECT_TRUE(top().contains(fourth)) << look.toString().toStdString() << top().toStdString();
        EXPECT_EQ(reader->model.GetCurVerse(), 1) << "the caret has not moved";
    }
    click(u"ID_테이블형식");
    QApplication::processEvents();
    EXPECT_EQ(cell(grid().TopRow(), 1), u"4"_s);
    click(u"ID_대역본1-201");
    EXPECT_EQ(cell(grid().TopRow(), 1), u"4"_s);
    EXPECT_EQ(reader->model.GetCurVerse(), 1);

    // A verse that is gone to comes up with its heading.
    click(u"ID_소주제표시");
    quickMove(u"창 1:1"_s);
    EXPECT_EQ(cell(grid().TopRow(), 2), u"『지어낸 첫째 제목』"_s);
    click(u"ID_텍스트형식");
    quickMove(u"창 1:20"_s);
    EXPECT_TRUE(top().contains(TinyData::text(101, 0, 1, 20))) << top().toStdString();
}

TEST_F(ReaderViewsTest, DraggedColumnsStayOverChaptersAndStarts)
{
    start();
    click(u"ID_테이블형식");
    click(u"ID_대역본1-201");
    QApplication::processEvents();
    const auto dragEdge = [](QHeaderView& header, int to) {
        const int edge = header.sectionViewportPosition(2) + header.sectionSize(2) - 1;
        drag(*header.viewport(), {edge, 5}, {to, 0});
    };
    QHeaderView& header = *reader->hflex본문->horizontalHeader();
    const int room = header.sectionSize(2) + header.sectionSize(3);
    dragEdge(header, 90);
    const int wide = header.sectionSize(2);
    EXPECT_NEAR(wide, room / 2 + 90, 3);
    EXPECT_EQ(wide + header.sectionSize(3), room) << "the right edge stays";
    click(u"ID_다음장");
    EXPECT_NEAR(header.sectionSize(2), wide, 1);
    start();
    QHeaderView& next = *reader->hflex본문->horizontalHeader();
    EXPECT_NEAR(next.sectionSize(2), wide, 1);
    click(u"ID_대역본2-201");
    EXPECT_NEAR(next.sectionSize(2), next.sectionSize(3), 1) << "three columns are as they were";
    click(u"ID_대역본2-없음");
    EXPECT_NEAR(next.sectionSize(2), wide, 1);
    dragEdge(next, -900);
    EXPECT_GT(next.sectionSize(2), 40) << "a word has room";
}

TEST_F(ReaderViewsTest, HeadingsFollowTheirSwitchInAllViews)
{
    start();
    pickVersion(u"ID_cb대역본2", 201);
    const QString text = reader->txCont->Text();
    click(u"ID_소주제표시");
    EXPECT_FALSE(reader->txCont->Text().contains(u"『"_s));
    quickMove(u"시 3:1"_s);
    EXPECT_FALSE(reader->txCont->Text().contains(u"[지어낸 머리글]"_s));
    click(u"ID_소주제표시");
    EXPECT_TRUE(reader->txCont->Text().contains(u"1\t[지어낸 머리글] "_s));
    click(u"ID_테이블형식");
    EXPECT_TRUE(cell(2, 2).startsWith(u"[지어낸 머리글] "_s));

    quickMove(u"창 1:1"_s);
    reader->Proc텍스트미리보기채우기();
    EXPECT_EQ(reader->tx미리보기->Text(), QString(text).replace(u'『', u'[').replace(u'』', u']'));
    EXPECT_FALSE(reader->tx미리보기->isVisible());
}

TEST_F(ReaderViewsTest, LineEndsAndControlCharactersOfAModuleShiftNothing)
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
    EXPECT_EQ(copied(), u"1\t앞 첫째 줄과 둘째 줄 (개역한글 창1:1)"_s);
    click(u"ID_테이블형식");
    EXPECT_EQ(cell(2, 2), u"앞 첫째 줄과 둘째 줄"_s);
}

TEST_F(ReaderViewsTest, ASelectionIsNamedCopiedAndKeptByItsVerses)
{
    start();
    TextControl& text = *reader->txCont;
    // From the first verse into the heading of the third.
    const int first = positionOf(u"1\t"_s + TinyData::text(101, 0, 1, 1));
    text.select(first, positionOf(u"둘째 제목"_s) + 2 - first);
    EXPECT_TRUE(copied().endsWith(u"(개역한글 창1:1~2)"_s)) << copied().toStdString();
    EXPECT_EQ(reader->model.GetCurVerseRange(), u"1-2"_s);
    for (const QStringView look : {u"ID_글자크기5", u"ID_테이블형식", u"ID_글자크기2",
                                   u"ID_소주제표시", u"ID_소주제표시", u"ID_텍스트형식"}) {
        click(look);
        EXPECT_EQ(reader->model.GetCurVerseRange(), u"1-2"_s) << look.toString().toStdString();
    }
    quickMove(u"창 1:1"_s);
    click(u"ID_글자크기3");
    EXPECT_GT(text.SelLength(), 0) << "the first verse too";

    text.select(positionOf(u"지어낸 둘째"_s), 6);
    EXPECT_EQ(copied().section(u" ("_s, 0, 0), u"지어낸 둘째"_s);
    quickMove(u"창 1:2"_s);
    text.setFocus();
    click(u"ID_전체선택");
    EXPECT_EQ(place(), u"창세기 1장 1절"_s);
    EXPECT_EQ(reader->model.GetCurVerseRange(), u"1-31"_s);
}

TEST_F(ReaderViewsTest, AHeadingRowStandsForTheVerseBelow)
{
    start();
    click(u"ID_테이블형식");
    quickMove(u"창 1:2"_s);
    QTest::keyClick(reader->hflex본문, Qt::Key_Down);
    ASSERT_EQ(cell(grid().RowSel(), 2), u"『지어낸 둘째 제목』"_s);
    EXPECT_EQ(place(), u"창세기 1장 3절"_s);
    EXPECT_EQ(copied(), u"3\t"_s + TinyData::text(101, 0, 1, 3) + u" (개역한글 창1:3)"_s);
    quickMove(u"창 1:2"_s);
    QTest::keyClick(reader->hflex본문, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(reader->model.GetCurVerseRange(), u"2"_s);
}

} // namespace
} // namespace lumen
