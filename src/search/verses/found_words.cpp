// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/found_words.h"

#include <algorithm>

namespace lumen {
namespace {

// A typed straight mark finds the curved ones too; each is one character, so places stay.
QString withStraightQuotes(QStringView text)
{
    QString result = text.toString();
    for (QChar& c : result) {
        if (c == u'\u2018' || c == u'\u2019')
            c = u'\'';
        else if (c == u'\u201C' || c == u'\u201D')
            c = u'"';
    }
    return result;
}

QList<TextRange> joined(QList<TextRange> ranges)
{
    std::ranges::sort(ranges, {}, &TextRange::start);
    QList<TextRange> result;
    for (const TextRange& range : ranges) {
        if (result.empty() || range.start > result.back().start + result.back().length) {
            result << range;
            continue;
        }
        TextRange& last = result.back();
        last.length = std::max(last.length, range.start + range.length - last.start);
    }
    return result;
}

} // namespace

void FoundWords::replace(const QStringList& words)
{
    m_words.clear();
    add(words);
}

void FoundWords::add(const QStringList& words)
{
    for (const QString& word : words)
        if (!word.isEmpty() && !m_words.contains(word))
            m_words << word;
}

QList<TextRange> FoundWords::ranges(QStringView text) const
{
    QList<TextRange> result;
    const QString straight = withStraightQuotes(text);
    for (const QString& word : m_words) {
        const bool hasQuotes = word.contains(u'\'') || word.contains(u'"');
        const QStringView searched = hasQuotes ? QStringView(straight) : text;
        // From the next character, not from behind the hit: "aa" marks all of "aaa".
        for (qsizetype at = searched.indexOf(word); at >= 0; at = searched.indexOf(word, at + 1))
            result << TextRange{static_cast<int>(at), static_cast<int>(word.size())};
    }
    return joined(result);
}

} // namespace lumen
