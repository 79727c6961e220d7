// SPDX-License-Identifier: GPL-2.0-or-later
#include "palette/folded_text.h"

#include <algorithm>

namespace lumen {

namespace {

constexpr char16_t kFirstSyllable = 0xAC00;
constexpr char16_t kLastSyllable = 0xD7A3;
constexpr int kSyllablesOfInitial = 588; // 21 vowels by 28 endings
constexpr char16_t kFirstInitial = 0x1100;
constexpr char16_t kLastInitial = 0x1112;
constexpr char16_t kMaqaf = 0x05BE;
constexpr char16_t kSofPasuq = 0x05C3;

bool isSyllable(QChar c)
{
    return c >= QChar(kFirstSyllable) && c <= QChar(kLastSyllable);
}

bool isInitial(QChar c)
{
    return c >= QChar(kFirstInitial) && c <= QChar(kLastInitial);
}

// What needs small letters at most, as most verses do.
bool isPlain(QChar c)
{
    constexpr char16_t kAsciiEnd = 0x80;
    return c < QChar(kAsciiEnd) || isSyllable(c);
}

QChar initialOf(QChar c)
{
    return isSyllable(c)
               ? QChar(static_cast<char16_t>(kFirstInitial +
                                             (c.unicode() - kFirstSyllable) / kSyllablesOfInitial))
               : c;
}

QChar usualForm(QChar c)
{
    switch (c.unicode()) {
    case u'ך':
        return u'כ';
    case u'ם':
        return u'מ';
    case u'ן':
        return u'נ';
    case u'ף':
        return u'פ';
    case u'ץ':
        return u'צ';
    case u'ς':
        return u'σ';
    case kMaqaf:
        return u' ';
    default:
        return c;
    }
}

bool fits(QChar wanted, QChar there)
{
    return wanted == there || (isInitial(wanted) && initialOf(there) == wanted);
}

} // namespace

QString foldedText(const QString& text)
{
    if (std::ranges::all_of(text, isPlain))
        return text.toLower();
    QString letters;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD)) {
        const bool isMark = c.category() == QChar::Mark_NonSpacing;
        if (!isMark && c != QChar(kSofPasuq))
            letters += usualForm(c);
    }
    return letters.normalized(QString::NormalizationForm_C).toLower();
}

QString initialsOf(const QString& folded)
{
    QString initials = folded;
    std::ranges::transform(initials, initials.begin(), initialOf);
    return initials;
}

bool hasInitials(QStringView folded)
{
    return std::ranges::any_of(folded, isInitial);
}

qsizetype foldedIndexOf(QStringView text, QStringView word, qsizetype from)
{
    if (!hasInitials(word))
        return text.indexOf(word, from);
    const auto found = std::search(text.begin() + from, text.end(), word.begin(), word.end(),
                                   [](QChar there, QChar wanted) { return fits(wanted, there); });
    return found == text.end() ? -1 : found - text.begin();
}

} // namespace lumen
