// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/codepage949.h"
#include "tools/verse_extract.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

using Mendings = std::vector<RangeMending>;

TEST(VerseExtractTest, ABadRangeIsMendedInTheOrderOfTheMessages)
{
    struct Row
    {
        ExtractRange typed;
        ExtractRange mended;
        Mendings mendings;
    };
    constexpr ExtractLimits kGenesis{50, 31};
    const Row rows[] = {
        {{0, 1, 5, 10}, {0, 1, 5, 10}, {}},
        {{0, 1, 10, 5}, {0, 1, 5, 10}, {RangeMending::Swapped}},
        {{0, 1, 1, 32}, {0, 1, 1, 31}, {RangeMending::LastVerse}},
        {{0, 50, 31, 31}, {0, 50, 31, 31}, {}},
        {{0, 51, 1, 2}, {0, 50, 1, 2}, {RangeMending::LastChapter}},
        {{0, 1, 40, 45}, {0, 1, 31, 31}, {RangeMending::LastVerse}},
        {{0, 0, 0, 0}, {0, 1, 1, 31}, {}},
        {{0, 1, 3, 0}, {0, 1, 3, 31}, {}},
        {{0, 99, 99, 2},
         {0, 50, 2, 31},
         {RangeMending::Swapped, RangeMending::LastVerse, RangeMending::LastChapter}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.typed.chapter * 1000 + row.typed.firstVerse);
        ExtractRange range = row.typed;
        EXPECT_EQ(mendRange(range, kGenesis), row.mendings);
        EXPECT_EQ(range, row.mended);
    }
}

TEST(VerseExtractTest, OneVerseHasNoRangeInItsReference)
{
    EXPECT_EQ(extractTail({42, 3, 16, 16}), u"(요한복음 3:16)"_s);
    EXPECT_EQ(extractTail({42, 3, 16, 18}), u"(요한복음 3:16~18)"_s);
    EXPECT_EQ(extractFileName({42, 3, 16, 16}), u"요한복음 3장16~16절"_s);
}

} // namespace
} // namespace lumen
