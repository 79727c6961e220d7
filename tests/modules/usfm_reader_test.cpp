// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/usfm/usfm_reader.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class UsfmReaderTest : public testing::Test
{
protected:
    VersionResult read(QStringView content)
    {
        return readUsfmFiles({files.write(u"book.usfm"_s, content.toString())});
    }

    SourceFiles files;
};

TEST_F(UsfmReaderTest, TakesTheWordsAndLeavesNotesAndAttributesOut)
{
    struct Row
    {
        QStringView verse;
        QStringView words;
    };
    const Row rows[] = {
        {u"one \\f + \\fr 1:1 \\ft note \\fqa more\\f* two", u"one two"},
        {u"one\\x - \\xo 1:1 \\xt Gen 2\\x*, two", u"one, two"},
        {u"\\w one|strong=\"H1\" lemma=\"a\"\\w* two", u"one two"},
        {u"\\wj one \\+w two|G2\\+w* three\\wj* four", u"one two three four"},
        {u"the \\nd Lord\\nd*’s \\add own\\add*", u"the LORD’s own"},
        {u"one\n\\q1 two\n\\q2\n\\b\n\\m three", u"one two three"},
        {u"one\r\n\\p two//three~four", u"one two three four"},
        {u"\\qt-s |sid=\"1\"\\*one\\qt-e |eid=\"1\"\\* two", u"one two"},
        {u"one \\fig a|src=\"b\"\\fig*two \\va 2\\va* three", u"one two three"},
        {u"a|b", u"a|b"},
        {u"one\n\\r (Gen 2)\n\\p two", u"one two"},
        {u"\\tr \\tc1 one \\tcr2 two", u"one two"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.verse.toString().toStdString());
        const auto version = read(u"\\id GEN x\n\\c 1\n\\p\n\\v 1 "_s + row.verse.toString());
        ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
        EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), row.words.toString());
    }
}

TEST_F(UsfmReaderTest, PutsTitlesAndHeadingsInFrontOfTheirVerse)
{
    const auto version = read(u"A licence\nof some lines.\n\\id PSA\n\\h Psalms\n\\mt1 Psalms\n"
                              u"\\cl Psalm\n\\c 3\n\\ms1 BOOK 1\n\\d A song.\n\\q1\n\\v 1 one\n"
                              u"\\s1 Head\\f + \\ft x\\f* two\n\\r (x)\n\\q1\n\\v 2 two\n\\d Late\n"
                              u"\\c 4 \n\\d Next.\n\\v 1 three");
    ASSERT_TRUE(version.ok());
    const VerseText* first = verseAt(version.value(), 18, 3, 1);
    EXPECT_EQ(first->miniTitle, u"BOOK 1"_s);
    EXPECT_EQ(first->part.value_or(QString()), u"A song."_s);
    EXPECT_EQ(first->text.value_or(QString()), u"one"_s);
    EXPECT_EQ(verseAt(version.value(), 18, 3, 2)->miniTitle, u"Head two"_s);
    EXPECT_EQ(wordsAt(version.value(), 18, 3, 2), u"two Late"_s);
    EXPECT_EQ(verseAt(version.value(), 18, 4, 1)->part.value_or(QString()), u"Next."_s);
}

TEST_F(UsfmReaderTest, HeadingInsideAVerseStandsAboveItAndASpeakerIsLeftOut)
{
    const auto version = read(u"\\id SNG\n\\c 1\n\\sp She\n\\v 1 one\n\\s In the middle\n\\p two\n"
                              u"\\sp He\n\\p three\n\\sp They\n\\v 2 four");
    ASSERT_TRUE(version.ok());
    EXPECT_EQ(verseAt(version.value(), 21, 1, 1)->miniTitle, u"She / In the middle"_s);
    EXPECT_EQ(wordsAt(version.value(), 21, 1, 1), u"one two three"_s);
    EXPECT_EQ(verseAt(version.value(), 21, 1, 2)->miniTitle, u"They"_s);
    ASSERT_EQ(version.value().remarks.size(), 1);
    EXPECT_TRUE(version.value().remarks[0].endsWith(u"아1:1 He"_s));
}

TEST_F(UsfmReaderTest, ReadsBridgesPartsAndEmptyVerses)
{
    auto version = read(u"\\id JHN\n\\c 3\n\\v 1-3 one\n\\v 4a two\n\\v 4b three\n"
                        u"\\v 5 \\f + \\ft only a note\\f*");
    ASSERT_TRUE(version.ok());
    arrangeVerses(version.value());
    EXPECT_EQ(version.value().verses.size(), 5U);
    EXPECT_EQ(wordsAt(version.value(), 42, 3, 1), u"one"_s);
    EXPECT_EQ(wordsAt(version.value(), 42, 3, 3), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version.value(), 42, 3, 4), u"two three"_s);
    EXPECT_EQ(wordsAt(version.value(), 42, 3, 5), u"<no words>"_s);
}

TEST_F(UsfmReaderTest, AnOddVerseNumberLosesNoWords)
{
    struct Row
    {
        QStringView verses;
        QStringView first, second, third;
        qsizetype remarks;
    };
    const Row rows[] = {
        {u"\\v 1 a\n\\v 2. b\n\\v 3one", u"a", u"b", u"one", 0},
        {u"\\v 1 a\n\\v 2,3 b", u"a", u"b", u"<no words>", 0},
        {u"\\v 1 a\n\\v 2 3 men", u"a", u"3 men", u"<no row>", 0},
        {u"\\v 1 a\n\\v two b\n\\v 3 c", u"a two b", u"<no row>", u"c", 1},
        {u"\\v 1 a\n\\v\n\\p b\n\\v 3 c", u"a b", u"<no row>", u"c", 1},
        {u"\\v one a\n\\v 2-1 b\n\\v 3 c", u"one a", u"b", u"c", 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.verses.toString().toStdString());
        const auto version = read(u"\\id GEN\n\\c 1\n"_s + row.verses.toString());
        ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
        EXPECT_EQ(wordsAt(version.value(), 0, 1, 1), row.first);
        EXPECT_EQ(wordsAt(version.value(), 0, 1, 2), row.second);
        EXPECT_EQ(wordsAt(version.value(), 0, 1, 3), row.third);
        EXPECT_EQ(version.value().remarks.size(), row.remarks);
    }
}

TEST_F(UsfmReaderTest, NamesFileAndLineOfAFault)
{
    struct Row
    {
        QStringView content;
        QStringView place;
    };
    const Row rows[] = {
        {u"\\id GEN\n\\c one\n\\v 1 x", u"book.usfm:2: "},
        {u"\\id GEN\n\\v 1 x", u"book.usfm:2: "},
        {u"\n\\id GEM\n\\c 1\n\\v 1 x", u"book.usfm:2: "},
        {u"\\id GEN\n\\c 1\n\\v 1 x\n\\q \\f + \\ft note\n\\v 2 y", u"book.usfm:4: "},
        {u"\\id GEN\n\\c 1\n\\v 1 x \\f + end", u"book.usfm:3: "},
        {u"\\id GEN\n\\c 1\n\\v 1 x\n\\id EXO", u"book.usfm:4: "},
        {u"\\c 1\n\\v 1 x", u"book.usfm:1: "},
        {u"no marker", u"book.usfm:1: "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.content.toString().toStdString());
        const auto version = read(row.content);
        ASSERT_FALSE(version.ok());
        EXPECT_TRUE(version.failure().detail.startsWith(row.place))
            << version.failure().detail.toStdString();
    }
}

TEST_F(UsfmReaderTest, RefusesBytesThatAreNoTextAndABookThatComesTwice)
{
    const QString latin = files.write(u"latin.usfm"_s, QByteArray("\\id GEN\n\\c 1\n\\v 1 f\xFCr"));
    EXPECT_TRUE(readUsfmFiles({latin}).failure().detail.startsWith(u"latin.usfm:3: "_s));
    const QString one = files.write(u"one.usfm"_s, u"\\id GEN\n\\c 1\n\\v 1 a"_s);
    const QString copy = files.write(u"two.usfm"_s, u"\\id GEN\n\\c 1\n\\v 1 a"_s);
    EXPECT_TRUE(readUsfmFiles({one, copy}).failure().detail.startsWith(u"two.usfm: "_s));
}

TEST_F(UsfmReaderTest, PassesOverFilesThatAreNoBooks)
{
    const QString glossary = files.write(u"glo.usfm"_s, u"\\id GLO\n\\p words"_s);
    const QString tobit = files.write(u"tob.usfm"_s, u"\\id TOB\n\\c 1\n\\v 1 words"_s);
    const QString book = files.write(u"rut.usfm"_s, u"\uFEFF\\id rut x\n\\c 1\n\\v 1 a"_s);
    const auto version = readUsfmFiles({glossary, tobit, book});
    ASSERT_TRUE(version.ok());
    EXPECT_TRUE(version.value().remarks.join(u' ').contains(u"TOB"_s));
    EXPECT_EQ(version.value().verses.size(), 1U);
    EXPECT_EQ(wordsAt(version.value(), 7, 1, 1), u"a"_s);
    EXPECT_FALSE(readUsfmFiles({glossary}).ok());
}

} // namespace
} // namespace lumen
