// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "platform/result.h"

#include <QString>

#include <vector>

namespace lumen {

/// A Greek word that a piece of the English text renders.
struct KjvGreekWord
{
    int number = 0;      ///< of the word in its Greek verse, from 1
    int verseOffset = 0; ///< -1 and 1 for a word of the verse before and behind
    int strong = 0;
    QString text;  ///< Unicode without accents
    QString morph; ///< Robinson's tag
};

/// A piece of the English text that is tied to original words. In the Old Testament only their
/// numbers are known, in the New also the words and their places.
struct KjvSegment
{
    QString text; ///< "" for original words that the translation leaves out
    std::vector<int> strong;
    std::vector<KjvGreekWord> greek;
};

/// A verse in the English numbering. The title of a Psalm belongs to verse 1.
struct KjvVerse
{
    VersePlace place;
    std::vector<KjvSegment> segments;
};

/// Reads the tagged King James Version. Pieces of one rendering that other words divide are one
/// segment, "should … perish". Damaged with file and line when it can't be read to its end.
Result<std::vector<KjvVerse>> readKjv(const QString& file);

} // namespace lumen
