// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/original_versions.h"
#include "original/wlc_versification.h"
#include "sources/book_names.h"
#include "sources/text_mending.h"
#include "text/original_unicode.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTextStream>

#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kHeader = u"chapter,verse,text";

// Books whose name in these files is not the common one.
struct ByzantineName
{
    QStringView name;
    QStringView usfm;
};

constexpr std::array kByzantineNames{
    ByzantineName{u"MAR", u"MRK"}, ByzantineName{u"JOH", u"JHN"}, ByzantineName{u"JAM", u"JAS"},
    ByzantineName{u"1JO", u"1JN"}, ByzantineName{u"2JO", u"2JN"}, ByzantineName{u"3JO", u"3JN"},
};

std::optional<int> byzantineBook(const QString& file)
{
    const QString name = QFileInfo(file).completeBaseName().toUpper();
    for (const ByzantineName& row : kByzantineNames)
        if (row.name == name)
            return BookNames::fromUsfm(row.usfm);
    return BookNames::fromUsfm(name);
}

// "βιβλος 976 {N-NSF} γενεσεως 1078 {N-GSF}": only the words are kept.
OriginalVerse parsedVerse(const VersePlace& place, const QString& text, QString& unknown)
{
    OriginalVerse verse{place, true, {}};
    const QStringList items = text.split(u' ', Qt::SkipEmptyParts);
    for (const QString& item : items) {
        if (item.startsWith(u'{') || item[0].isDigit())
            continue;
        const FontCodes codes = greekToCodes(item);
        for (const QChar c : codes.unknown)
            if (!unknown.contains(c))
                unknown += c;
        OriginalWord word;
        word.divided = codes.codes;
        verse.words.push_back(std::move(word));
    }
    return verse;
}

std::optional<Failure> readByzantineBook(const QString& file, int book, OriginalText& text,
                                         QString& unknown)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return missingSource(file);
    QTextStream stream(&device);
    stream.setEncoding(QStringConverter::Utf8);
    int line = 1;
    if (stream.readLine().trimmed() != kHeader)
        return sourceFailure(file, line, u"첫 줄이 \"%1\"이 아님"_s.arg(kHeader));
    while (!stream.atEnd()) {
        const QString row = stream.readLine();
        ++line;
        if (row.trimmed().isEmpty())
            continue;
        const VersePlace place{book, row.section(u',', 0, 0).toInt(),
                               row.section(u',', 1, 1).toInt()};
        QString words = row.section(u',', 2);
        words.remove(u'"');
        if (place.chapter < 1 || place.verse < 1 || words.isEmpty())
            return sourceFailure(file, line, u"장, 절, 본문이 아님"_s);
        text.push_back(parsedVerse(place, words, unknown));
    }
    return std::nullopt;
}

VersionText versionOf(const OriginalText& text)
{
    VersionText version;
    for (const OriginalVerse& verse : text) {
        if (!verse.isGreek)
            continue;
        QStringList words;
        for (const OriginalWord& word : verse.words)
            words << word.divided;
        VerseText row{verse.place.book, verse.place.chapter, verse.place.verse,
                      words.join(u' '), std::nullopt,        {}};
        version.verses.push_back(std::move(row));
    }
    return version;
}

} // namespace

VersionResult receivedGreekVersion(OriginalCorpus& corpus)
{
    const auto& content = corpus.content();
    if (!content)
        return content.failure();
    VersionText version = versionOf(content.value().verses);
    version.remarks = content.value().greekRemarks;
    return version;
}

VersionResult byzantineVersion(const QStringList& files)
{
    OriginalText text;
    QString unknown;
    for (const QString& file : files) {
        const auto book = byzantineBook(file);
        if (!book)
            return sourceFailure(file, 0, u"어느 책인지 알 수 없음"_s);
        if (const auto failure = readByzantineBook(file, *book, text, unknown))
            return *failure;
    }
    VersionText version = versionOf(regrouped(std::move(text), koreanPlace));
    if (!unknown.isEmpty())
        version.remarks << u"글꼴 코드가 없어 뺀 글자: %1"_s.arg(unknown);
    Mending::romansDoxology(version);
    return version;
}

bool looksLikeByzantine(const QString& file)
{
    if (!file.endsWith(u".csv", Qt::CaseInsensitive) || !byzantineBook(file))
        return false;
    QFile device(file);
    return device.open(QIODevice::ReadOnly) &&
           QString::fromUtf8(device.readLine()).trimmed() == kHeader;
}

} // namespace lumen
