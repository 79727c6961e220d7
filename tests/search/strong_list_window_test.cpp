// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "platform/jet/jet_engine.h"
#include "platform/jet/jet_error.h"
#include "search/strong_list_window.h"
#include "support/active_window.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QMap>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kVersesPerChapter = 20;

/// The keys of the first `count` verses of Genesis, 20 a chapter.
QStringList keysOfGenesis(int count)
{
    QStringList keys;
    for (int i = 0; i < count; ++i)
        keys << BibleCode::verseKey(0, i / kVersesPerChapter + 1, i % kVersesPerChapter + 1);
    return keys;
}

ModuleTable occurrences(const QString& name, const QList<std::pair<int, QString>>& lists)
{
    ModuleTable table{
        {name,
         {{u"word"_s}, {u"Pos"_s, FieldType::Memo, 0}, {u"num"_s, FieldType::Long, 0}},
         {{u"word"_s, {u"word"_s}}}},
        {}};
    for (const auto& [number, pos] : lists)
        table.rows << QVariantList{DES::ScrambleField(QString::number(number)), pos,
                                   pos.isEmpty() ? 0 : pos.count(u';') + 1};
    return table;
}

/// Three versions of 101 verses of Genesis and the occurrences of a few numbers in them.
class StrongListWindowTest : public testing::Test
{
protected:
    StrongListWindowTest()
    {
        QList<PlainVerse> korean;
        QList<PlainVerse> hebrew;
        for (int i = 0; i < 101; ++i) {
            const int chapter = i / kVersesPerChapter + 1;
            const int verse = i % kVersesPerChapter + 1;
            korean << PlainVerse{0, chapter, verse, u"지어낸 %1절"_s.arg(i + 1), {}, {}};
            hebrew << PlainVerse{0, chapter, verse, u"cba "_s.repeated(40) + u"zyx"_s, {}, {}};
        }
        writeVersion(test.folders.data(u"101.dts"_s), u"개역한글"_s, korean);
        writeVersion(test.folders.data(u"201.dts"_s), u"KJV"_s,
                     {PlainVerse{0, 1, 1, u"a made-up verse"_s, {}, {}},
                      PlainVerse{0, 1, 2, std::nullopt, {}, {}}});
        writeVersion(test.folders.data(u"301.dts"_s), u"BHS"_s, hebrew);
        writeLists();
        CheckData(test.state, test.files, test.jet);
        reader.codes = {101};
    }

    void writeLists()
    {
        const QStringList keys = keysOfGenesis(101);
        const auto first = [&keys](int count) { return keys.mid(0, count).join(u';'); };
        writeModule(test.folders.data(u"z102.dts"_s),
                    {occurrences(u"BHSStrongPos"_s, {{430, first(3)},
                                                     {43, first(1)},
                                                     {50, first(50)},
                                                     {51, first(51)},
                                                     {100, first(100)},
                                                     {101, first(101)},
                                                     {7, u"창1:2;01창:001:003"_s}}),
                     occurrences(u"NSStrongPos"_s, {{430, u"43요:003:016"_s}})});
    }

    frm스트롱관주목록& list(const QString& language, const QString& number)
    {
        if (!window)
            window.emplace(test.services, test.state, reader);
        window->FillBibleIndex(language, number);
        QCoreApplication::processEvents();
        return *window;
    }
    QStringList column(int col)
    {
        QStringList cells;
        for (int row = 1; row < window->flex결과->Rows(); ++row)
            cells << window->flex결과->TextMatrix(row, col);
        return cells;
    }
    QStringList pages()
    {
        QStringList labels;
        for (int page = 0; page < window->mover.pages->ListCount(); ++page)
            labels << window->mover.pages->List(page);
        return labels;
    }
    void pickVersion(int code)
    {
        ComboBox& combo = window->atbar.tool(u"ID_cb기본버전").combo();
        combo.setListIndex(combo.findItemData(code));
    }
    QPoint middleOf(int row) const
    {
        FlexGrid& grid = *window->flex결과;
        return grid.visualRect(grid.model()->index(row - 1, 0)).center();
    }

    TestServices test;
    FakeReader reader;
    std::optional<frm스트롱관주목록> window;
};

TEST_F(StrongListWindowTest, TheVersesOfANumberStandInTheReadersVersion)
{
    list(u"히브리어"_s, u" 430 "_s);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(column(0), (QStringList{u"창1:1"_s, u"창1:2"_s, u"창1:3"_s}));
    EXPECT_EQ(column(1), (QStringList{u"지어낸 1절"_s, u"지어낸 2절"_s, u"지어낸 3절"_s}));
    EXPECT_EQ(window->statusPanel1->text(), u"히브리어 스트롱 코드 번호: 430   전체 관주 수: 3"_s);
    EXPECT_EQ(window->flex결과->TextMatrix(0, 1), u"본문 (3개 존재)"_s);
    EXPECT_EQ(pages(), QStringList{u"1 page"_s});
    // Items may be short references; a verse that the version lacks stands there without a text.
    list(u"히브리어"_s, u"7"_s);
    EXPECT_EQ(column(0), (QStringList{u"창1:2"_s, u"창1:3"_s}));
    list(u"헬라어"_s, u"430"_s);
    EXPECT_EQ(column(0), QStringList{u"요3:16"_s});
    EXPECT_EQ(column(1), QStringList{QString()});
}

TEST_F(StrongListWindowTest, ANumberWithoutVersesIsToldAndEmptiesTheWindow)
{
    list(u"히브리어"_s, u"100"_s);
    for (const QString& number :
         {u"9"_s, u"I"_s, u"4I"_s, u"^"_s, u"' or '1'='1"_s, u"z"_s, QString()}) {
        SCOPED_TRACE(number.toStdString());
        test.messages.expect(u"결과 없음"_s, u"해당하는 스트롱 코드 관주가 없습니다."_s, 64);
        list(u"히브리어"_s, number);
        test.messages.verify();
        EXPECT_EQ(column(0), QStringList());
        EXPECT_EQ(pages(), QStringList());
        EXPECT_EQ(window->statusPanel1->text(), QString());
    }
    QTest::mouseClick(window->mover.next, Qt::LeftButton);
    pickVersion(201);
    EXPECT_EQ(column(0), QStringList());
    ASSERT_TRUE(QFile::remove(test.folders.data(u"z102.dts"_s)));
    test.messages.expect(
        u"Lumenscript"_s,
        u"데이터베이스 파일을 찾을 수 없습니다.\n"_s + test.folders.data(u"z102.dts"_s), 16);
    list(u"히브리어"_s, u"430"_s);
    EXPECT_EQ(column(0), QStringList());
}

TEST_F(StrongListWindowTest, PagesGoRoundAndStayOverAnotherVersion)
{
    list(u"히브리어"_s, u"101"_s);
    EXPECT_EQ(pages().last(), u" 101 ~  150"_s);
    EXPECT_EQ(column(0).size(), 50);
    QTest::mouseClick(window->mover.next, Qt::LeftButton);
    EXPECT_EQ(column(0).first(), u"창3:11"_s);
    pickVersion(301);
    EXPECT_EQ(column(0).first(), u"창3:11"_s);
    EXPECT_TRUE(column(1).first().contains(u"zyx"_s));
    QTest::mouseClick(window->mover.previous, Qt::LeftButton);
    QTest::mouseClick(window->mover.previous, Qt::LeftButton);
    EXPECT_EQ(column(0), QStringList{u"창6:1"_s});
    window->atbar_event9(u"ID_NextPage"_s);
    pickVersion(201);
    EXPECT_EQ(column(1).mid(0, 3), (QStringList{u"a made-up verse"_s, QString(), QString()}));
    // The choice stays for the next number.
    list(u"히브리어"_s, u"43"_s);
    EXPECT_EQ(column(1), QStringList{u"a made-up verse"_s});
}

TEST_F(StrongListWindowTest, AnotherVersionKeepsTheRowAnotherPageBeginsAnew)
{
    list(u"히브리어"_s, u"51"_s);
    FlexGrid& grid = *window->flex결과;
    grid.select(30, 30);
    grid.setTopRow(25);
    pickVersion(201);
    EXPECT_EQ(grid.TopRow(), 25);
    EXPECT_EQ(grid.Row(), 30);
    window->mover.pages->setListIndex(1);
    EXPECT_EQ(grid.TopRow(), 1);
    EXPECT_EQ(grid.Row(), 1);
}

TEST_F(StrongListWindowTest, ClosingFreesTheModulesAndTheReadersVersionMayBeAbsent)
{
    for (const int code : {0, 102, 305}) {
        SCOPED_TRACE(code);
        window.reset();
        reader.codes = {code};
        list(u"히브리어"_s, u"43"_s);
        EXPECT_EQ(column(1), QStringList{u"지어낸 1절"_s});
        EXPECT_TRUE(test.jet.isOpen(test.folders.data(u"101.dts"_s)));
        window->atbar_event9(u"ID_닫기"_s);
        EXPECT_FALSE(window->isVisible());
        EXPECT_FALSE(test.jet.isOpen(test.folders.data(u"101.dts"_s)));
        EXPECT_FALSE(test.jet.isOpen(test.folders.data(u"z102.dts"_s)));
    }
}

TEST_F(StrongListWindowTest, HebrewLinesAreCutToTheWidthAndReadFromTheEnd)
{
    reader.codes = {301};
    list(u"히브리어"_s, u"43"_s);
    const QStringList lines = column(1).first().split(u"\r\n"_s);
    ASSERT_GT(lines.size(), 1);
    EXPECT_TRUE(lines.first().endsWith(u"zyx"_s));
    for (const QString& line : lines.mid(1))
        EXPECT_FALSE(line.contains(u"zyx"_s));
    QStringList backwards(lines.rbegin(), lines.rend());
    EXPECT_EQ(backwards.join(QString()).simplified(),
              (u"cba "_s.repeated(40) + u"zyx"_s).simplified());

    window->resize(window->width() / 2, window->height());
    QCoreApplication::processEvents();
    window->flex결과->onResizeEnded();
    EXPECT_GT(column(1).first().split(u"\r\n"_s).size(), lines.size());
}

TEST_F(StrongListWindowTest, AnAbsentVersionIsToldAndTheFormerOneStays)
{
    list(u"히브리어"_s, u"43"_s);
    test.messages.expect(u"CD 삽입 후 재실행 요망"_s,
                         u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s, 48);
    pickVersion(102);
    EXPECT_EQ(window->atbar.tool(u"ID_cb기본버전").combo().Text(), u"개역한글"_s);
    EXPECT_EQ(column(1), QStringList{u"지어낸 1절"_s});
}

TEST_F(StrongListWindowTest, AClickAndEnterLeadTheReaderThereAndADoubleClickBringsItUp)
{
    list(u"히브리어"_s, u"51"_s);
    showActive(*window);
    window->mover.pages->setListIndex(1);
    QTest::mouseClick(window->flex결과->viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(reader.bookNumber, 0);
    EXPECT_EQ(reader.chapterNumber, 3);
    EXPECT_EQ(reader.range, u"11"_s);
    EXPECT_EQ(reader.raises, 0);

    window->mover.pages->setListIndex(0);
    window->flex결과->setFocus();
    window->flex결과->setRow(4);
    QTest::keyClick(window->flex결과, Qt::Key_Return);
    EXPECT_EQ(reader.chapterNumber, 1);
    EXPECT_EQ(reader.range, u"4"_s);
    QTest::mouseDClick(window->flex결과->viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(reader.raises, 1);
}

TEST_F(StrongListWindowTest, TheSelectedRowsAreCopied)
{
    list(u"히브리어"_s, u"430"_s);
    showActive(*window);
    window->flex결과->setFocus();
    window->flex결과->select(2, 3);
    window->atbar_event9(u"ID_편집"_s);
    EXPECT_TRUE(window->atbar.tool(u"ID_복사").enabled());
    window->atbar_event9(u"ID_복사"_s);
    EXPECT_EQ(test.clipboard.content.plain, u"창1:2\t지어낸 2절\r\n창1:3\t지어낸 3절"_s);
}

TEST_F(StrongListWindowTest, EveryToolHasItsHandlerAndEveryHandlerItsTool)
{
    window.emplace(test.services, test.state, reader);
    const ToolFaults faults =
        unpairedTools(window->atbar.rows(), window->toolClicks(), window->toolCombos());
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
}

} // namespace
} // namespace lumen
