// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/found_words.h"

#include <algorithm>

namespace lumen {
namespace {

std::vector<TextSpan> joined(std::vector<TextSpan> spans)
{
    std::ranges::sort(spans, {}, &TextSpan::start);
    std::vector<TextSpan> result;
    for (const TextSpan& span : spans) {
        if (result.empty() || span.start > result.back().start + result.back().length) {
            result.push_back(span);
            continue;
        }
        TextSpan& last = result.back();
        last.length = std::max(last.length, span.start + span.length - last.start);
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

std::vector<TextSpan> FoundWords::spans(QStringView text) const
{
    std::vector<TextSpan> result;
    for (const QString& word : m_words) {
        // From the next character, not from behind the hit: "aa" marks all of "aaa".
        for (qsizetype at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1))
            result.push_back({at, word.size()});
    }
    return joined(std::move(result));
}

} // namespace lumen
