// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/greek_words.h"

#include "canon/canon_table.h"
#include "original/greek_morphology.h"
#include "text/original/original_unicode.h"

#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

using NumberedWords = std::map<int, OriginalWord>;

bool isArticle(const KjvGreekWord& word)
{
    return word.morph.startsWith(u"T-") && word.morph.size() == 5;
}

// A rendering of several words belongs to the last of them that is no article.
std::size_t mainWord(const KjvSegment& segment)
{
    for (std::size_t i = segment.greek.size(); i > 0; --i)
        if (!isArticle(segment.greek[i - 1]))
            return i - 1;
    return segment.greek.size() - 1;
}

class GreekCollector
{
public:
    explicit GreekCollector(const std::vector<KjvVerse>& verses)
        : m_verses(verses), m_words(verses.size())
    {
    }

    GreekWords run();

private:
    void addSegment(std::size_t verse, const KjvSegment& segment);
    void addGloss(OriginalWord& word, const QString& text);
    void takeVerse(std::size_t verse);

    const std::vector<KjvVerse>& m_verses;
    std::vector<NumberedWords> m_words;
    SharedTexts m_texts;
    GreekWords m_result;
};

GreekWords GreekCollector::run()
{
    for (std::size_t i = 0; i < m_verses.size(); ++i)
        if (m_verses[i].place.book >= kFirstNewTestamentBook)
            for (const KjvSegment& segment : m_verses[i].segments)
                addSegment(i, segment);
    for (std::size_t i = 0; i < m_verses.size(); ++i)
        if (!m_words[i].empty())
            takeVerse(i);
    return std::move(m_result);
}

void GreekCollector::addSegment(std::size_t verse, const KjvSegment& segment)
{
    if (segment.greek.empty())
        return;
    const std::size_t glossed = mainWord(segment);
    for (std::size_t i = 0; i < segment.greek.size(); ++i) {
        const KjvGreekWord& greek = segment.greek[i];
        const std::size_t at = verse + static_cast<std::size_t>(greek.verseOffset);
        if (at >= m_words.size())
            continue;
        const auto [entry, isNew] = m_words[at].try_emplace(greek.number);
        OriginalWord& word = entry->second;
        if (isNew) {
            word.divided = m_texts.shared(greekToCodes(greek.text).codes);
            word.parsing = m_texts.shared(parseGreek(greek.morph));
            word.strong = greek.strong;
        }
        if (i == glossed)
            addGloss(word, segment.text);
    }
}

void GreekCollector::addGloss(OriginalWord& word, const QString& text)
{
    if (text.isEmpty())
        return;
    if (!word.english.isEmpty())
        word.english += u" … "_s;
    word.english = m_texts.shared(word.english + text);
}

void GreekCollector::takeVerse(std::size_t verse)
{
    OriginalVerse result;
    result.place = m_verses[verse].place;
    result.isGreek = true;
    for (auto& [number, word] : m_words[verse]) {
        if (word.parsing.isEmpty())
            m_result.withoutCode << u"%1%2:%3 %4"_s.arg(bookAbbreviation(result.place.book))
                                        .arg(result.place.chapter)
                                        .arg(result.place.verse)
                                        .arg(word.divided);
        result.words.push_back(std::move(word));
    }
    m_result.missing += m_words[verse].rbegin()->first - static_cast<int>(result.words.size());
    m_result.verses.push_back(std::move(result));
}

} // namespace

GreekWords greekWords(const std::vector<KjvVerse>& verses)
{
    return GreekCollector(verses).run();
}

} // namespace lumen
