// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/easy_search.h"
#include "search/power_search.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(EasyCriterion, ScramblesFirstAndQuotesThen)
{
    struct Row
    {
        const char16_t* text;
        const char16_t* criterion;
    };
    const Row rows[] = {
        {u"", u"(Cont like '**')"},
        {u"가", u"(Cont like '*치*')"},
        // "B" is stored as "#", "I" as "*", "^" as "?", "z" as "[", "F" as "'".
        {u"B", u"(Cont like '*[#]*')"},
        {u"I", u"(Cont like '*[*]*')"},
        {u"^", u"(Cont like '*[?]*')"},
        {u"z", u"(Cont like '*[[]*')"},
        {u"F", u"(Cont like '*''*')"},
        // And what looks like a wildcard is stored as something harmless.
        {u"[", u"(Cont like '*<*')"},
        {u"*", u"(Cont like '*h*')"},
        {u"'", u"(Cont like '*[\u2018\u2019e]*')"},
        {u"a b", u"(Cont like '*B C*')"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.text).toStdString());
        EXPECT_EQ(easyCriterion(QString::fromUtf16(row.text)), QString::fromUtf16(row.criterion));
    }
}

TEST(EasyCriterion, HalfASurrogatePairBecomesANonCharacter)
{
    const QString high(QChar(0xD83D));
    const QString low(QChar(0xDE00));
    const QString none(QChar(0xFFFF));
    EXPECT_EQ(searchLiteral(high + low), high + low);
    EXPECT_EQ(searchLiteral(high), none);
    EXPECT_EQ(searchLiteral(low + high), none + none);
    EXPECT_EQ(searchLiteral(high + high + low), none + high + low);
}

TEST(SearchPath, NarrowsOnlyAnOpenResultWithRecords)
{
    EXPECT_EQ(searchPath(u"All"_s, {}), SearchPath::Query);
    EXPECT_EQ(searchPath(u"창,막"_s, 7), SearchPath::Query);
    EXPECT_EQ(searchPath(u"curRecSet"_s, {}), SearchPath::StartOver);
    EXPECT_EQ(searchPath(u"curRecSet"_s, 0), SearchPath::StartOver);
    EXPECT_EQ(searchPath(u"curRecSet"_s, 1), SearchPath::Narrow);
}

constexpr Conjunction kAnd = Conjunction::And;
constexpr Conjunction kOr = Conjunction::Or;

TEST(PowerCriterion, CombinesUpToThreeTexts)
{
    // Syllables whose stored forms are syllables as well: 가 is stored as 치, 치 as 에, 에 as 덧.
    const QString a = u"Cont like '*치*' "_s;
    const QString b = u" Cont like '*에*' "_s;
    const QString c = u" Cont like '*덧*' "_s;
    struct Row
    {
        PowerTerms terms;
        QString criterion;
    };
    const Row rows[] = {
        {{u"가"_s, {}, {}, kOr, kOr}, a},
        {{u"가"_s, u"치"_s, {}, kAnd, kOr}, a + u" AND "_s + b},
        {{u"가"_s, u"치"_s, {}, kOr, kAnd}, a + u" OR "_s + b},
        {{u"가"_s, {}, u"치"_s, kAnd, kOr}, a + u" OR "_s + b},
        {{u"가"_s, {}, u"치"_s, kOr, kAnd}, a + u" AND "_s + b},
        {{u"가"_s, u"치"_s, u"에"_s, kAnd, kAnd}, a + u" AND "_s + b + u" AND "_s + c},
        {{u"가"_s, u"치"_s, u"에"_s, kAnd, kOr}, a + u" AND "_s + b + u" OR "_s + c},
        {{u"가"_s, u"치"_s, u"에"_s, kOr, kOr}, a + u" OR "_s + b + u" OR "_s + c},
        {{u"가"_s, u"치"_s, u"에"_s, kOr, kAnd},
         u"("_s + a + u" AND "_s + c + u") OR ("_s + b + u" AND "_s + c + u")"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.criterion.toStdString());
        EXPECT_EQ(powerCriterion(row.terms), row.criterion);
    }
}

} // namespace
} // namespace lumen
