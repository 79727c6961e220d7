// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

namespace lumen {

/// Titles of Psalms and letters of acrostic Psalms that a source has in the text of a verse.
namespace PsalmTitles {

/// Takes the sentences that are a title in front of English Psalms into `part`, and the letters of
/// Psalm 119 ("ALEPH.", "[Aleph.]") into the heading. Adds a remark.
void english(VersionText& version);

/// The same for the Spanish text, whose Psalms begin with a word in capitals.
void spanish(VersionText& version);

} // namespace PsalmTitles

} // namespace lumen
