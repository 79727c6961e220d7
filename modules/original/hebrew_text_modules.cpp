// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "original/original_versions.h"
#include "text/original/original_unicode.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

class VerseComposer
{
public:
    explicit VerseComposer(HebrewEdition edition) : m_edition(edition) {}

    void add(const OriginalWord& word);
    QString take();

private:
    void endQere();
    QString written(const OriginalWord& word) const;

    HebrewEdition m_edition;
    QString m_text;
    bool m_inQere = false;
    bool m_joins = true; // no blank in front of the next word
};

QString VerseComposer::written(const OriginalWord& word) const
{
    switch (m_edition) {
    case HebrewEdition::Pointed:
        return word.text();
    case HebrewEdition::Consonants:
        return hebrewConsonants(word.text());
    case HebrewEdition::Divided:
        break;
    }
    return hebrewConsonants(word.divided);
}

// A maqaf behind the last word read stands outside the brackets.
void VerseComposer::endQere()
{
    if (!m_inQere)
        return;
    m_inQere = false;
    const bool hasMaqaf = m_text.endsWith(u'-');
    if (hasMaqaf)
        m_text.chop(1);
    m_text += u']';
    if (hasMaqaf)
        m_text += u'-';
}

void VerseComposer::add(const OriginalWord& word)
{
    if (word.isMark)
        return;
    const bool isQere = word.reading == Reading::Qere;
    if (!isQere)
        endQere();
    if (!m_joins)
        m_text += u' ';
    if (isQere && !m_inQere)
        m_text += u'[';
    m_inQere = isQere;
    m_text += written(word);
    m_joins = word.maqaf;
    if (word.maqaf)
        m_text += u'-';
    if (word.sofPasuq) {
        endQere();
        m_text += u':';
    }
}

QString VerseComposer::take()
{
    endQere();
    return m_text;
}

} // namespace

QString hebrewVerseText(const OriginalVerse& verse, HebrewEdition edition)
{
    VerseComposer composer(edition);
    for (const OriginalWord& word : verse.words)
        composer.add(word);
    return reversedHebrew(composer.take());
}

VersionResult hebrewVersion(OriginalCorpus& corpus, HebrewEdition edition)
{
    const auto& content = corpus.content();
    if (!content)
        return content.failure();
    VersionText version;
    for (const OriginalVerse& verse : content.value().verses) {
        if (verse.isGreek)
            continue;
        VerseText row{verse.place.book,  verse.place.chapter,
                      verse.place.verse, hebrewVerseText(verse, edition),
                      std::nullopt,      {}};
        version.verses.push_back(std::move(row));
    }
    version.remarks = content.value().hebrewRemarks;
    return version;
}

} // namespace lumen
