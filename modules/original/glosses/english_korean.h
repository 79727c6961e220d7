// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/glosses/korean_glosses.h"
#include "original/original_text.h"
#include "sources/dictionary_readers.h"

namespace lumen {

/// English words of the King James Version with the Korean words of the numbers that they render,
/// and the Korean words with the English ones. A rendering counts when it is one word besides
/// articles, pronouns and the like; of several the most frequent ones come first, at most four. The
/// texts end with a mark that tells where they are from.
std::vector<DictionaryEntry> englishKoreanEntries(const OriginalText& text,
                                                  const KoreanGlosses& glosses);

} // namespace lumen
