// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/source_words.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kFolder = u"/usr/share/bibledit/sources"_s;

/// Calls back for each element, once where it begins and once where it ends.
void readXml(const QString& path,
             const std::function<void(const QXmlStreamReader& xml, bool begins)>& element)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no source %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement || token == QXmlStreamReader::EndElement)
            element(xml, token == QXmlStreamReader::StartElement);
    }
}

QString attribute(const QXmlStreamReader& xml, const QString& name)
{
    return xml.attributes().value(name).toString();
}

/// From the Leningrad numbering to the other, where whole verses differ.
QHash<QString, QString> verseMap()
{
    QHash<QString, QString> map;
    readXml(kFolder + u"/morphhb/VerseMap.xml"_s, [&](const QXmlStreamReader& xml, bool begins) {
        if (begins && attribute(xml, u"type"_s) == u"full")
            map.insert(attribute(xml, u"wlc"_s), attribute(xml, u"kjv"_s));
    });
    return map;
}

int leadingNumber(const QString& text)
{
    qsizetype end = 0;
    while (end < text.size() && text.at(end).isDigit())
        ++end;
    return text.left(end).toInt();
}

/// All verses of the English source in order; a word may belong to the one before or behind.
QStringList englishVerses()
{
    QStringList verses;
    readXml(kFolder + u"/kjv.xml"_s, [&](const QXmlStreamReader& xml, bool begins) {
        if (begins && xml.name() == u"verse" && xml.attributes().hasAttribute(u"sID"_s))
            verses << attribute(xml, u"osisID"_s);
    });
    return verses;
}

} // namespace

bool SourceWords::installed()
{
    return QFile::exists(kFolder + u"/kjv.xml"_s);
}

SourceWords::Verses SourceWords::hebrew(const Test& test)
{
    const QHash<QString, QString> map = verseMap();
    const QDir folder(kFolder + u"/morphhb"_s);
    Verses found;
    for (const QString& name : folder.entryList({u"*.xml"_s})) {
        QString verse;
        readXml(folder.filePath(name), [&](const QXmlStreamReader& xml, bool begins) {
            if (begins && xml.name() == u"verse")
                verse = attribute(xml, u"osisID"_s);
            if (!begins || xml.name() != u"w")
                return;
            for (const QString& piece : attribute(xml, u"lemma"_s).split(u'/'))
                if (test(leadingNumber(piece), attribute(xml, u"morph"_s)))
                    found << map.value(verse, verse);
        });
    }
    return found;
}

SourceWords::Verses SourceWords::greek(const Test& test)
{
    const QStringList verses = englishVerses();
    Verses found;
    qsizetype place = -1;
    bool inVerse = false;
    readXml(kFolder + u"/kjv.xml"_s, [&](const QXmlStreamReader& xml, bool begins) {
        if (begins && xml.name() == u"verse") {
            // Headings and what stands under a letter are outside of verses.
            inVerse = xml.attributes().hasAttribute(u"sID"_s);
            place += inVerse ? 1 : 0;
        }
        if (!begins || !inVerse || xml.name() != u"w")
            return;
        const QStringList source = attribute(xml, u"src"_s).split(u' ', Qt::SkipEmptyParts);
        const QStringList lemmas = attribute(xml, u"lemma"_s).split(u' ');
        const QStringList morphs = attribute(xml, u"morph"_s).split(u' ');
        for (qsizetype i = 0; i < source.size(); ++i) {
            const QString strong = lemmas.value(i);
            if (!strong.startsWith(u"strong:G"))
                break;
            const QString morph = morphs.value(i).section(u':', 1);
            if (!test(strong.mid(8).toInt(), morph))
                continue;
            const QChar neighbour = source.at(i).back();
            found << verses.at(place + (neighbour == u'n' ? 1 : neighbour == u'p' ? -1 : 0));
        }
    });
    return found;
}

} // namespace lumen
