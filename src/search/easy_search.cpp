// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/easy_search.h"

#include "search/search_scope.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

using namespace Qt::StringLiterals;

namespace lumen {

QString withoutLoneSurrogates(QString text)
{
    constexpr QChar kNoCharacter(u'\xFFFF');
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (text.at(i).isSurrogate())
            text[i] = kNoCharacter;
    }
    return text;
}

QString searchLiteral(const QString& word)
{
    return EscapeLikeText(DES::ScrambleField(withoutLoneSurrogates(word)), true);
}

QString easyCriterion(const QString& text)
{
    return u"(Cont like '*"_s + searchLiteral(text) + u"*')"_s;
}

SearchPath searchPath(const QString& scopeTag, std::optional<int> openCount)
{
    if (scopeTag != kScopeTagWithin)
        return SearchPath::Query;
    return openCount.value_or(0) < 1 ? SearchPath::StartOver : SearchPath::Narrow;
}

} // namespace lumen
