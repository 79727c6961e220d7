// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/power_search.h"

#include "search/verses/easy_search.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QString conjunctionText(Conjunction conjunction)
{
    return conjunction == Conjunction::And ? u" AND "_s : u" OR "_s;
}

QString condition(const QString& text)
{
    return u"Cont like '*"_s + searchLiteral(text) + u"*' "_s;
}

} // namespace

PowerTerms PowerTerms::closedUp() const
{
    if (!second.isEmpty() || third.isEmpty())
        return *this;
    return {first, third, {}, afterSecond, Conjunction::And};
}

QStringList PowerTerms::texts() const
{
    QStringList result{first, second, third};
    result.removeAll(QString());
    return result;
}

QString powerCriterion(const PowerTerms& input)
{
    const PowerTerms terms = input.closedUp();
    QString first = condition(terms.first);
    if (terms.second.isEmpty())
        return first;
    // The second and third conditions begin with a blank of their own.
    const QString second = u" "_s + condition(terms.second);
    QString firstPair = first + conjunctionText(terms.afterFirst) + second;
    if (terms.third.isEmpty())
        return firstPair;
    const QString third = u" "_s + condition(terms.third);
    if (terms.afterFirst == Conjunction::Or && terms.afterSecond == Conjunction::And)
        return u"("_s + first + u" AND "_s + third + u") OR ("_s + second + u" AND "_s + third +
               u")"_s;
    return firstPair + conjunctionText(terms.afterSecond) + third;
}

} // namespace lumen
