// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/chapter_reader.h"
#include "jet/data_control.h"
#include "jet/error.h"
#include "support/tiny_data.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class ChapterReaderTest : public testing::Test
{
protected:
    QList<VerseRow> chapter(int code, const QString& table, int book, int number)
    {
        const QString path = u"C:\\lumenscript\\data\\%1.dts"_s.arg(code);
        const QList<VerseRow> rows =
            readVerses(control, path, chapterQuery(table, book, number, 0));
        const QList<VerseRow> preview =
            readVerses(control, path, previewChapterQuery(table, book, number, 1));
        EXPECT_EQ(rows.size(), preview.size());
        return rows;
    }

    TestServices services;
    TinyData data{services};
    DataControl control{services.jet};
};

TEST_F(ChapterReaderTest, EveryVersionGivesItsChapterInOrder)
{
    struct Row
    {
        int code;
        QString table;
        int book;
        int chapter;
        int verses;
    };
    const Row rows[] = {{101, u"개역한글"_s, 0, 1, 31},     {101, u"개역한글"_s, 18, 119, 176},
                        {201, u"KJV"_s, 0, 1, 29},          {215, u"ISV 신약"_s, 42, 3, 16},
                        {215, u"ISV 신약"_s, 0, 1, 0},      {301, u"BHS"_s, 0, 1, 31},
                        {306, u"TR Stephanus"_s, 42, 1, 5}, {101, u"개역한글"_s, 0, 3, 0}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.table.toStdString());
        const QList<VerseRow> verses = chapter(row.code, row.table, row.book, row.chapter);
        ASSERT_EQ(verses.size(), row.verses);
        for (int verse = 1; verse <= row.verses; ++verse) {
            const VerseRow& found = verses[verse - 1];
            EXPECT_EQ(found.verse, verse);
            EXPECT_EQ(verseText(found), TinyData::text(row.code, row.book, row.chapter, verse));
        }
    }
}

TEST_F(ChapterReaderTest, NullHeadingsAndPartsAreKeptApart)
{
    const QList<VerseRow> genesis = chapter(101, u"개역한글"_s, 0, 1);
    ASSERT_EQ(genesis.size(), 31);
    EXPECT_EQ(genesis[0].key, u"01창:001:001"_s);
    EXPECT_EQ(genesis[0].miniTitle, u"지어낸 첫째 제목"_s);
    EXPECT_EQ(genesis[1].miniTitle, QString());
    EXPECT_EQ(genesis[4].cont, std::nullopt);
    EXPECT_EQ(verseText(genesis[4]), QString());
    EXPECT_EQ(verseText(genesis[0]), u"등불 곁에 나무가 있는 창세기 1장 1절"_s);
    EXPECT_NE(genesis[0].cont, u"등불 곁에 나무가 있는 창세기 1장 1절"_s) << "stored scrambled";
    EXPECT_EQ(chapter(101, u"개역한글"_s, 18, 3)[0].part, u"[지어낸 머리글] "_s);
}

TEST_F(ChapterReaderTest, AModuleThatIsGoneIsAnEngineError)
{
    EXPECT_THROW(readVerses(control, u"C:\\lumenscript\\data\\102.dts"_s,
                            chapterQuery(u"개역한자"_s, 0, 1, 0)),
                 JetError);
}

} // namespace
} // namespace lumen
