// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/json_readers.h"

#include "canon/canon_table.h"
#include "sources/book_names.h"
#include "sources/fault_texts.h"
#include "sources/text_cleaning.h"
#include "sources/versification.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString fileName(const QString& file)
{
    return QFileInfo(file).fileName();
}

// A list, or the one item that stands for a list of one.
QJsonArray asList(const QJsonValue& value)
{
    if (value.isArray())
        return value.toArray();
    return value.isUndefined() ? QJsonArray() : QJsonArray{value};
}

std::optional<Failure> addBook(const QString& file, const QJsonObject& root, VersionText& version)
{
    const QString title = root[u"book"_s].toString();
    const auto book = BookNames::fromTitle(title);
    if (!book)
        return sourceFailure(fileName(file), 0, u"알 수 없는 책 이름입니다: \"%1\""_s.arg(title));
    const QJsonArray chapters = root[u"chapters"_s].toArray();
    for (const auto& chapterValue : chapters) {
        const int chapter = chapterValue[u"chapter"_s].toInt();
        const QJsonArray verses = chapterValue[u"verses"_s].toArray();
        for (const auto& value : verses) {
            const int verse = value[u"verse"_s].toInt();
            if (chapter < 1 || verse < 1 || !value[u"text"_s].isString())
                return sourceFailure(fileName(file), 0,
                                     u"%1장 %2번째 절에 번호나 본문이 없습니다."_s.arg(chapter).arg(
                                         version.verses.size()));
            version.verses.push_back(
                {*book, chapter, verse, textOrNothing(value[u"text"_s].toString()), {}, {}});
        }
    }
    return std::nullopt;
}

std::optional<Failure> addNestedVerse(const QString& file, const QJsonObject& object,
                                      VersionText& version, QStringList& unknownBooks)
{
    const QString id = object[u"-osisID"_s].toString();
    const QStringList items = id.split(u'.');
    const int chapter = items.value(1).toInt();
    const int verse = items.value(2).toInt();
    if (items.size() != 3 || chapter < 1 || verse < 1)
        return sourceFailure(fileName(file), 0, u"알 수 없는 절입니다: \"%1\""_s.arg(id));
    const auto book = BookNames::fromOsis(items[0]);
    if (!book) {
        if (!BookNames::isOutsideCanon(items[0]))
            return sourceFailure(fileName(file), 0, u"알 수 없는 책입니다: \"%1\""_s.arg(id));
        if (!unknownBooks.contains(items[0]))
            unknownBooks << items[0];
        return std::nullopt;
    }
    // A verse without the field is one that another numbering has.
    if (object[u"text"_s].isString())
        version.verses.push_back(
            {*book, chapter, verse, textOrNothing(object[u"text"_s].toString()), {}, {}});
    return std::nullopt;
}

} // namespace

Result<QJsonDocument> readJsonFile(const QString& file)
{
    QFile device(file);
    if (!device.exists())
        return missingSource(file);
    if (!device.open(QIODevice::ReadOnly))
        return sourceFailure(fileName(file), 0, faultText(device));
    const QByteArray bytes = device.readAll();
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error == QJsonParseError::NoError)
        return document;
    const qint64 line = bytes.left(error.offset).count('\n') + 1;
    return sourceFailure(fileName(file), line,
                         u"JSON이 잘못되었습니다: %1"_s.arg(faultText(error)));
}

VersionResult readBookJsonFiles(const QStringList& files)
{
    VersionText version;
    BookFiles books;
    for (const QString& file : files) {
        const auto document = readJsonFile(file);
        if (!document)
            return document.failure();
        const std::size_t before = version.verses.size();
        if (auto failure = addBook(file, document.value().object(), version))
            return *failure;
        if (auto failure = books.add(file, version, before))
            return *failure;
    }
    // Files come in the order of their names.
    std::stable_sort(version.verses.begin(), version.verses.end(),
                     [](const VerseText& a, const VerseText& b) { return a.book < b.book; });
    if (version.verses.empty())
        return sourceFailure(files.isEmpty() ? u"JSON"_s : fileName(files.first()), 0,
                             u"절이 하나도 없습니다."_s);
    return version;
}

bool looksLikeBookJson(const QString& file)
{
    const auto document = readJsonFile(file);
    if (!document)
        return false;
    const QJsonObject root = document.value().object();
    const QJsonValue verse = root[u"chapters"_s].toArray().at(0)[u"verses"_s].toArray().at(0);
    return root[u"book"_s].isString() && verse[u"text"_s].isString();
}

VersionResult readNestedJsonFile(const QString& file)
{
    const auto document = readJsonFile(file);
    if (!document)
        return document.failure();
    VersionText version;
    QStringList unknownBooks;
    const QJsonValue text = document.value().object()[u"osis"_s][u"osisText"_s];
    const QJsonArray books = asList(text[u"div"_s]);
    for (const auto& book : books)
        for (const auto& chapter : asList(book[u"chapter"_s]))
            for (const auto& verse : asList(chapter[u"verse"_s]))
                if (auto failure = addNestedVerse(file, verse.toObject(), version, unknownBooks))
                    return *failure;
    if (version.verses.empty())
        return sourceFailure(fileName(file), 0, u"절이 하나도 없습니다."_s);
    if (!unknownBooks.isEmpty())
        version.remarks << leftOutBooks(unknownBooks);
    return version;
}

VersionResult readFlatJsonFile(const QString& file)
{
    const auto document = readJsonFile(file);
    if (!document)
        return document.failure();
    QStringList texts;
    const QJsonArray entries = document.value().array();
    for (const auto& entry : entries)
        if (entry.toString() != u"[]"_s)
            texts << entry.toString();
    VersionText version;
    qsizetype next = 0;
    for (int book = 0; book < kBookCount; ++book)
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            for (int verse = 1; verse <= verseCount(Numbering::English, book, chapter); ++verse)
                version.verses.push_back(
                    {book, chapter, verse, textOrNothing(texts.value(next++)), {}, {}});
    // A count that is off would shift all verses behind the gap.
    if (next != texts.size())
        return sourceFailure(
            fileName(file), 0,
            u"절의 수가 맞지 않습니다: %1절이어야 하는데 %2절입니다."_s.arg(next).arg(
                texts.size()));
    return version;
}

} // namespace lumen
