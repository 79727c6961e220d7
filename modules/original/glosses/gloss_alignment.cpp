// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/gloss_alignment.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// The sign of the object, the relative and "that": a piece tied to one of these and to another
// number renders the other.
bool isMinor(int strong)
{
    return strong == 853 || strong == 834 || strong == 3588;
}

// Positions are shares of the verse, so that texts of different length can be compared.
double shareOf(std::size_t at, std::size_t count)
{
    return (static_cast<double>(at) + 0.5) / static_cast<double>(count);
}

struct Occurrences
{
    std::vector<std::size_t> items;
    std::vector<double> shares;

    void add(std::size_t item, std::size_t count)
    {
        items.push_back(item);
        shares.push_back(shareOf(item, count));
    }
};

std::size_t nearest(const std::vector<double>& shares, double share)
{
    const auto found = std::ranges::min_element(
        shares, {}, [share](double other) { return std::abs(other - share); });
    return static_cast<std::size_t>(found - shares.begin());
}

// Collects what comes to each word, in the order of the English text.
class VerseGlosses
{
public:
    VerseGlosses(OriginalVerse& hebrew, const KjvVerse& english)
        : m_hebrew(hebrew), m_english(english), m_segmentsOf(hebrew.words.size())
    {
    }

    GlossCount run();

private:
    void countWords();
    void countSegments();
    void place(int strong, const Occurrences& segments);
    void writeGlosses();

    OriginalVerse& m_hebrew;
    const KjvVerse& m_english;
    std::map<int, Occurrences> m_words;
    std::map<int, Occurrences> m_segments;
    std::vector<std::vector<std::size_t>> m_segmentsOf;
    std::vector<bool> m_placed;
};

GlossCount VerseGlosses::run()
{
    m_placed.assign(m_english.segments.size(), false);
    countWords();
    countSegments();
    for (const auto& [strong, segments] : m_segments)
        place(strong, segments);
    writeGlosses();
    GlossCount count;
    count.segments = static_cast<int>(m_english.segments.size());
    count.placed = static_cast<int>(std::ranges::count(m_placed, true));
    return count;
}

void VerseGlosses::countWords()
{
    const auto& words = m_hebrew.words;
    for (std::size_t i = 0; i < words.size(); ++i)
        if (words[i].strong != 0 && words[i].reading != Reading::Ketiv)
            m_words[words[i].strong].add(i, words.size());
}

void VerseGlosses::countSegments()
{
    const auto& segments = m_english.segments;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        const auto& numbers = segments[i].strong;
        const bool hasMain = std::ranges::any_of(
            numbers, [this](int n) { return !isMinor(n) && m_words.contains(n); });
        for (const int strong : numbers)
            if (!hasMain || !isMinor(strong))
                m_segments[strong].add(i, segments.size());
    }
}

void VerseGlosses::place(int strong, const Occurrences& segments)
{
    const auto found = m_words.find(strong);
    if (found == m_words.end())
        return;
    const Occurrences& words = found->second;
    const std::vector<int> matches = matchedInOrder(segments.shares, words.shares);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        const std::size_t match = matches[i] >= 0 ? static_cast<std::size_t>(matches[i])
                                                  : nearest(words.shares, segments.shares[i]);
        m_segmentsOf[words.items[match]].push_back(segments.items[i]);
        m_placed[segments.items[i]] = true;
    }
}

void VerseGlosses::writeGlosses()
{
    for (std::size_t i = 0; i < m_segmentsOf.size(); ++i) {
        auto& segments = m_segmentsOf[i];
        std::ranges::sort(segments);
        segments.erase(std::unique(segments.begin(), segments.end()), segments.end());
        QString& gloss = m_hebrew.words[i].english;
        for (const std::size_t segment : segments) {
            const QString& text = m_english.segments[segment].text;
            if (text.isEmpty())
                continue;
            if (!gloss.isEmpty())
                gloss += u" … "_s;
            gloss += text;
        }
    }
}

// Least cost of matching the first items of the shorter side with the first of the longer one.
class OrderedMatch
{
public:
    OrderedMatch(const std::vector<double>& few, const std::vector<double>& many)
        : m_few(few), m_many(many), m_width(many.size() + 1),
          m_cost((few.size() + 1) * m_width, std::numeric_limits<double>::infinity())
    {
        std::fill_n(m_cost.begin(), m_width, 0.0);
        for (std::size_t i = 1; i <= few.size(); ++i)
            for (std::size_t j = i; j <= many.size(); ++j)
                cost(i, j) = std::min(cost(i, j - 1), paired(i, j));
    }

    /// The item of the longer side for each of the shorter.
    std::vector<std::size_t> matches()
    {
        std::vector<std::size_t> result(m_few.size());
        std::size_t j = m_many.size();
        for (std::size_t i = m_few.size(); i > 0; --i, --j) {
            while (j > i && cost(i, j - 1) <= paired(i, j))
                --j;
            result[i - 1] = j - 1;
        }
        return result;
    }

private:
    double& cost(std::size_t i, std::size_t j) { return m_cost[i * m_width + j]; }
    double paired(std::size_t i, std::size_t j)
    {
        return cost(i - 1, j - 1) + std::abs(m_few[i - 1] - m_many[j - 1]);
    }

    const std::vector<double>& m_few;
    const std::vector<double>& m_many;
    std::size_t m_width;
    std::vector<double> m_cost;
};

} // namespace

std::vector<int> matchedInOrder(const std::vector<double>& left, const std::vector<double>& right)
{
    std::vector<int> result(left.size(), -1);
    if (left.size() <= right.size()) {
        const auto matches = OrderedMatch(left, right).matches();
        std::ranges::transform(matches, result.begin(),
                               [](std::size_t match) { return static_cast<int>(match); });
        return result;
    }
    const auto matches = OrderedMatch(right, left).matches();
    for (std::size_t i = 0; i < matches.size(); ++i)
        result[matches[i]] = static_cast<int>(i);
    return result;
}

GlossCount placeEnglishGlosses(OriginalText& hebrew, const std::vector<KjvVerse>& english)
{
    QHash<QString, const KjvVerse*> verses;
    const auto keyOf = [](const VersePlace& place) {
        return BibleCode::verseKey(place.book, place.chapter, place.verse);
    };
    for (const KjvVerse& verse : english)
        verses.insert(keyOf(verse.place), &verse);
    GlossCount total;
    for (OriginalVerse& verse : hebrew) {
        const KjvVerse* source = verses.value(keyOf(verse.place));
        if (!source)
            continue;
        const GlossCount count = VerseGlosses(verse, *source).run();
        total.segments += count.segments;
        total.placed += count.placed;
    }
    return total;
}

} // namespace lumen
