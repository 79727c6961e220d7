// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/osis_reader.h"

#include "sources/book_names.h"
#include "sources/fault_texts.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <vector>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct OsisPlace
{
    QString id; ///< of the book
    int chapter = 0;
    int verse = 0;

    std::optional<int> book() const { return BookNames::fromOsis(id); }
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
    const OsisPlace place{items[0].toString(), items[1].toInt(&chapterOk),
                          items[2].toInt(&verseOk)};
    return chapterOk && verseOk ? std::optional(place) : std::nullopt;
}

// "Gen.1.1-Gen.1.3" within a chapter; empty for what is no place and for a range of another kind.
std::vector<OsisPlace> parseRange(QStringView text)
{
    constexpr int kLongestRange = 200;
    const qsizetype dash = text.indexOf(u'-');
    const auto first = parsePlace(dash < 0 ? text : text.left(dash));
    const auto last = dash < 0 ? first : parsePlace(text.mid(dash + 1));
    if (!first || !last || first->id != last->id || first->chapter != last->chapter ||
        last->verse < first->verse || last->verse - first->verse > kLongestRange)
        return {};
    std::vector<OsisPlace> places;
    for (int verse = first->verse; verse <= last->verse; ++verse)
        places.push_back({first->id, first->chapter, verse});
    return places;
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
    bool knowsBook(const OsisPlace& place);
    void fail(const QString& reason);

    QXmlStreamReader m_xml;
    QString m_fileName;
    OsisCollector m_collector;
    VersionText m_version;
    std::vector<OsisPlace> m_places; ///< of the open verse, empty between verses
    QString m_book;                  ///< the id of the book at hand
    QStringList m_formerBooks;
    QStringList m_otherBooks; ///< outside the canon
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
            if (!m_places.empty() || m_collector.insideTitle())
                m_collector.characters(m_xml.text());
            break;
        default:
            break;
        }
    }
    if (m_xml.hasError() && !m_failure)
        fail(faultText(m_xml));
    if (!m_failure && !m_places.empty())
        m_failure = sourceFailure(m_fileName, m_verseLine, u"끝나지 않은 절입니다."_s);
    if (!m_failure && m_version.verses.empty())
        m_failure = sourceFailure(m_fileName, 0, u"절이 하나도 없습니다."_s);
    if (m_failure)
        return *m_failure;
    if (!m_otherBooks.isEmpty())
        m_version.remarks << leftOutBooks(m_otherBooks);
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
    if (!m_places.empty()) {
        fail(u"앞 절이 끝나기 전에 %1절이 시작됩니다."_s.arg(ids));
        return;
    }
    if (ids.trimmed().isEmpty()) {
        fail(u"verse 요소에 osisID가 없습니다."_s);
        return;
    }
    for (const QString& id : ids.split(u' ', Qt::SkipEmptyParts)) {
        const auto range = parseRange(id);
        if (range.empty() || !knowsBook(range.front())) {
            fail(u"알 수 없거나 책의 차례가 어긋난 osisID입니다: %1"_s.arg(id));
            return;
        }
        m_places.insert(m_places.end(), range.begin(), range.end());
    }
    m_isContainer = attributes.value(u"sID"_s).isEmpty();
    m_verseLine = m_xml.lineNumber();
    m_collector.dropWords();
}

// False for a book that nobody has, which must be a slip, and for one that comes again after
// another: one of the two has a wrong id.
bool OsisReader::knowsBook(const OsisPlace& place)
{
    if (place.id == m_book)
        return true;
    if (!m_book.isEmpty())
        m_formerBooks << m_book;
    m_book = place.id;
    if (!place.book() && !BookNames::isOutsideCanon(place.id))
        return false;
    if (!place.book())
        m_otherBooks << place.id;
    return !m_formerBooks.contains(place.id);
}

void OsisReader::endVerse()
{
    if (m_places.empty())
        return;
    VerseText taken;
    const QString late = m_collector.takeVerse(taken);
    m_collector.addPendingHeading(late);
    bool first = true;
    for (const OsisPlace& place : m_places) {
        const auto book = place.book();
        if (!book)
            continue;
        VerseText verse = first ? taken : VerseText();
        verse.book = *book;
        verse.chapter = place.chapter;
        verse.verse = place.verse;
        m_version.verses.push_back(std::move(verse));
        first = false;
    }
    m_places.clear();
    m_isContainer = false;
}

} // namespace

VersionResult readOsisFile(const QString& file, StrongNumbers numbers)
{
    QFile device(file);
    if (!device.exists())
        return missingSource(file);
    if (!device.open(QIODevice::ReadOnly))
        return sourceFailure(QFileInfo(file).fileName(), 0, faultText(device));
    return OsisReader(device, QFileInfo(file).fileName(), numbers).run();
}

} // namespace lumen
