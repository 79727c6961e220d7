// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_text.h"
#include "original/readers/kjv_reader.h"

#include <vector>

namespace lumen {

/// How many pieces of the English text found a word.
struct GlossCount
{
    int segments = 0;
    int placed = 0;
};

/// Puts the pieces of the English Old Testament on the Hebrew words, verse by verse and number by
/// number. Both texts have the English numbering. A ketiv gets none.
GlossCount placeEnglishGlosses(OriginalText& hebrew, const std::vector<KjvVerse>& english);

/// For items at rising positions on the left and on the right, the right item of each left one, or
/// -1: as many pairs as the shorter side has, in order, with the least sum of distances.
std::vector<int> matchedInOrder(const std::vector<double>& left, const std::vector<double>& right);

} // namespace lumen
