// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "check/verse_check.h"
#include "check/verse_counts.h"

#include <gtest/gtest.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPhilemon = 56;
constexpr int kJude = 64;
constexpr int kFirstSamuel = 8;

void addBook(VerseCheck& check, int book)
{
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
        for (int verse = 1; verse <= verseCount(book, chapter); ++verse)
            check.addVerse(BibleCode::verseKey(book, chapter, verse), true);
}

TEST(VerseCheckTest, DifferencesAreToldByBookAndChapter)
{
    VerseCheck check;
    addBook(check, kPhilemon);
    for (int chapter = 1; chapter <= 31; ++chapter) {
        if (chapter == 2 || (chapter >= 5 && chapter <= 7) || chapter == 31)
            continue;
        const int verses = verseCount(kFirstSamuel, chapter) + (chapter == 30 ? 1 : 0);
        for (int verse = 1; verse <= verses; ++verse)
            check.addVerse(BibleCode::verseKey(kFirstSamuel, chapter, verse), verse != 2);
    }
    const QStringList lines = check.deviations();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0],
              u"사무엘상: 711절 (기준 809절) - 2장 없음, 5-7장 없음, 30장 31절(기준 30절), "
              "31장 없음"_s);
    EXPECT_TRUE(lines[1].startsWith(u"없는 책 64권: 창세기, 출애굽기,"_s));
    EXPECT_FALSE(lines[1].contains(u"빌레몬서"_s));
    EXPECT_EQ(check.versesWithoutText(), 26);
}

TEST(VerseCheckTest, KeysThatAreNoneOrStandTwiceAreFaults)
{
    VerseCheck check;
    addBook(check, kJude);
    const QStringList bad{u"65유:001:001"_s, // twice
                          u"66유:001:001"_s,
                          u"65유:002:001"_s,
                          u"65유:001:000"_s,
                          u"65유:1:1"_s,
                          u"00창:001:001"_s,
                          u"67계:001:001"_s,
                          u""_s,
                          u"65유:001"_s,
                          u"창01:001:001"_s,
                          u"65유:001:001 "_s,
                          u"65유:001:-01"_s};
    for (const QString& key : bad)
        check.addVerse(key, true);
    EXPECT_EQ(check.badKeys(), bad);
}

} // namespace
} // namespace lumen
