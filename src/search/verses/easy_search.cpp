// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/easy_search.h"

#include "search/verses/search_scope.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

struct QuoteMarks
{
    QChar straight;
    QStringView curved;
};

constexpr std::array kQuotes{QuoteMarks{u'\'', u"\u2018\u2019"}, QuoteMarks{u'"', u"\u201C\u201D"}};

// The marks as they are stored, as a list of which one fits.
QString storedList(const QuoteMarks& marks)
{
    const QString stored = DES::ScrambleField(marks.curved.toString() + marks.straight);
    return u'[' + QString(stored).replace(u'\'', u"''"_s) + u']';
}

bool isHangulLetter(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= 0x1100 && code <= 0x11FF) || (code >= 0xA960 && code <= 0xA97F) ||
           (code >= 0xD7B0 && code <= 0xD7FF);
}

bool hasOtherBlank(const QString& blanks)
{
    return std::ranges::any_of(blanks, [](QChar c) { return c != u' '; });
}

// Behind the characters of one kind that begin at a place.
qsizetype endOfRun(const QString& text, qsizetype from)
{
    const auto kind = [](QChar c) { return c.isSpace() ? 1 : isHangulLetter(c) ? 2 : 0; };
    qsizetype end = from + 1;
    while (end < text.size() && kind(text[end]) == kind(text[from]))
        ++end;
    return end;
}

} // namespace

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
    const QString whole = withoutLoneSurrogates(word);
    QString literal;
    qsizetype from = 0;
    const auto takeUntil = [&](qsizetype end) {
        literal += EscapeLikeText(DES::ScrambleField(whole.sliced(from, end - from)), true);
        from = end;
    };
    for (qsizetype at = 0; at < whole.size(); ++at) {
        const auto marks = std::ranges::find(kQuotes, whole[at], &QuoteMarks::straight);
        if (marks == kQuotes.end())
            continue;
        takeUntil(at);
        literal += storedList(*marks);
        from = at + 1;
    }
    takeUntil(whole.size());
    return literal;
}

QString tidiedSearchText(const QString& typed)
{
    QString text;
    for (qsizetype at = 0; at < typed.size();) {
        const qsizetype end = endOfRun(typed, at);
        const QString run = typed.sliced(at, end - at);
        if (run.at(0).isSpace())
            text += hasOtherBlank(run) ? u" "_s : run;
        else
            text += isHangulLetter(run.at(0)) ? run.normalized(QString::NormalizationForm_C) : run;
        at = end;
    }
    return text;
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
