// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/readers/kjv_reader.h"

#include "sources/book_names.h"
#include "sources/fault_texts.h"
#include "sources/text_cleaning.h"
#include "sources/version_text.h"

#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kStrongPrefix = u"strong:";
constexpr QStringView kGreekPrefix = u"lemma.TR:";
constexpr QStringView kMorphPrefix = u"robinson:";
constexpr QStringView kGap = u" … ";

int strongNumber(QStringView item)
{
    if (item.startsWith(kStrongPrefix))
        item = item.mid(kStrongPrefix.size());
    // One number lacks the prefix.
    return item.startsWith(u'H') || item.startsWith(u'G') ? item.mid(1).toInt() : 0;
}

class KjvReader
{
public:
    explicit KjvReader(const QString& file) : m_file(file), m_device(file) {}

    Result<std::vector<KjvVerse>> run();

private:
    void startElement();
    void startVerse(const QString& id);
    void endVerse();
    void startWord();
    void endWord();
    void readGreek(KjvSegment& segment, const QStringList& lemmas);
    bool passesOver() const;

    QString m_file;
    QFile m_device;
    QXmlStreamReader m_xml;
    std::vector<KjvVerse> m_verses;
    KjvVerse m_verse;
    bool m_inVerse = false;
    bool m_inTitle = false;
    bool m_inWord = false;
    int m_divineName = 0;
    KjvSegment m_segment;
    QString m_split;
    QHash<QString, std::size_t> m_splits; // the segment of each divided rendering of the verse
};

Result<std::vector<KjvVerse>> KjvReader::run()
{
    if (!m_device.open(QIODevice::ReadOnly))
        return missingSource(m_file);
    m_xml.setDevice(&m_device);
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            if (m_xml.name() == u"w")
                endWord();
            else if (m_xml.name() == u"title")
                m_inTitle = false;
            else if (m_xml.name() == u"divineName")
                --m_divineName;
            break;
        case QXmlStreamReader::Characters:
            if (m_inWord)
                m_segment.text += m_divineName > 0 ? divineCapitals(m_xml.text().toString())
                                                   : m_xml.text().toString();
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError())
        return sourceFailure(m_file, m_xml.lineNumber(), faultText(m_xml));
    return std::move(m_verses);
}

// The notes at the ends of the epistles are tagged too, with numbers that go on from the last
// verse; they are no part of it.
bool KjvReader::passesOver() const
{
    return m_xml.name() == u"note" ||
           (m_xml.name() == u"div" && m_xml.attributes().value("type"_L1) == u"colophon");
}

void KjvReader::startElement()
{
    const auto attributes = m_xml.attributes();
    if (passesOver()) {
        m_xml.skipCurrentElement();
    } else if (m_xml.name() == u"w") {
        startWord();
    } else if (m_xml.name() == u"title") {
        m_inTitle = attributes.value("type"_L1) == u"psalm";
    } else if (m_xml.name() == u"divineName") {
        ++m_divineName;
    } else if (m_xml.name() == u"verse") {
        if (attributes.hasAttribute("eID"_L1))
            endVerse();
        else
            startVerse(attributes.value("osisID"_L1).toString());
    }
}

void KjvReader::startVerse(const QString& id)
{
    const QStringList parts = id.split(u'.');
    const auto book = parts.size() == 3 ? BookNames::fromOsis(parts[0]) : std::nullopt;
    if (!book) {
        m_xml.raiseError(u"알 수 없는 절: %1"_s.arg(id));
        return;
    }
    m_verse.place = {*book, parts[1].toInt(), parts[2].toInt()};
    m_inVerse = true;
}

void KjvReader::endVerse()
{
    m_verses.push_back(std::move(m_verse));
    m_verse = {};
    m_splits.clear();
    m_inVerse = false;
}

void KjvReader::startWord()
{
    m_inWord = m_inVerse || m_inTitle;
    m_segment = {};
    m_split.clear();
    if (!m_inWord)
        return;
    const auto attributes = m_xml.attributes();
    const QStringList lemmas =
        attributes.value("lemma"_L1).toString().split(u' ', Qt::SkipEmptyParts);
    for (const QString& lemma : lemmas)
        if (const int number = strongNumber(lemma))
            m_segment.strong.push_back(number);
    m_split = attributes.value("type"_L1).toString();
    if (attributes.hasAttribute("src"_L1))
        readGreek(m_segment, lemmas);
}

void KjvReader::readGreek(KjvSegment& segment, const QStringList& lemmas)
{
    const auto attributes = m_xml.attributes();
    const QStringList places =
        attributes.value("src"_L1).toString().split(u' ', Qt::SkipEmptyParts);
    const QStringList tags =
        attributes.value("morph"_L1).toString().split(u' ', Qt::SkipEmptyParts);
    QStringList words;
    for (const QString& lemma : lemmas)
        if (lemma.startsWith(kGreekPrefix))
            words << lemma.mid(kGreekPrefix.size());
    for (qsizetype i = 0; i < places.size(); ++i) {
        QString place = places[i];
        KjvGreekWord word;
        if (place.endsWith(u'n') || place.endsWith(u'p')) {
            word.verseOffset = place.endsWith(u'n') ? 1 : -1;
            place.chop(1);
        }
        word.number = place.toInt();
        word.text = words.value(i);
        word.morph = tags.value(i);
        if (word.morph.startsWith(kMorphPrefix))
            word.morph = word.morph.mid(kMorphPrefix.size());
        if (static_cast<std::size_t>(i) < segment.strong.size())
            word.strong = segment.strong[static_cast<std::size_t>(i)];
        if (word.number < 1 || word.text.isEmpty())
            m_xml.raiseError(u"헬라어 낱말의 자리를 알 수 없음: %1"_s.arg(places[i]));
        segment.greek.push_back(std::move(word));
    }
}

void KjvReader::endWord()
{
    if (!m_inWord)
        return;
    m_inWord = false;
    m_segment.text = tidyText(m_segment.text);
    if (m_split.isEmpty()) {
        m_verse.segments.push_back(std::move(m_segment));
        return;
    }
    const auto known = m_splits.constFind(m_split);
    if (known == m_splits.constEnd()) {
        m_splits.insert(m_split, m_verse.segments.size());
        m_verse.segments.push_back(std::move(m_segment));
        return;
    }
    QString& text = m_verse.segments[*known].text;
    if (!text.isEmpty() && !m_segment.text.isEmpty())
        text += kGap;
    text += m_segment.text;
}

} // namespace

Result<std::vector<KjvVerse>> readKjv(const QString& file)
{
    return KjvReader(file).run();
}

} // namespace lumen
