// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/move/typed_reference.h"

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
constexpr int kPsalms = 18; // zero-based

/// How far the words of a reader may lie from the forms that the program itself writes.
enum class Reading { Exact, Loose };

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

// What an input method, another program or another system writes for the same signs: Hangul in
// single letters, full-width digits and marks, blanks of any kind.
QString inPlainSigns(const QString& typed)
{
    constexpr char16_t kFirstFullWidth = 0xFF01;
    constexpr char16_t kLastFullWidth = 0xFF5E;
    constexpr char16_t kToAscii = 0xFEE0;
    QString text = typed.normalized(QString::NormalizationForm_C);
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (character.isSpace())
            character = u' ';
        else if (code >= kFirstFullWidth && code <= kLastFullWidth)
            character = QChar(char16_t(code - kToAscii));
    }
    return text;
}

// `hasShortLetter` tells that "요1 " and the like stood there.
QString withLettersOfJohn(QString text, bool& hasShortLetter)
{
    for (const Replacement& row : kLettersOfJohn) {
        const qsizetype before = text.size();
        text.replace(row.written.toString(), row.meant.toString(), Qt::CaseInsensitive);
        hasShortLetter = hasShortLetter || (row.written.endsWith(u' ') && text.size() != before);
    }
    return text;
}

int bookOfFullName(QStringView name)
{
    for (int book = 0; book < kBookCount; ++book)
        if (bookName(book) == name)
            return book;
    return -1;
}

int findBook(QStringView name, Reading reading)
{
    if (reading == Reading::Exact)
        return name.size() <= kLongestAbbreviation ? BibleCode::GetBookNum(name)
                                                   : bookOfFullName(name);
    const QString joined = name.toString().remove(u' ');
    const int book = BibleCode::GetBookNum(joined);
    return book >= 0 ? book : bookOfFullName(joined);
}

// Digits alone: Val would read a place out of "1.5", "1E1" and "1 2" that nobody has meant.
std::optional<int> chapterNumber(QStringView text)
{
    const QStringView number = Trim(text);
    if (!std::all_of(number.cbegin(), number.cend(), isDigit))
        return std::nullopt;
    return std::max(0, ValInt(number));
}

// "16", "16절", and of a range or a list its first verse.
std::optional<int> verseNumber(QStringView text)
{
    static constexpr QStringView kRangeSigns = u"-~\u2010\u2011\u2012\u2013\u2014\u223C\u301C,;";
    const QStringView trimmed = Trim(text);
    const QStringView number =
        trimmed.first(firstPosition(trimmed, [](QChar c) { return !isDigit(c); }));
    QStringView rest = Trim(trimmed.mid(number.size()));
    if (rest.startsWith(u'절'))
        rest = Trim(rest.mid(1));
    // Words behind a number don't change it; digits there would make it another one.
    const bool hasDigits = std::any_of(rest.cbegin(), rest.cend(), isDigit);
    const bool isRange = !number.isEmpty() && !rest.isEmpty() && kRangeSigns.contains(rest.front());
    if (!rest.isEmpty() && (hasDigits || number.isEmpty()) && !isRange)
        return std::nullopt;
    return std::max(0, ValInt(number));
}

// A book of one chapter is cited by the verse alone: "유 3".
std::optional<TypedReference> verseOfOnlyChapter(int book, QStringView numbers)
{
    if (numbers.isEmpty() || book < 0 || chapterCount(book) != 1)
        return std::nullopt;
    const auto verse = verseNumber(numbers);
    if (!verse)
        return std::nullopt;
    return TypedReference{book, 1, *verse, {}};
}

// Leaves `reference` of the answer to the caller.
std::optional<TypedReference> read(const QString& text, Reading reading)
{
    bool hasShortLetter = false;
    const QString named = withLettersOfJohn(text, hasShortLetter);
    const QStringView whole(named);
    const qsizetype numbersAt =
        firstPosition(whole, [](QChar c) { return isDigit(c) || isSeparator(c); });
    const QStringView numbers = whole.mid(numbersAt);
    const int book = findBook(Trim(whole.first(numbersAt)), reading);
    const bool inPsalms = reading == Reading::Loose && book == kPsalms;
    const qsizetype markAt = firstPosition(numbers, [inPsalms](QChar c) {
        return isSeparator(c) || c == u'장' || (inPsalms && c == u'편');
    });
    // "요3 16" may as well mean the Gospel.
    if (markAt == numbers.size())
        return reading == Reading::Loose && !hasShortLetter ? verseOfOnlyChapter(book, numbers)
                                                            : std::nullopt;
    const auto chapter = chapterNumber(numbers.first(markAt));
    const QStringView verseText = numbers.mid(markAt + 1);
    const auto verse = verseText.isEmpty() ? 1 : verseNumber(verseText);
    if (book < 0 || !chapter || !verse)
        return std::nullopt;
    return TypedReference{book, *chapter, *verse, verseText.isEmpty() ? u"1"_s : QString()};
}

} // namespace

std::optional<TypedReference> parseTypedReference(const QString& reference)
{
    const QString text = inPlainSigns(reference);
    std::optional<TypedReference> result = read(text, Reading::Exact);
    if (!result)
        result = read(text, Reading::Loose);
    if (result)
        result->reference.prepend(reference);
    return result;
}

} // namespace lumen
