// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"

#include "canon/canon_table.h"

#include <QHash>

#include <limits>

namespace lumen::BibleCode {
namespace {

constexpr int kBookDigits = 2;
constexpr int kChapKeyDigits = 2;
constexpr int kIndexDigits = 3;

const QHash<QString, int>& booksByAbbreviation()
{
    static const QHash<QString, int> books = [] {
        QHash<QString, int> result;
        for (int book = 0; book < kBookCount; ++book)
            result.insert(bookAbbreviation(book), book);
        return result;
    }();
    return books;
}

// Longer numbers stand as they are.
QString padded(int number, int digits)
{
    return QString::number(number).rightJustified(digits, u'0');
}

// The leading digits, so that "16-18" is verse 16; a text without any is 0.
int leadingNumber(QStringView text)
{
    qint64 value = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            break;
        value = value * 10 + (c.unicode() - u'0');
        if (value > std::numeric_limits<int>::max())
            return std::numeric_limits<int>::max();
    }
    return static_cast<int>(value);
}

// Without a colon neither number is taken up; the colon is what ends the chapter.
void scanNumbers(QStringView text, VersePlace& place)
{
    const qsizetype colon = text.indexOf(u':');
    if (colon < 0)
        return;
    place.chapter = leadingNumber(text.first(colon));
    place.verse = leadingNumber(text.sliced(colon + 1));
}

// The book is -1 when it isn't known. Two characters go first: "요일3:1" is not in John.
VersePlace scanReference(QStringView reference)
{
    VersePlace place;
    qsizetype length = qMin<qsizetype>(2, reference.size());
    place.book = GetBookNum(reference.first(length));
    if (place.book < 0) {
        length = qMin<qsizetype>(1, reference.size());
        place.book = GetBookNum(reference.first(length));
    }
    scanNumbers(reference.sliced(length), place);
    return place;
}

} // namespace

int GetBookNum(QStringView abbreviation)
{
    return booksByAbbreviation().value(abbreviation.toString(), -1);
}

QString GetChapKey(int book, int chapter)
{
    return bookAbbreviation(book) + padded(chapter, kChapKeyDigits);
}

QString RefToIndex(QStringView reference)
{
    if (reference.isEmpty())
        return {};
    const VersePlace place = scanReference(reference);
    return verseKey(place.book, place.chapter, place.verse);
}

QString IndexToRef(QStringView key)
{
    const qsizetype first = key.indexOf(u':');
    const qsizetype second = first < 0 ? -1 : key.indexOf(u':', first + 1);
    if (first < kBookDigits || second < 0)
        return {};
    return key.sliced(kBookDigits, first - kBookDigits).toString() +
           QString::number(leadingNumber(key.sliced(first + 1, second - first - 1))) + u':' +
           QString::number(leadingNumber(key.sliced(second + 1)));
}

VersePlace ParseRef(QStringView reference)
{
    VersePlace place = scanReference(reference);
    if (place.book < 0)
        place.book = 0;
    if (place.chapter > chapterCount(place.book))
        place.chapter = 1;
    return place;
}

QString verseKey(int book, int chapter, int verse)
{
    return chapterPrefix(book, chapter) + u':' + padded(verse, kIndexDigits);
}

QString chapterPrefix(int book, int chapter)
{
    return bookPrefix(book) + u':' + padded(chapter, kIndexDigits);
}

QString bookPrefix(int book)
{
    return padded(book + 1, kBookDigits) + bookAbbreviation(book);
}

} // namespace lumen::BibleCode
