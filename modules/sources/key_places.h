// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"

#include <vector>

namespace lumen {

/// A verse whose words stand at two places elsewhere.
struct DividedVerse
{
    VersePlace verse;
    int lastWord = 0; ///< of the head, from 1
    VersePlace head;
    VersePlace rest;

    const VersePlace& placeOf(int word) const { return word <= lastWord ? head : rest; }
};

/// Where a word of an English verse stands under the keys: they follow the Korean text, which
/// joins two verses in 삼상30 and 고후13 and divides one in 아6 and 요삼1. Words count from 1.
VersePlace koreanPlace(const VersePlace& english, int word);
/// All places that an English verse is spread over, one or two.
std::vector<VersePlace> koreanPlaces(const VersePlace& english);

} // namespace lumen
