// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace lumen {

// The Hebrew and Greek modules hold one ASCII code a sign, which the fonts OrvaneHeb, OrvaneHebC
// and OrvaneGrk draw. Hebrew is stored in display order: its first letter stands last.

/// Text in font codes, and the characters that have no code and were left out.
struct FontCodes
{
    QString codes;
    QString unknown;
};

/// The letters of OrvaneHebC are consonants only.
enum class HebrewForm { Pointed, Consonants };

/// Stored Hebrew (unscrambled) as Unicode in reading order, composed (NFC). Line ends keep their
/// places, each line being turned by itself; what is no code stays.
QString hebrewToUnicode(QStringView stored);
/// Unicode Hebrew in reading order as stored codes. Accents, meteg and rafe are left out, the marks
/// of a letter put in the order that the font draws: dot, dagesh, vowel, hiriq last.
FontCodes hebrewToCodes(QStringView unicode, HebrewForm form);
/// Codes of points taken out.
QString hebrewConsonants(QStringView codes);
/// Turns codes between stored and reading order, with the brackets exchanged.
QString reversedHebrew(QStringView codes);

/// Stored Greek (unscrambled) as Unicode, composed (NFC).
QString greekToUnicode(QStringView stored);
/// Unicode Greek as stored codes: the letter, then a digit for each of its marks.
FontCodes greekToCodes(QStringView unicode);

} // namespace lumen
