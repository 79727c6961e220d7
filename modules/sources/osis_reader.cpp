// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/osis_reader.h"

#include "sources/book_names.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct OsisPlace
{
    std::optional<int> book;
    int chapter = 0;
    int verse = 0;
};

// "Gen.1.1", also with a work in front ("Bible:Gen.1.1") and a part behind ("Gen.1.1!a").
std::optional<OsisPlace> parsePlace(QStringView id)
{
    id = id.mid(id.indexOf(u':') + 1);
    if (const qsizetype part = id.indexOf(u'!'); part >= 0)
        id = id.left(part);
    const auto items = id.split(u'.');
    if (items.size() != 3)
        return std::nullopt;
    bool chapterOk = false;
    bool verseOk = false;
    const OsisPlace place{BookNames::fromOsis(items[0]), items[1].toInt(&chapterOk),
                          items[2].toInt(&verseOk)};
    return chapterOk && verseOk ? std::optional(place) : std::nullopt;
}

class OsisReader
{
public:
    OsisReader(QIODevice& device, QString fileName, StrongNumbers numbers)
        : m_xml(&device), m_fileName(std::move(fileName)), m_collector(numbers)
    {
    }

    VersionResult run();

private:
    void startElement();
    void endElement();
    void startVerse(const QXmlStreamAttributes& attributes);
    void endVerse();
    void fail(const QString& reason);

    QXmlStreamReader m_xml;
    QString m_fileName;
    OsisCollector m_collector;
    VersionText m_version;
    QStringList m_ids; ///< of the open verse, empty between verses
    bool m_isContainer = false;
    qint64 m_verseLine = 0;
    std::optional<Failure> m_failure;
};

VersionResult OsisReader::run()
{
    while (!m_xml.atEnd() && !m_failure) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            // Between the verses stand titles only, and line ends.
            if (!m_ids.isEmpty() || m_collector.insideTitle())
                m_collector.characters(m_xml.text());
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError() && !m_failure)
        fail(u"XML이 잘못되었습니다: %1"_s.arg(m_xml.errorString()));
    if (!m_failure && !m_ids.isEmpty())
        m_failure = sourceFailure(m_fileName, m_verseLine, u"끝나지 않은 절입니다."_s);
    if (!m_failure && m_version.verses.empty())
        m_failure = sourceFailure(m_fileName, 0, u"절이 하나도 없습니다."_s);
    if (m_failure)
        return *m_failure;
    return std::move(m_version);
}

void OsisReader::fail(const QString& reason)
{
    m_failure = sourceFailure(m_fileName, m_xml.lineNumber(), reason);
}

void OsisReader::startElement()
{
    const QStringView name = m_xml.name();
    const QXmlStreamAttributes attributes = m_xml.attributes();
    if (name == u"verse") {
        if (!attributes.value(u"eID"_s).isEmpty())
            endVerse();
        else
            startVerse(attributes);
        return;
    }
    // Titles in front of a book stay its own.
    if (name == u"div" && attributes.value(u"type"_s) == u"book")
        m_collector.reset();
    m_collector.start(name, [&attributes](QStringView attribute) {
        for (const QXmlStreamAttribute& one : attributes)
            if (one.name() == attribute)
                return one.value();
        return QStringView();
    });
}

void OsisReader::endElement()
{
    if (m_xml.name() != u"verse") {
        m_collector.end(m_xml.name());
        return;
    }
    if (m_isContainer)
        endVerse();
}

void OsisReader::startVerse(const QXmlStreamAttributes& attributes)
{
    const QString ids = attributes.value(u"osisID"_s).toString();
    if (!m_ids.isEmpty()) {
        fail(u"앞 절이 끝나기 전에 %1절이 시작됩니다."_s.arg(ids));
        return;
    }
    m_ids = ids.split(u' ', Qt::SkipEmptyParts);
    if (m_ids.isEmpty()) {
        fail(u"verse 요소에 osisID가 없습니다."_s);
        return;
    }
    for (const QString& id : std::as_const(m_ids)) {
        if (!parsePlace(id)) {
            fail(u"알 수 없는 osisID입니다: %1"_s.arg(id));
            return;
        }
    }
    m_isContainer = attributes.value(u"sID"_s).isEmpty();
    m_verseLine = m_xml.lineNumber();
    m_collector.dropWords();
}

void OsisReader::endVerse()
{
    if (m_ids.isEmpty())
        return;
    VerseText taken;
    const QString late = m_collector.takeVerse(taken);
    m_collector.addPendingHeading(late);
    bool first = true;
    for (const QString& id : std::as_const(m_ids)) {
        const auto place = parsePlace(id);
        if (!place->book)
            continue;
        VerseText verse = first ? taken : VerseText();
        verse.book = *place->book;
        verse.chapter = place->chapter;
        verse.verse = place->verse;
        m_version.verses.push_back(std::move(verse));
        first = false;
    }
    m_ids.clear();
    m_isContainer = false;
}

} // namespace

VersionResult readOsisFile(const QString& file, StrongNumbers numbers)
{
    QFile device(file);
    if (!device.exists())
        return missingSource(file);
    if (!device.open(QIODevice::ReadOnly))
        return sourceFailure(QFileInfo(file).fileName(), 0, device.errorString());
    return OsisReader(device, QFileInfo(file).fileName(), numbers).run();
}

} // namespace lumen
