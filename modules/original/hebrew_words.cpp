// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/hebrew_words.h"

#include "original/hebrew_morphology.h"
#include "text/original/original_unicode.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

class HebrewCollector
{
public:
    HebrewWords run(const std::vector<OshbVerse>& verses);

private:
    OriginalWord converted(const OshbWord& source);
    void analyse(const OshbWord& source, OriginalWord& word);

    SharedTexts m_texts;
    bool m_isAramaic = false; // of the last word: a paragraph mark goes with it
    HebrewWords m_result;
};

HebrewWords HebrewCollector::run(const std::vector<OshbVerse>& verses)
{
    m_result.verses.reserve(verses.size());
    for (const OshbVerse& source : verses) {
        OriginalVerse verse;
        verse.place = source.place;
        verse.words.reserve(source.words.size());
        for (const OshbWord& word : source.words)
            verse.words.push_back(converted(word));
        m_result.verses.push_back(std::move(verse));
    }
    return std::move(m_result);
}

OriginalWord HebrewCollector::converted(const OshbWord& source)
{
    const HebrewForm form =
        source.reading == Reading::Ketiv ? HebrewForm::Consonants : HebrewForm::Pointed;
    const FontCodes codes = hebrewToCodes(source.text, form);
    for (const QChar c : codes.unknown)
        if (!m_result.unknown.contains(c))
            m_result.unknown += c;
    OriginalWord word;
    word.divided = m_texts.shared(reversedHebrew(codes.codes));
    word.reading = source.reading;
    word.isMark = source.isMark;
    word.maqaf = source.maqaf;
    word.sofPasuq = source.sofPasuq;
    if (source.isMark)
        word.parsing = m_texts.shared(hebrewMarkCode(m_isAramaic));
    else
        analyse(source, word);
    return word;
}

void HebrewCollector::analyse(const OshbWord& source, OriginalWord& word)
{
    m_isAramaic = source.morph.startsWith(u'A');
    const HebrewParsing parsing =
        parseHebrew(source.morph, source.lemma, hebrewConsonants(word.divided), source.reading);
    word.parsing = m_texts.shared(parsing.code);
    word.strong = parsing.strong;
    QString prefixes;
    for (const QString& prefix : parsing.prefixes)
        prefixes += prefix + u';';
    word.prefixes = m_texts.shared(prefixes);
    m_result.incomplete += parsing.isComplete ? 0 : 1;
}

} // namespace

HebrewWords hebrewWords(const std::vector<OshbVerse>& verses)
{
    return HebrewCollector().run(verses);
}

} // namespace lumen
