// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_text.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// The analysis of one Hebrew or Aramaic word.
struct HebrewParsing
{
    QString code;           ///< of the head: "@ncfsaS---E-H-R-"
    QStringList prefixes;   ///< codes of the pieces in front of it, in their order
    int strong = 0;         ///< 0 where the source names none
    bool isComplete = true; ///< false when the source says more than a code can
};

/// Turns the morphology and the lemma of the tagged text into codes. `consonants` are the written
/// letters of the whole word, which tell two lengthened forms apart.
HebrewParsing parseHebrew(const QString& morph, const QString& lemma, const QString& consonants,
                          Reading reading);

/// The code of a paragraph mark.
QString hebrewMarkCode(bool isAramaic);

} // namespace lumen
