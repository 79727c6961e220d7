// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_text.h"
#include "original/readers/oshb_reader.h"

#include <QString>

#include <vector>

namespace lumen {

/// A Hebrew text with what is to be said about it.
struct HebrewWords
{
    OriginalText verses;
    QString unknown;    ///< characters that have no font code and were left out
    int incomplete = 0; ///< words whose code leaves a position open that the source fills
};

/// The words of the tagged text in font codes, with number and code. A ketiv has no points.
/// Numbering stays the Hebrew one.
HebrewWords hebrewWords(const std::vector<OshbVerse>& verses);

} // namespace lumen
