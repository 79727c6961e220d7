// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

class RegistryStore;

/// What the search window keeps besides its place. Sizes are twips; 0 means that none is kept.
struct SearchSettings
{
    int ResultWidth = 0;   ///< the list of verses found
    int VerseHeight = 0;   ///< the verse in Korean
    int ParsingHeight = 0; ///< the grid of words
    int StrongWidth = 0;   ///< the dictionary text
    bool MarkHits = true;  ///< found words stand out in the results
};

/// Reads the values under the window's key.
SearchSettings readSearchSettings(RegistryStore& registry);
/// Writes them; sizes of 0 leave what is stored.
void saveSearchSettings(RegistryStore& registry, const SearchSettings& settings);

} // namespace lumen
