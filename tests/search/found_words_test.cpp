// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/found_words.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

using Ranges = QList<TextRange>;

Ranges rangesOf(const QStringList& words, const QString& text)
{
    FoundWords found;
    found.replace(words);
    return found.ranges(text);
}

TEST(FoundWords, MarksEveryPlaceOnce)
{
    EXPECT_EQ(rangesOf({u"사랑"_s}, u"사랑은 사랑이라"_s), (Ranges{{0, 2}, {4, 2}}));
    EXPECT_EQ(rangesOf({u"aa"_s}, u"aaa b aa"_s), (Ranges{{0, 3}, {6, 2}}));
    EXPECT_EQ(rangesOf({u"in the"_s, u"the be"_s}, u"in the beginning"_s), (Ranges{{0, 9}}));
    EXPECT_EQ(rangesOf({u"ab"_s, u"cd"_s}, u"abcd cdab"_s), (Ranges{{0, 4}, {5, 4}}));
    EXPECT_EQ(rangesOf({u"b"_s, u"abc"_s}, u"abc"_s), (Ranges{{0, 3}}));
    EXPECT_EQ(rangesOf({u"don't"_s}, u"I don\u2019t"_s), (Ranges{{2, 5}}));
}

TEST(FoundWords, NothingIsMarkedForAnEmptyTextOrAnotherCase)
{
    EXPECT_EQ(rangesOf({QString()}, u"grace"_s), Ranges{});
    EXPECT_EQ(rangesOf({u"Grace"_s}, u"grace"_s), Ranges{});
    EXPECT_EQ(rangesOf({u"grace"_s}, QString()), Ranges{});
}

TEST(FoundWords, NarrowingKeepsTheEarlierWordsAndANewSearchDropsThem)
{
    FoundWords found;
    found.replace({u"a"_s});
    found.add({u"b"_s});
    EXPECT_EQ(found.ranges(u"a b c"), (Ranges{{0, 1}, {2, 1}}));
    found.replace({u"c"_s});
    EXPECT_EQ(found.ranges(u"a b c"), (Ranges{{4, 1}}));
}

} // namespace
} // namespace lumen
