// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/error.h"
#include "jet/store/byte_search.h"
#include "jet/store/like_pattern.h"

#include <gtest/gtest.h>

#include <random>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

using Case = LikePattern::Case;

bool matches(const QString& pattern, const QString& text, Case sensitivity = Case::Exact)
{
    const QByteArray utf8 = text.toUtf8();
    return LikePattern(pattern, sensitivity)
        .matches({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

TEST(LikePatternTest, TextsAreTakenToTheLetter)
{
    struct Row
    {
        QString pattern;
        QString text;
        bool matches;
    };
    const Row rows[] = {
        {u"*\uFEFF*"_s, u"a"_s, false},  {u"*\uFEFF*"_s, u"a\uFEFF"_s, true},
        {u"\uFEFFa*"_s, u"ab"_s, false}, {u"#"_s, u"٧"_s, false},
        {u"word"_s, u"Word"_s, false},   {u"word"_s, u"word "_s, false},
        {u"word "_s, u"word"_s, false},  {u"[가-깋]"_s, u"강"_s, true},
        {u"[가-깋]"_s, u"나"_s, false},  {u"50%_"_s, u"50%_"_s, true},
        {u"50%"_s, u"500"_s, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.pattern + u" on "_s + row.text).toStdString());
        EXPECT_EQ(matches(row.pattern, row.text), row.matches);
    }
}

TEST(LikePatternTest, FoldedPatternsIgnoreTheCaseOfAsciiLettersOnly)
{
    EXPECT_TRUE(matches(u"*GRACE*"_s, u"by Grace alone"_s, Case::Folded));
    EXPECT_TRUE(matches(u"grace"_s, u"GRACE"_s, Case::Folded));
    EXPECT_FALSE(matches(u"grace"_s, u"grace "_s, Case::Folded));
    EXPECT_TRUE(matches(u"[a-c]X?"_s, u"Bxé"_s, Case::Folded));
    EXPECT_FALSE(matches(u"[!a-c]"_s, u"B"_s, Case::Folded));
    EXPECT_FALSE(matches(u"é"_s, u"É"_s, Case::Folded));
    EXPECT_FALSE(matches(u"@"_s, u"`"_s, Case::Folded));
}

TEST(LikePatternTest, BadPatternsAreRefused)
{
    for (const QString& pattern : {u"["_s, u"a[b"_s, u"*[abc"_s, u"[z-a]"_s, u"[나-가]*"_s}) {
        SCOPED_TRACE(pattern.toStdString());
        EXPECT_THROW(matches(pattern, u"x"_s), JetError);
    }
}

TEST(LikePatternTest, DamagedTextIsLookedThroughToItsEnd)
{
    for (const std::string text : {"\xEA", "\xEA\xB0", "\x80\x80", "a\xF0\x9F", "\xFF\xFE", ""})
        for (const QString& pattern : {u"?"_s, u"*[가-힣]*"_s, u"??*"_s, u"*a?"_s, u"?*#"_s})
            LikePattern(pattern, Case::Exact).matches(text);
    EXPECT_TRUE(LikePattern(u"*a*"_s, Case::Exact)
                    .matches("\xEA\xB0"
                             "a"));
}

bool naiveListHolds(std::u32string_view list, char32_t character)
{
    const bool negated = list.size() > 1 && list.front() == U'!';
    bool held = false;
    for (std::size_t i = negated ? 1 : 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == U'-';
        const char32_t last = isRange ? list[i + 2] : list[i];
        held = held || (character >= list[i] && character <= last);
        i += isRange ? 2 : 0;
    }
    return held != negated;
}

/// True when one sign of a pattern, other than "*", takes the character.
bool naiveFits(std::u32string_view sign, char32_t character)
{
    if (sign == U"#")
        return character >= U'0' && character <= U'9';
    if (sign.size() > 1)
        return naiveListHolds(sign.substr(1, sign.size() - 2), character);
    return sign == U"?" || sign[0] == character;
}

/// The rules once more, as plainly as can be.
bool naive(std::u32string_view pattern, std::u32string_view text)
{
    if (pattern.empty())
        return text.empty();
    if (pattern.starts_with(U"[]"))
        return naive(pattern.substr(2), text);
    if (pattern[0] == U'*') {
        bool found = false;
        for (std::size_t skipped = 0; skipped <= text.size(); ++skipped)
            found = found || naive(pattern.substr(1), text.substr(skipped));
        return found;
    }
    const std::size_t length = pattern[0] == U'[' ? pattern.find(U']') + 1 : 1;
    return !text.empty() && naiveFits(pattern.substr(0, length), text[0]) &&
           naive(pattern.substr(length), text.substr(1));
}

TEST(LikePatternTest, RandomPatternsAgreeWithAPlainMatcher)
{
    const std::vector<std::u32string> parts{
        U"a",   U"a",   U"a",   U"b",    U"b",    U"*",     U"*",      U"*",          U"*",
        U"?",   U"?",   U"?",   U"#",    U"1",    U"9",     U"ab",     U"가",         U"\U0001F4D6",
        U"-",   U"!",   U"]",   U"[]",   U"[ab]", U"[!a]",  U"[a-가]", U"[1-3가-나]", U"[*]",
        U"[[]", U"[?]", U"[#]", U"[-a]", U"[a-]", U"[!-a]", U"[!]",    U"[a!]"};
    const std::u32string letters = U"aab가\U0001F4D619*-![?]";
    std::mt19937 random(20240229);
    const auto upTo = [&random](std::size_t most) {
        return std::uniform_int_distribution<std::size_t>(0, most)(random);
    };
    int hits = 0;
    constexpr int kRounds = 40000;
    for (int round = 0; round < kRounds; ++round) {
        std::u32string pattern;
        for (std::size_t n = upTo(7); n > 0; --n)
            pattern += parts[upTo(parts.size() - 1)];
        std::u32string text;
        for (std::size_t n = upTo(9); n > 0; --n)
            text += letters[upTo(letters.size() - 1)];
        const bool expected = naive(pattern, text);
        hits += expected ? 1 : 0;
        ASSERT_EQ(matches(QString::fromStdU32String(pattern), QString::fromStdU32String(text)),
                  expected)
            << QString::fromStdU32String(pattern).toStdString() << " on "
            << QString::fromStdU32String(text).toStdString();
    }
    // Both answers must come up often enough for the comparison to mean something.
    EXPECT_GT(hits, kRounds / 50);
}

TEST(LikePatternTest, TheByteSearchFindsTheFirstPlaceAtAllLengths)
{
    std::mt19937 random(11);
    const auto letters = [&random](std::size_t length) {
        std::string text;
        while (text.size() < length)
            text += "ab\xEA"[random() % 3];
        return text;
    };
    for (int round = 0; round < 20000; ++round) {
        // Texts of some blocks, parts that stand in them about half of the time.
        const std::string text = letters(random() % 100);
        const std::string part = letters(random() % 9);
        const std::size_t from = random() % (text.size() + 2);
        ASSERT_EQ(findBytes(text, part, from), std::string_view(text).find(part, from))
            << part << " in " << text << " from " << from;
    }
}

} // namespace

} // namespace lumen
