// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "data/check_data.h"
#include "search/original/strong_list_window.h"
#include "search/search_fixture.h"
#include "support/active_window.h"
#include "text/field_scramble.h"
#include "text/original/original_unicode.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

ModuleTable occurrences(const QString& name, const QList<std::pair<int, QString>>& lists)
{
    ModuleTable table{
        {name,
         {{u"word"_s}, {u"Pos"_s, FieldType::Memo, 0}, {u"num"_s, FieldType::Long, 0}},
         {{u"word"_s, {u"word"_s}}}},
        {}};
    for (const auto& [number, pos] : lists)
        table.rows << QVariantList{DES::ScrambleField(QString::number(number)), pos,
                                   pos.count(u';') + 1};
    return table;
}

/// The occurrences of a few numbers in the first verses of the fixture's versions.
class StrongListWindowTest : public SearchFixture
{
protected:
    StrongListWindowTest()
    {
        const auto first = [this](int count) {
            QStringList keys;
            for (const PlainVerse& verse : korean.mid(0, count))
                keys << BibleCode::verseKey(verse.book, verse.chapter, verse.verse);
            return keys.join(u';');
        };
        writeModule(test.folders.data(u"z102.dts"_s),
                    {occurrences(u"BHSStrongPos"_s, {{430, first(4)},
                                                     {43, first(1)},
                                                     {101, first(101)},
                                                     {7, u"창1:2;01창:001:003"_s}}),
                     occurrences(u"NSStrongPos"_s, {{430, u"43요:003:016"_s}})});
        CheckData(test.state, test.files, test.jet);
        reader.codes = {101};
    }

    void list(const QString& language, const QString& number)
    {
        if (!strongs)
            strongs.emplace(test.services, test.state, reader);
        strongs->FillBibleIndex(language, number);
        QCoreApplication::processEvents();
    }
    QStringList column(int col)
    {
        QStringList cells;
        for (int row = 1; row < strongs->flex결과->Rows(); ++row)
            cells << strongs->flex결과->TextMatrix(row, col);
        return cells;
    }
    void pickVersion(int code)
    {
        ComboBox& versions = strongs->atbar.tool(u"ID_cb기본버전").combo();
        versions.setListIndex(versions.findItemData(code));
    }
    QPoint middleOf(int row) const
    {
        FlexGrid& grid = *strongs->flex결과;
        return grid.visualRect(grid.model()->index(row - 1, 0)).center();
    }

    std::optional<frm스트롱관주목록> strongs;
};

TEST_F(StrongListWindowTest, TheVersesOfANumberStandInTheReadersVersion)
{
    list(u"히브리어"_s, u" 430 "_s);
    EXPECT_TRUE(strongs->isVisible());
    EXPECT_EQ(column(0), (QStringList{u"창1:1"_s, u"창1:2"_s, u"창1:3"_s, u"창1:4"_s}));
    EXPECT_EQ(column(1).at(1), *korean.at(1).cont);
    EXPECT_EQ(strongs->statusPanel1->text(), u"히브리어 스트롱 코드 번호: 430   전체 관주 수: 4"_s);
    EXPECT_EQ(strongs->flex결과->TextMatrix(0, 1), u"본문 (4개 존재)"_s);
    // Items may be short references; a verse that the version lacks stands there without a text.
    list(u"히브리어"_s, u"7"_s);
    EXPECT_EQ(column(0), (QStringList{u"창1:2"_s, u"창1:3"_s}));
    list(u"헬라어"_s, u"430"_s);
    EXPECT_EQ(column(0), QStringList{u"요3:16"_s});
    EXPECT_EQ(column(1), QStringList{QString()});
}

TEST_F(StrongListWindowTest, ANumberWithoutVersesIsToldAndEmptiesTheWindow)
{
    list(u"히브리어"_s, u"101"_s);
    for (const QString& number : {u"9"_s, u"4I"_s, u"^"_s, u"' or '1'='1"_s, u"z"_s, QString()}) {
        SCOPED_TRACE(number.toStdString());
        test.messages.expect(u"결과 없음"_s, u"해당하는 스트롱 코드 관주가 없습니다."_s, 64);
        list(u"히브리어"_s, number);
        test.messages.verify();
        EXPECT_EQ(column(0), QStringList());
        EXPECT_EQ(strongs->mover.pages->ListCount(), 0);
        EXPECT_EQ(strongs->statusPanel1->text(), QString());
    }
    QTest::mouseClick(strongs->mover.next, Qt::LeftButton);
    pickVersion(201);
    EXPECT_EQ(column(0), QStringList());
    ASSERT_TRUE(QFile::remove(test.folders.data(u"z102.dts"_s)));
    expectMissing(u"z102.dts"_s);
    list(u"히브리어"_s, u"430"_s);
    EXPECT_EQ(column(0), QStringList());
}

TEST_F(StrongListWindowTest, PagesGoRoundAndStayOverAnotherVersion)
{
    list(u"히브리어"_s, u"101"_s);
    EXPECT_EQ(column(0).size(), 50);
    QTest::mouseClick(strongs->mover.next, Qt::LeftButton);
    EXPECT_EQ(column(0).first(), u"창2:1"_s);
    FlexGrid& grid = *strongs->flex결과;
    grid.select(30, 30);
    grid.setTopRow(25);
    pickVersion(201);
    EXPECT_EQ(column(0).first(), u"창2:1"_s);
    EXPECT_EQ(grid.TopRow(), 25);
    EXPECT_EQ(grid.Row(), 30);
    QTest::mouseClick(strongs->mover.previous, Qt::LeftButton);
    EXPECT_EQ(column(1).mid(0, 2), (QStringList{*kjv.at(0).cont, *kjv.at(1).cont}));
    EXPECT_EQ(column(1).last(), QString());
    EXPECT_EQ(grid.TopRow(), 1);
    EXPECT_EQ(grid.Row(), 1);
    QTest::mouseClick(strongs->mover.previous, Qt::LeftButton);
    EXPECT_EQ(column(0), QStringList{u"창3:1"_s});
    // The choice stays for the next number.
    list(u"히브리어"_s, u"43"_s);
    EXPECT_EQ(column(1), QStringList{*kjv.at(0).cont});
}

TEST_F(StrongListWindowTest, ClosingFreesTheModulesAndTheReadersVersionMayBeAbsent)
{
    for (const int code : {0, 102, 305}) {
        SCOPED_TRACE(code);
        strongs.reset();
        reader.codes = {code};
        list(u"히브리어"_s, u"43"_s);
        EXPECT_EQ(column(1), QStringList{*korean.first().cont});
        EXPECT_TRUE(test.jet.isOpen(test.folders.data(u"101.dts"_s)));
        strongs->atbar_event9(u"ID_닫기"_s);
        EXPECT_FALSE(strongs->isVisible());
        EXPECT_FALSE(test.jet.isOpen(test.folders.data(u"101.dts"_s)));
        EXPECT_FALSE(test.jet.isOpen(test.folders.data(u"z102.dts"_s)));
    }
}

TEST_F(StrongListWindowTest, HebrewLinesAreCutToTheWidthAndReadFromTheEnd)
{
    const QString verse = u"cba "_s.repeated(40) + u"zyx"_s;
    writeVersion(test.folders.data(u"301.dts"_s), u"BHS"_s, {madeVerse(0, 1, 1, verse)});
    reader.codes = {301};
    list(u"히브리어"_s, u"43"_s);
    const QStringList lines = column(1).first().split(u"\r\n"_s);
    ASSERT_GT(lines.size(), 1);
    EXPECT_TRUE(lines.first().endsWith(u"zyx"_s));
    const QStringList backwards(lines.rbegin(), lines.rend());
    EXPECT_EQ(backwards.join(QString()).simplified(), verse);
    strongs->resize(strongs->width() / 2, strongs->height());
    QCoreApplication::processEvents();
    strongs->flex결과->onResizeEnded();
    EXPECT_GT(column(1).first().count(u"\r\n"_s) + 1, lines.size());
}

TEST_F(StrongListWindowTest, AnAbsentVersionIsToldAndTheFormerOneStays)
{
    list(u"히브리어"_s, u"43"_s);
    expectNoDisc();
    pickVersion(102);
    EXPECT_EQ(strongs->atbar.tool(u"ID_cb기본버전").combo().Text(), u"개역한글"_s);
    EXPECT_EQ(column(1), QStringList{*korean.first().cont});
}

TEST_F(StrongListWindowTest, AClickAndEnterLeadTheReaderThereAndADoubleClickBringsItUp)
{
    list(u"히브리어"_s, u"101"_s);
    showActive(*strongs);
    FlexGrid& grid = *strongs->flex결과;
    strongs->mover.pages->setListIndex(1);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(reader.calls, QStringList{u"0 2:2"_s});
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, middleOf(2));
    EXPECT_EQ(reader.calls.last(), u"front"_s);
    reader.calls.clear();
    grid.setFocus();
    grid.setRow(4);
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_EQ(reader.calls, QStringList{u"0 2:4"_s});
}

TEST_F(StrongListWindowTest, TheSelectedRowsAreCopied)
{
    list(u"히브리어"_s, u"430"_s);
    showActive(*strongs);
    FlexGrid& grid = *strongs->flex결과;
    grid.setFocus();
    grid.select(2, 3);
    contextMenu(*grid.viewport());
    EXPECT_TRUE(strongs->atbar.menu(u"ID_편집")->isVisible());
    EXPECT_TRUE(strongs->atbar.tool(u"ID_복사").enabled());
    strongs->atbar.menu(u"ID_편집")->hide();
    strongs->atbar_event9(u"ID_복사"_s);
    EXPECT_EQ(test.clipboard.content.plain,
              u"창1:2\t%1\r\n창1:3\t%2"_s.arg(*korean.at(1).cont, *korean.at(2).cont));

    pickVersion(301);
    strongs->flex결과->setFocus();
    strongs->flex결과->setRow(1);
    QTest::keyClick(strongs->flex결과, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(test.clipboard.content.plain, u"창1:1\t"_s + hebrewToUnicode(u"abc def"_s));
}

TEST_F(StrongListWindowTest, EveryToolHasItsHandlerAndEveryHandlerItsTool)
{
    strongs.emplace(test.services, test.state, reader);
    const ToolFaults faults =
        unpairedTools(strongs->atbar.rows(), strongs->toolClicks(), strongs->toolCombos());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
}

} // namespace
} // namespace lumen
