// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/text_cleaning.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kPilcrow(u'\u00B6');
constexpr QChar kNoBreakSpace(u'\u00A0');
constexpr QStringView kNoBlankBefore = u",.;:?!";

bool hasJoiners(QChar::Script script)
{
    return script >= QChar::Script_Arabic && script != QChar::Script_Hangul &&
           script != QChar::Script_Han;
}

// Signs that nobody sees and that keep a word from being found: control characters, zero-width
// blanks, soft hyphens, direction marks. Joiners shape the letters of scripts that have them.
bool isUnseen(QChar c, const QString& before)
{
    switch (c.unicode()) {
    case 0x00AD:
    case 0x200B:
    case 0x200E:
    case 0x200F:
    case 0x2060:
    case 0xFEFF:
        return true;
    case 0x200C:
    case 0x200D:
        return before.isEmpty() || !hasJoiners(before.back().script());
    default:
        return c.category() == QChar::Other_Control && !c.isSpace();
    }
}

bool isBlank(QChar c)
{
    return c.isSpace() && c != kNoBreakSpace;
}

} // namespace

QString tidyText(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c == kPilcrow || isUnseen(c, result))
            continue;
        if (isBlank(c)) {
            if (!result.isEmpty() && result.back() != u' ')
                result += u' ';
            continue;
        }
        if (kNoBlankBefore.contains(c) && result.endsWith(u' '))
            result.chop(1);
        result += c;
    }
    if (result.endsWith(u' '))
        result.chop(1);
    return result;
}

std::optional<QString> textOrNothing(QStringView text)
{
    QString tidy = tidyText(text);
    return tidy.isEmpty() ? std::nullopt : std::optional<QString>(std::move(tidy));
}

bool isNoBibleText(QStringView text)
{
    static constexpr std::array<QStringView, 7> kPlaceholders{
        u"not available", u"n a",     u"verse not available", u"text not available",
        u"no text",       u"omitted", u"verse omitted"};
    // Longer ones are the words of a verse.
    constexpr qsizetype kLongest = 24;
    QString words;
    bool hasLetter = false;
    for (const QChar c : text) {
        hasLetter = hasLetter || c.isLetterOrNumber() || c.isSurrogate();
        if (hasLetter && text.size() > kLongest)
            return false;
        words += c.isLetterOrNumber() ? c.toLower() : u' ';
    }
    const QString plain = words.simplified();
    return !hasLetter || std::ranges::find(kPlaceholders, plain) != kPlaceholders.end();
}

QString divineCapitals(const QString& name)
{
    for (const QStringView ending : {QStringView(u"'s"), QStringView(u"\u2019s")})
        if (name.endsWith(ending))
            return name.chopped(ending.size()).toUpper() + ending.toString();
    return name.toUpper();
}

} // namespace lumen
