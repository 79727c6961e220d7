// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/typed_reference.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "text/basic_text.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct Replacement
{
    QStringView written;
    QStringView meant;
};

// The letters of John written with a digit, which would else be taken for the chapter. The blank
// behind the digit tells "요1 1:1" from "요1:1".
constexpr std::array kLettersOfJohn{
    Replacement{u"요한1서", u"요한일서"}, Replacement{u"요한 1서", u"요한일서"},
    Replacement{u"요1 ", u"요일"},        Replacement{u"요 1 ", u"요일"},
    Replacement{u"요한2서", u"요한이서"}, Replacement{u"요한 2서", u"요한이서"},
    Replacement{u"요2 ", u"요이"},        Replacement{u"요 2 ", u"요이"},
    Replacement{u"요한3서", u"요한삼서"}, Replacement{u"요한 3서", u"요한삼서"},
    Replacement{u"요3 ", u"요삼"},        Replacement{u"요 3 ", u"요삼"},
};

constexpr int kLongestAbbreviation = 2;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isSeparator(QChar character)
{
    return character == u':' || character == u';';
}

template <typename Test>
qsizetype firstPosition(QStringView text, Test test)
{
    return std::find_if(text.cbegin(), text.cend(), test) - text.cbegin();
}

int findBook(QStringView name)
{
    // So a full name of two syllables ("시편", "욥기") is not known. This is meant.
    if (name.size() <= kLongestAbbreviation)
        return BibleCode::GetBookNum(name);
    for (int book = 0; book < kBookCount; ++book)
        if (bookName(book) == name)
            return book;
    return -1;
}

int numberOf(QStringView text)
{
    return std::max(0, ValInt(Trim(text)));
}

} // namespace

std::optional<TypedReference> parseTypedReference(const QString& reference)
{
    TypedReference result;
    result.reference = reference;

    QString text = reference;
    for (const Replacement& row : kLettersOfJohn)
        text.replace(row.written.toString(), row.meant.toString(), Qt::CaseInsensitive);

    const QStringView whole(text);
    const qsizetype numbersAt =
        firstPosition(whole, [](QChar c) { return isDigit(c) || isSeparator(c); });
    const QStringView numbers = whole.mid(numbersAt);
    const qsizetype markAt =
        firstPosition(numbers, [](QChar c) { return isSeparator(c) || c == u'장'; });
    if (markAt == numbers.size())
        return std::nullopt;

    QStringView verse = numbers.mid(markAt + 1);
    if (verse.isEmpty()) {
        verse = u"1";
        result.reference += u'1';
    }
    while (!verse.isEmpty() && !isDigit(verse.back()))
        verse.chop(1);

    result.book = findBook(Trim(whole.first(numbersAt)));
    if (result.book < 0)
        return std::nullopt;
    result.chapter = numberOf(numbers.first(markAt));
    result.verse = numberOf(verse);
    return result;
}

} // namespace lumen
