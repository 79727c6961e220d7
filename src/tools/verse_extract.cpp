// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/verse_extract.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/chapter_reader.h"
#include "data/version_font.h"
#include "jet/rows/recordset.h"
#include "text/basic_text.h"
#include "text/codepage949.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString rowsQuery(QStringView column, const QString& table, const QString& keyPrefix)
{
    return u"select %1 from [%2] where index like '%3:*'"_s.arg(column, table, keyPrefix);
}

void fillGaps(ExtractRange& range, const ExtractLimits& limits)
{
    range.chapter = std::max(1, range.chapter);
    range.firstVerse = std::max(1, range.firstVerse);
    if (range.lastVerse < 1)
        range.lastVerse = std::max(range.firstVerse, limits.verses);
}

} // namespace

std::vector<RangeMending> mendRange(ExtractRange& range, const ExtractLimits& limits)
{
    std::vector<RangeMending> mendings;
    fillGaps(range, limits);
    if (range.firstVerse > range.lastVerse) {
        std::swap(range.firstVerse, range.lastVerse);
        mendings.push_back(RangeMending::Swapped);
    }
    if (limits.verses > 0 && range.lastVerse > limits.verses) {
        range.lastVerse = limits.verses;
        range.firstVerse = std::min(range.firstVerse, limits.verses);
        mendings.push_back(RangeMending::LastVerse);
    }
    if (limits.chapters > 0 && range.chapter > limits.chapters) {
        range.chapter = limits.chapters;
        mendings.push_back(RangeMending::LastChapter);
    }
    return mendings;
}

std::optional<QString> composeExtract(Recordset& rows, int code, const ExtractRange& range,
                                      const ExtractForm& form)
{
    QString text;
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString stored = readableText(Text(rows.Fields(u"cont")));
        if (stored.isEmpty())
            continue;
        if (form.verseNumbers)
            text += Text(rows.Fields(u"verse")) + u' ';
        text += unicodeText(code, stored);
        text += form.linePerVerse ? u"\r\n"_s : u" "_s;
    }
    if (text.isEmpty())
        return std::nullopt;
    if (form.tail)
        text += extractTail(range);
    return text;
}

QString extractTail(const ExtractRange& range)
{
    const QString verses = range.firstVerse == range.lastVerse
                               ? QString::number(range.firstVerse)
                               : u"%1~%2"_s.arg(range.firstVerse).arg(range.lastVerse);
    return u"(%1 %2:%3)"_s.arg(bookName(range.book)).arg(range.chapter).arg(verses);
}

QString extractFileName(const ExtractRange& range)
{
    return u"%1 %2장%3~%4절"_s.arg(bookName(range.book))
        .arg(range.chapter)
        .arg(range.firstVerse)
        .arg(range.lastVerse);
}

QByteArray extractFileContent(const QString& text)
{
    return textFileContent(text + u"\r\n"_s);
}

QString bookRowsQuery(const QString& table, int book)
{
    return rowsQuery(u"chap", table, BibleCode::bookPrefix(book));
}

QString chapterRowsQuery(const QString& table, int book, int chapter)
{
    return rowsQuery(u"verse", table, BibleCode::chapterPrefix(book, chapter));
}

QString extractQuery(const QString& table, const ExtractRange& range)
{
    return u"select * from ["_s + table + u"] where index like '"_s +
           BibleCode::chapterPrefix(range.book, range.chapter) + u":*'"_s + u" and Verse >= "_s +
           QString::number(range.firstVerse) + u" and Verse <= "_s +
           QString::number(range.lastVerse) + u" order by index"_s;
}

int highestChapter(Recordset& rows, int book)
{
    const qsizetype abbreviationLength = bookAbbreviation(book).size();
    int highest = 0;
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString chapterKey = Text(rows.Fields(u"chap"));
        highest = std::max(
            highest,
            ValInt(
                QStringView(chapterKey).sliced(std::min(abbreviationLength, chapterKey.size()))));
    }
    return highest;
}

int highestVerse(Recordset& rows)
{
    int highest = 0;
    for (; !rows.Eof(); rows.MoveNext())
        highest = std::max(highest, ValInt(Text(rows.Fields(u"verse"))));
    return highest;
}

} // namespace lumen
