// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>

#include <map>

namespace lumen {

/// An entry of a Strong's dictionary as its source has it; "" where it has nothing.
struct StrongEntry
{
    QString word;          ///< font codes in reading order
    QString pronunciation; ///< in English spelling
    QString korean;        ///< in Hangul
    QString partOfSpeech;  ///< Korean; only the Hebrew source tells it
    QString derivation;
    QString reference; ///< to the Theological Wordbook, "4a"
    QString kjv;       ///< how the King James Version renders it
    QString meaning;
};

/// The entries of one language by number.
using StrongEntries = std::map<int, StrongEntry>;

/// `dictionary` holds the entries, `index` the references to the Theological Wordbook. Damaged with
/// file and line when one can't be read to its end.
Result<StrongEntries> readHebrewStrong(const QString& dictionary, const QString& index);
/// Numbers that no word has are left out.
Result<StrongEntries> readGreekStrong(const QString& dictionary);

} // namespace lumen
