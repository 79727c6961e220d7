// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/readers/strong_reader.h"

#include "original/glosses/korean_pronunciation.h"
#include "sources/fault_texts.h"
#include "sources/text_cleaning.h"
#include "sources/version_text.h"
#include "text/original/original_unicode.h"

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct PartOfSpeech
{
    QStringView code;
    QStringView korean;
};

constexpr std::array kPartsOfSpeech{
    PartOfSpeech{u"n", u"명사"},
    PartOfSpeech{u"n-m", u"남성명사"},
    PartOfSpeech{u"n-f", u"여성명사"},
    PartOfSpeech{u"n-pr-m", u"고유명사(남)"},
    PartOfSpeech{u"n-pr-f", u"고유명사(여)"},
    PartOfSpeech{u"n-pr-loc", u"고유명사(지명)"},
    PartOfSpeech{u"n-pr", u"고유명사"},
    PartOfSpeech{u"v", u"동사"},
    PartOfSpeech{u"a", u"형용사"},
    PartOfSpeech{u"a-m", u"형용사(남성)"},
    PartOfSpeech{u"a-f", u"형용사(여성)"},
    PartOfSpeech{u"a-gent", u"종족 형용사"},
    PartOfSpeech{u"adv", u"부사"},
    PartOfSpeech{u"prep", u"전치사"},
    PartOfSpeech{u"conj", u"접속사"},
    PartOfSpeech{u"inj", u"감탄사"},
    PartOfSpeech{u"prt", u"불변사"},
    PartOfSpeech{u"d", u"지시대명사"},
    PartOfSpeech{u"dp", u"지시 불변사"},
    PartOfSpeech{u"p", u"인칭대명사"},
    PartOfSpeech{u"pron", u"대명사"},
    PartOfSpeech{u"i", u"의문대명사"},
    PartOfSpeech{u"r", u"관계대명사"},
    PartOfSpeech{u"x", u"부정대명사"},
    PartOfSpeech{u"np", u"부정 불변사"},
};

QString partOfSpeech(const QString& codes, bool isAramaic)
{
    QStringList result;
    const QStringList items = codes.split(u' ', Qt::SkipEmptyParts);
    for (const QString& code : items) {
        const auto found =
            std::ranges::find(kPartsOfSpeech, QStringView(code), &PartOfSpeech::code);
        if (found != kPartsOfSpeech.end())
            result << found->korean.toString();
    }
    QString text = result.join(u" / "_s);
    if (isAramaic && !text.isEmpty())
        text += u"(아람어)"_s;
    return text;
}

bool isNumber(QStringView text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c.isDigit(); });
}

// The text of an element with its references written as "H24" and "G25"; the reader stands at its
// end behind the call.
QString textWithReferences(QXmlStreamReader& xml)
{
    QString text;
    while (!xml.atEnd()) {
        xml.readNext();
        const auto attributes = xml.attributes();
        if (xml.isEndElement())
            return tidyText(text);
        if (xml.isCharacters())
            text += xml.text();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"note") {
            xml.skipCurrentElement();
        } else if (xml.name() == u"strongsref") {
            const bool isHebrew = attributes.value("language"_L1) == u"HEBREW";
            text += isHebrew ? u'H' : u'G';
            text += QString::number(attributes.value("strongs"_L1).toInt());
            xml.skipCurrentElement();
        } else if (xml.name() == u"greek") {
            text += attributes.value("unicode"_L1);
            xml.skipCurrentElement();
        } else {
            const QString source = attributes.value("src"_L1).toString();
            const QString inner = textWithReferences(xml);
            text += !source.isEmpty() && isNumber(inner) ? source : inner;
        }
    }
    return tidyText(text);
}

class StrongReader
{
public:
    explicit StrongReader(const QString& file) : m_file(file), m_device(file) {}

    /// Calls `take` at the start of each "entry".
    template <typename Take>
    Result<StrongEntries> run(const Take& take);

    QXmlStreamReader xml;
    StrongEntries entries;

private:
    QString m_file;
    QFile m_device;
};

template <typename Take>
Result<StrongEntries> StrongReader::run(const Take& take)
{
    if (!m_device.open(QIODevice::ReadOnly))
        return missingSource(m_file);
    xml.setDevice(&m_device);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"entry")
            take();
    if (xml.hasError())
        return sourceFailure(m_file, xml.lineNumber(), faultText(xml));
    return std::move(entries);
}

void readHebrewWord(QXmlStreamReader& xml, StrongEntry& entry)
{
    const auto attributes = xml.attributes();
    entry.pronunciation = attributes.value("pron"_L1).toString();
    entry.korean = koreanFromHebrew(attributes.value("xlit"_L1).toString());
    entry.partOfSpeech = partOfSpeech(attributes.value("pos"_L1).toString(),
                                      attributes.value("xml:lang"_L1) == u"arc");
    const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
    entry.word = reversedHebrew(hebrewToCodes(text, HebrewForm::Pointed).codes);
}

void readHebrewEntry(StrongReader& reader)
{
    QXmlStreamReader& xml = reader.xml;
    const int number = xml.attributes().value("id"_L1).mid(1).toInt();
    StrongEntry& entry = reader.entries[number];
    while (xml.readNextStartElement()) {
        if (xml.name() == u"w")
            readHebrewWord(xml, entry);
        else if (xml.name() == u"source")
            entry.derivation = textWithReferences(xml);
        else if (xml.name() == u"meaning")
            entry.meaning = textWithReferences(xml);
        else if (xml.name() == u"usage")
            entry.kjv = textWithReferences(xml);
        else
            xml.skipCurrentElement();
    }
}

void readGreekEntry(StrongReader& reader)
{
    constexpr QStringView kDash = u":--";
    QXmlStreamReader& xml = reader.xml;
    const int number = xml.attributes().value("strongs"_L1).toInt();
    StrongEntry entry;
    while (xml.readNextStartElement()) {
        const auto attributes = xml.attributes();
        if (xml.name() == u"greek" && entry.word.isEmpty()) {
            entry.word = greekToCodes(attributes.value("unicode"_L1)).codes;
            entry.korean = koreanFromGreek(attributes.value("translit"_L1).toString());
            xml.skipCurrentElement();
        } else if (xml.name() == u"pronunciation" && entry.pronunciation.isEmpty()) {
            entry.pronunciation = attributes.value("strongs"_L1).toString();
            xml.skipCurrentElement();
        } else if (xml.name() == u"strongs_derivation") {
            entry.derivation = textWithReferences(xml);
        } else if (xml.name() == u"strongs_def") {
            entry.meaning = textWithReferences(xml);
        } else if (xml.name() == u"kjv_def") {
            entry.kjv = textWithReferences(xml);
            if (entry.kjv.startsWith(kDash))
                entry.kjv = entry.kjv.mid(kDash.size());
        } else {
            xml.skipCurrentElement();
        }
    }
    if (!entry.word.isEmpty())
        reader.entries[number] = std::move(entry);
}

// The index has an entry for each sense, so that a number may have several references.
Result<Done> addReferences(const QString& file, StrongEntries& entries)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return missingSource(file);
    std::map<int, QStringList> references;
    QXmlStreamReader xml(&device);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"xref")
            continue;
        const auto attributes = xml.attributes();
        const int number = attributes.value("strong"_L1).toInt();
        const QString reference = attributes.value("twot"_L1).toString();
        QStringList& list = references[number];
        if (!reference.isEmpty() && !list.contains(reference))
            list << reference;
    }
    if (xml.hasError())
        return sourceFailure(file, xml.lineNumber(), faultText(xml));
    for (auto& [number, entry] : entries)
        entry.reference = references[number].join(u", "_s);
    return Done{};
}

} // namespace

Result<StrongEntries> readHebrewStrong(const QString& dictionary, const QString& index)
{
    StrongReader reader(dictionary);
    auto entries = reader.run([&reader] { readHebrewEntry(reader); });
    if (!entries)
        return entries;
    const auto added = addReferences(index, entries.value());
    if (!added)
        return added.failure();
    return entries;
}

Result<StrongEntries> readGreekStrong(const QString& dictionary)
{
    StrongReader reader(dictionary);
    return reader.run([&reader] { readGreekEntry(reader); });
}

} // namespace lumen
