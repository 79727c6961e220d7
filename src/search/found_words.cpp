// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/found_words.h"

#include <algorithm>

namespace lumen {
namespace {

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
    for (const QString& word : m_words) {
        // From the next character, not from behind the hit: "aa" marks all of "aaa".
        for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1))
            result << TextRange{static_cast<int>(at), static_cast<int>(word.size())};
    }
    return joined(result);
}

} // namespace lumen
