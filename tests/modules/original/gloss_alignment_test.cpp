// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/gloss_alignment.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

OriginalText hebrewVerse(const std::vector<int>& numbers)
{
    OriginalVerse verse{{0, 1, 1}, false, {}};
    for (const int number : numbers) {
        OriginalWord word;
        word.strong = number;
        verse.words.push_back(word);
    }
    return {verse};
}

KjvSegment segment(const QString& text, std::vector<int> strong)
{
    return {text, std::move(strong), {}};
}

QString glosses(const OriginalText& text)
{
    QStringList result;
    for (const OriginalWord& word : text[0].words)
        result << word.english;
    return result.join(u'|');
}

TEST(MatchedInOrder, TakesTheLeastDistance)
{
    EXPECT_EQ(matchedInOrder({0.1, 0.9}, {0.2, 0.8}), (std::vector<int>{0, 1}));
    EXPECT_EQ(matchedInOrder({0.9}, {0.1, 0.5, 0.95}), std::vector<int>{2});
    EXPECT_EQ(matchedInOrder({0.1, 0.45, 0.9}, {0.5}), (std::vector<int>{-1, 0, -1}));
    // Order counts more than distance: the second must not overtake the first.
    EXPECT_EQ(matchedInOrder({0.5, 0.52}, {0.1, 0.51}), (std::vector<int>{0, 1}));
    EXPECT_EQ(matchedInOrder({}, {0.5}), std::vector<int>());
}

TEST(EnglishGlosses, MatchRepeatedNumbersInOrder)
{
    OriginalText text = hebrewVerse({3117, 1, 3117});
    const std::vector<KjvVerse> english{
        {{0, 1, 1},
         {segment(u"Day"_s, {3117}), segment(u"called"_s, {1}), segment(u"day"_s, {3117})}}};
    const GlossCount count = placeEnglishGlosses(text, english);
    EXPECT_EQ(glosses(text), u"Day|called|day"_s);
    EXPECT_EQ(count.placed, 3);
}

TEST(EnglishGlosses, PutWhatIsLeftOverOnTheNearestWord)
{
    OriginalText text = hebrewVerse({1, 2});
    const std::vector<KjvVerse> english{
        {{0, 1, 1},
         {segment(u"a"_s, {1}), segment(u"x"_s, {9}), segment(u"b"_s, {2}), segment(u"c"_s, {2})}}};
    const GlossCount count = placeEnglishGlosses(text, english);
    EXPECT_EQ(glosses(text), u"a|b … c"_s);
    EXPECT_EQ(count.segments, 4);
    EXPECT_EQ(count.placed, 3);
}

TEST(EnglishGlosses, LeaveTheSignOfTheObjectOutBesideAnotherNumber)
{
    OriginalText text = hebrewVerse({853, 1254, 853});
    const std::vector<KjvVerse> english{
        {{0, 1, 1}, {segment(u"created"_s, {853, 1254}), segment(u"and"_s, {853})}}};
    placeEnglishGlosses(text, english);
    EXPECT_EQ(glosses(text), u"|created|and"_s);
}

TEST(EnglishGlosses, PassAKetivOver)
{
    OriginalText text = hebrewVerse({5, 5});
    text[0].words[0].reading = Reading::Ketiv;
    text[0].words[1].reading = Reading::Qere;
    const std::vector<KjvVerse> english{{{0, 1, 1}, {segment(u"read"_s, {5})}}};
    placeEnglishGlosses(text, english);
    EXPECT_EQ(glosses(text), u"|read"_s);
}

} // namespace
} // namespace lumen
