// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_text.h"
#include "original/readers/kjv_reader.h"

#include <QStringList>

#include <vector>

namespace lumen {

/// A Greek text with what is to be said about it.
struct GreekWords
{
    OriginalText verses;
    int missing = 0;         ///< words that the source skips by their numbers
    QStringList withoutCode; ///< "막14:17 word", where the tag can't be read
};

/// The Greek words behind the English text, in their own order, with number, code and the English
/// words that render them. Numbering stays the English one.
GreekWords greekWords(const std::vector<KjvVerse>& verses);

} // namespace lumen
