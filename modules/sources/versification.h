// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "check/verse_check.h"
#include "sources/version_text.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// Checks the whole version against the canon.
CanonCheck checkAgainstCanon(const VersionText& version, Numbering numbering);

/// How the Psalms of a version are numbered that is to be renumbered.
enum class PsalmNumbers { AsMapped, AsOriginal };

/// Brings a version into the English numbering by two mapping files, each with lines
/// "own = original" ("Psalms 3:1 = Psalms 3:2"), whose right sides count as the Hebrew and Greek
/// Bibles do. What is verse 0 in English, a Psalm's title, becomes the part of verse 1. Damaged
/// with file and line when a line can't be read.
Result<Done> renumberVerses(VersionText& version, const QString& ownMapping,
                            const QString& englishMapping,
                            PsalmNumbers psalms = PsalmNumbers::AsMapped);

} // namespace lumen
