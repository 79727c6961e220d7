// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/found_words.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

using Spans = std::vector<TextSpan>;

Spans spansOf(const QStringList& words, const QString& text)
{
    FoundWords found;
    found.replace(words);
    return found.spans(text);
}

TEST(FoundWords, MarksEveryPlaceOnce)
{
    EXPECT_EQ(spansOf({u"사랑"_s}, u"사랑은 사랑이라"_s), (Spans{{0, 2}, {4, 2}}));
    EXPECT_EQ(spansOf({u"aa"_s}, u"aaa b aa"_s), (Spans{{0, 3}, {6, 2}}));
    EXPECT_EQ(spansOf({u"in the"_s, u"the be"_s}, u"in the beginning"_s), (Spans{{0, 9}}));
    EXPECT_EQ(spansOf({u"ab"_s, u"cd"_s}, u"abcd cdab"_s), (Spans{{0, 4}, {5, 4}}));
    EXPECT_EQ(spansOf({u"b"_s, u"abc"_s}, u"abc"_s), (Spans{{0, 3}}));
}

TEST(FoundWords, NothingIsMarkedForAnEmptyTextOrAnotherCase)
{
    EXPECT_EQ(spansOf({QString()}, u"grace"_s), Spans{});
    EXPECT_EQ(spansOf({u"Grace"_s}, u"grace"_s), Spans{});
    EXPECT_EQ(spansOf({u"grace"_s}, QString()), Spans{});
}

TEST(FoundWords, NarrowingKeepsTheEarlierWordsAndANewSearchDropsThem)
{
    FoundWords found;
    found.replace({u"a"_s});
    found.add({u"b"_s});
    EXPECT_EQ(found.spans(u"a b c"), (Spans{{0, 1}, {2, 1}}));
    found.replace({u"c"_s});
    EXPECT_EQ(found.spans(u"a b c"), (Spans{{4, 1}}));
}

} // namespace
} // namespace lumen
