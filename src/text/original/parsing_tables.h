// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace lumen {

// The alphabet of the morphological codes: what each character means at its position. Phrases
// begin with the comma that joins them; whether a blank stands before the colon differs from table
// to table on purpose.

struct ParsingValue
{
    char16_t character = 0;
    QStringView phrase;
};

using ParsingTable = std::span<const ParsingValue>;

/// One position (1-based) of a code and the values that it may take.
struct ParsingPosition
{
    qsizetype position = 0;
    ParsingTable table;
};

/// The positions behind a part of speech, in rising order. Marker letters between the groups have
/// no table.
struct ParsingLayout
{
    char16_t partOfSpeech = 0;
    QStringView phrase;
    std::span<const ParsingPosition> positions;
};

/// First phrases of Hebrew and Aramaic; any other first character means either of them.
extern const ParsingTable kSemiticLanguages;
inline constexpr QStringView kUndecidedLanguage = u"언어: 히브리어/아람어";
inline constexpr QStringView kGreekLanguage = u"언어: 헬라어";

extern const std::span<const ParsingLayout> kSemiticLayouts;
extern const std::span<const ParsingLayout> kGreekLayouts;

} // namespace lumen
