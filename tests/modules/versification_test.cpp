// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "modules/source_files.h"
#include "sources/versification.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

VersionText wholeVersion(Numbering numbering)
{
    VersionText version;
    for (int book = 0; book < kBookCount; ++book)
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            for (int verse = 1; verse <= verseCount(numbering, book, chapter); ++verse)
                version.verses.push_back({book, chapter, verse, u"x"_s, {}, {}});
    return version;
}

TEST(Versification, BothNumberingsHaveTheSameSumAndDifferInFourChapters)
{
    EXPECT_EQ(wholeVersion(Numbering::English).verses.size(), 31102U);
    EXPECT_EQ(wholeVersion(Numbering::Korean).verses.size(), 31102U);
    const CanonCheck crossed =
        checkAgainstCanon(wholeVersion(Numbering::English), Numbering::Korean);
    EXPECT_EQ(crossed.missing, 2);
    EXPECT_EQ(crossed.beyond, 2);
    EXPECT_EQ(
        crossed.deviations,
        (QStringList{u"사무엘상: 정경 밖의 절 1 (30:31)"_s, u"아가: 없는 절 1 (6:14)"_s,
                     u"고린도후서: 정경 밖의 절 1 (13:14)"_s, u"요한삼서: 없는 절 1 (1:15)"_s}));
}

TEST(Versification, TellsWhatABookLacks)
{
    VersionText version = wholeVersion(Numbering::Korean);
    std::erase_if(version.verses, [](const VerseText& verse) {
        const bool gone = verse.chapter == 1 || (verse.chapter >= 5 && verse.chapter <= 7) ||
                          (verse.chapter == 9 && verse.verse < 15);
        return (verse.book == 0 && gone) || verse.book == 1 || (verse.book > 39 && verse.book < 65);
    });
    version.verses.back().text.reset();
    const CanonCheck check = checkAgainstCanon(version, Numbering::Korean);
    EXPECT_EQ(check.missing, 31 + 32 + 22 + 24 + 14);
    EXPECT_EQ(check.withoutWords, 1);
    EXPECT_EQ(check.absentBooks, 26);
    ASSERT_EQ(check.deviations.size(), 3);
    EXPECT_EQ(check.deviations[0],
              u"창세기: 없는 절 123 (1장, 5-7장, 9:1, 9:2, 9:3, 9:4, 9:5, 9:6, 9:7, 9:8, 9:9, 9:10 "
              "외 4개)"_s);
    EXPECT_EQ(check.deviations[1], u"요한계시록: 본문 없는 절 1 (22:21)"_s);
    EXPECT_EQ(check.deviations[2], u"없는 책 26권: 출애굽기, 마가복음-유다서"_s);
}

TEST(Renumbering, GoesThroughTheOriginalNumbers)
{
    const SourceFiles files;
    const QString own =
        files.write(u"own.txt"_s, u"Psalms 9:22 = Psalms 10:1\nPsalms 10:1 = Psalms 11:1\n"
                                  u"Genesis 49:31 = Genesis 49:31\n"
                                  u"Genesis 49:31 = Genesis 49:32\n"_s);
    const QString english = files.write(
        u"english.txt"_s, u"Genesis 31:55 = Genesis 32:1\nPsalms 11:0 = Psalms 11:1\n"_s);
    VersionText version;
    const auto add = [&version](int book, int chapter, int verse, const QString& text) {
        version.verses.push_back({book, chapter, verse, text, {}, {}});
    };
    add(18, 9, 22, u"a"_s);
    add(18, 10, 1, u"title"_s);
    add(0, 32, 1, u"b"_s);
    add(0, 49, 31, u"c"_s);
    add(0, 1, 1, u"d"_s);
    ASSERT_TRUE(renumberVerses(version, own, english).ok());
    EXPECT_EQ(wordsAt(version, 18, 10, 1), u"a"_s);
    EXPECT_EQ(verseAt(version, 18, 11, 1)->part.value_or(QString()), u"title"_s);
    EXPECT_FALSE(verseAt(version, 18, 11, 1)->text.has_value());
    EXPECT_EQ(wordsAt(version, 0, 31, 55), u"b"_s);
    EXPECT_EQ(wordsAt(version, 0, 49, 31), u"c"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 1), u"d"_s);
}

TEST(Renumbering, LeavesPsalmsThatCountAsTheOriginal)
{
    const SourceFiles files;
    const QString own = files.write(u"own.txt"_s, u"Psalms 10:1 = Psalms 11:1\n"_s);
    const QString english = files.write(u"english.txt"_s, u"Psalms 10:2 = Psalms 10:1\n"_s);
    VersionText version{{{18, 10, 1, u"a"_s, {}, {}}}, {}};
    ASSERT_TRUE(renumberVerses(version, own, english, PsalmNumbers::AsOriginal).ok());
    EXPECT_EQ(wordsAt(version, 18, 10, 2), u"a"_s);
}

TEST(Renumbering, NamesTheLineThatItCannotRead)
{
    const SourceFiles files;
    const QString good = files.write(u"good.txt"_s, u""_s);
    const QString bad = files.write(u"bad.txt"_s, u"Psalms 1:1 = Psalms 1:1\nPsalms = 3\n"_s);
    VersionText version;
    EXPECT_TRUE(renumberVerses(version, bad, good).failure().detail.startsWith(u"bad.txt:2: "_s));
    EXPECT_EQ(renumberVerses(version, files.path(u"no.txt"_s), good).failure().kind,
              FailureKind::NotFound);
}

} // namespace
} // namespace lumen
