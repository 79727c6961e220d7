// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/readers/oshb_reader.h"

#include "sources/book_names.h"
#include "sources/fault_texts.h"
#include "sources/version_text.h"

#include <QFile>
#include <QXmlStreamReader>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString consonantsOf(const QString& text)
{
    QString result;
    for (const QChar c : text)
        if (c >= QChar(0x05D0) && c <= QChar(0x05EA))
            result += c;
    return result;
}

// Marks the words in front of a note as ketiv whose consonants together make the catchword. The
// catchword runs words together that the text divides, and leaves their marks of division out.
void markKetiv(std::vector<OshbWord>& words, const QString& catchWord)
{
    const QString wanted = consonantsOf(catchWord);
    QString joined;
    std::size_t begin = words.size();
    while (begin > 0 && joined.size() < wanted.size())
        joined.prepend(consonantsOf(words[--begin].text));
    if (wanted.isEmpty() || joined != wanted)
        return;
    for (std::size_t i = begin; i < words.size(); ++i)
        words[i].reading = Reading::Ketiv;
}

class OshbReader
{
public:
    explicit OshbReader(const QString& file) : m_file(file), m_device(file) {}

    Result<std::vector<OshbVerse>> run();

private:
    bool readPlace(QStringView id, VersePlace& place);
    void readVerse();
    void readChild(std::vector<OshbWord>& words);
    void readNote(std::vector<OshbWord>& words);
    void readQere(std::vector<OshbWord>& words);
    void readWord(std::vector<OshbWord>& words, Reading reading);
    void readSign(std::vector<OshbWord>& words);

    QString m_file;
    QFile m_device;
    QXmlStreamReader m_xml;
    std::vector<OshbVerse> m_verses;
};

Result<std::vector<OshbVerse>> OshbReader::run()
{
    if (!m_device.open(QIODevice::ReadOnly))
        return missingSource(m_file);
    m_xml.setDevice(&m_device);
    while (!m_xml.atEnd())
        if (m_xml.readNext() == QXmlStreamReader::StartElement && m_xml.name() == u"verse")
            readVerse();
    if (m_xml.hasError())
        return sourceFailure(m_file, m_xml.lineNumber(), faultText(m_xml));
    return std::move(m_verses);
}

bool OshbReader::readPlace(QStringView id, VersePlace& place)
{
    const auto parts = id.split(u'.');
    const auto book = parts.size() == 3 ? BookNames::fromOsis(parts[0]) : std::nullopt;
    if (book)
        place = {*book, parts[1].toInt(), parts[2].toInt()};
    return book && place.chapter > 0 && place.verse > 0;
}

void OshbReader::readVerse()
{
    OshbVerse verse;
    const QString id = m_xml.attributes().value("osisID"_L1).toString();
    if (!readPlace(id, verse.place)) {
        m_xml.raiseError(u"알 수 없는 절: %1"_s.arg(id));
        return;
    }
    while (m_xml.readNextStartElement())
        readChild(verse.words);
    m_verses.push_back(std::move(verse));
}

void OshbReader::readChild(std::vector<OshbWord>& words)
{
    if (m_xml.name() == u"w")
        readWord(words, Reading::Plain);
    else if (m_xml.name() == u"seg")
        readSign(words);
    else if (m_xml.name() == u"note" && m_xml.attributes().value("type"_L1) == u"variant")
        readNote(words);
    else
        m_xml.skipCurrentElement();
}

void OshbReader::readWord(std::vector<OshbWord>& words, Reading reading)
{
    OshbWord word;
    word.lemma = m_xml.attributes().value("lemma"_L1).toString();
    word.morph = m_xml.attributes().value("morph"_L1).toString();
    word.reading = reading;
    word.text = m_xml.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
    words.push_back(std::move(word));
}

// A note without catchword tells what is read where nothing is written. One with an empty reading
// tells that what is written isn't read.
void OshbReader::readNote(std::vector<OshbWord>& words)
{
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == u"catchWord")
            markKetiv(words, m_xml.readElementText(QXmlStreamReader::IncludeChildElements));
        else if (m_xml.name() == u"rdg" && m_xml.attributes().value("type"_L1) == u"x-qere")
            readQere(words);
        else
            m_xml.skipCurrentElement();
    }
}

void OshbReader::readQere(std::vector<OshbWord>& words)
{
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == u"w")
            readWord(words, Reading::Qere);
        else
            readSign(words);
    }
}

void OshbReader::readSign(std::vector<OshbWord>& words)
{
    const QString type = m_xml.attributes().value("type"_L1).toString();
    const QString text = m_xml.readElementText(QXmlStreamReader::IncludeChildElements);
    if (type == u"x-samekh" || type == u"x-pe") {
        OshbWord mark;
        mark.text = text;
        mark.isMark = true;
        words.push_back(std::move(mark));
    } else if (words.empty()) {
        return;
    } else if (type == u"x-maqqef") {
        words.back().maqaf = true;
    } else if (type == u"x-sof-pasuq") {
        words.back().sofPasuq = true;
    }
}

} // namespace

Result<std::vector<OshbVerse>> readOshbFile(const QString& file)
{
    return OshbReader(file).run();
}

} // namespace lumen
