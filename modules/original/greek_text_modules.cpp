// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/original_versions.h"
#include "original/wlc_versification.h"
#include "sources/book_names.h"
#include "sources/text_mending.h"
#include "text/original/original_unicode.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
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

void noteUnknown(const QString& characters, QString& unknown)
{
    for (const QChar c : characters)
        if (!unknown.contains(c))
            unknown += c;
}

QString unknownRemark(const QString& unknown)
{
    return u"글꼴 코드가 없어 뺀 글자: %1"_s.arg(unknown);
}

QString withoutMarks(const QString& text)
{
    return text.normalized(QString::NormalizationForm_D).removeIf([](QChar c) {
        return c.category() == QChar::Mark_NonSpacing;
    });
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
        noteUnknown(codes.unknown, unknown);
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

OriginalVerse encodedVerse(const VerseText& source, QString& unknown)
{
    OriginalVerse verse{{source.book, source.chapter, source.verse}, true, {}};
    const QStringList items =
        withoutMarks(source.text.value_or(QString())).split(u' ', Qt::SkipEmptyParts);
    for (const QString& item : items) {
        const FontCodes codes = greekToCodes(item);
        noteUnknown(codes.unknown, unknown);
        OriginalWord word;
        word.divided = codes.codes;
        if (!word.divided.isEmpty())
            verse.words.push_back(std::move(word));
    }
    return verse;
}

// The last verses of two chapters tell how a source counts there.
WordPlace placesOf(const VersionText& version)
{
    constexpr VersePlace kLastOfCorinthians{46, 13, 14};
    constexpr VersePlace kLastOfThirdJohn{63, 1, 15};
    const auto has = [&version](const VersePlace& place) {
        return std::ranges::any_of(version.verses, [&place](const VerseText& verse) {
            return place == VersePlace{verse.book, verse.chapter, verse.verse};
        });
    };
    const bool movesCorinthians = has(kLastOfCorinthians);
    const bool dividesJohn = !has(kLastOfThirdJohn);
    return [=](const VersePlace& verse, int word) {
        const bool counts = (verse.book == kLastOfCorinthians.book && !movesCorinthians) ||
                            (verse.book == kLastOfThirdJohn.book && !dividesJohn);
        return counts ? verse : koreanPlace(verse, word);
    };
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
        version.remarks << unknownRemark(unknown);
    Mending::romansDoxology(version);
    return version;
}

void encodeGreek(VersionText& version)
{
    OriginalText text;
    QString unknown;
    for (const VerseText& verse : version.verses)
        text.push_back(encodedVerse(verse, unknown));
    version.verses = versionOf(regrouped(std::move(text), placesOf(version))).verses;
    if (!unknown.isEmpty())
        version.remarks << unknownRemark(unknown);
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
