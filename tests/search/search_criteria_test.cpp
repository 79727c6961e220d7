// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/easy_search.h"
#include "search/power_search.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

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
