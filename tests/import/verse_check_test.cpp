// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "check/verse_check.h"

#include <gtest/gtest.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kJude = 64;

void addBook(VerseCheck& check, int book)
{
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
        for (int verse = 1; verse <= verseCount(Numbering::Korean, book, chapter); ++verse)
            check.addKey(BibleCode::verseKey(book, chapter, verse), true);
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
        check.addKey(key, true);
    EXPECT_EQ(check.badKeys(), bad);
}

} // namespace
} // namespace lumen
