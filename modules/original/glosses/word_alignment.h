// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

namespace lumen {

/// A verse in two languages. Words are numbers from 0 on each side.
struct SentencePair
{
    std::vector<int> source;
    std::vector<int> target;
};

/// A target word as the rendering of a source word.
struct AlignedWord
{
    int target = 0;
    double probability = 0; ///< that the source word is rendered by it
    double share = 0;       ///< of its occurrences, those that the source word explains

    /// High only for words that belong to each other and to no others.
    double score() const { return probability * share; }
};

/// Finds out which words render each other, from nothing but their standing in the same verses:
/// the first of the classic word-alignment models, in which each target word comes from one source
/// word or from none. The result holds for each source word its renderings, the best score first.
std::vector<std::vector<AlignedWord>> alignWords(const std::vector<SentencePair>& pairs,
                                                 int sourceWords, int targetWords);

} // namespace lumen
