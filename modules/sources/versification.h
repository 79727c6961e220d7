// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// How a version counts its verses. They differ in four chapters: 삼상30 has 30 verses in Korean
/// Bibles and 31 in English ones, 아6 14 and 13, 고후13 13 and 14, 요삼1 15 and 14.
enum class Numbering { Korean, English };

/// The verses of a chapter; 0 outside the canon. Books count from 0, chapters from 1.
int verseCount(Numbering numbering, int book, int chapter);

/// What a version lacks and has beyond its numbering.
struct CanonCheck
{
    int rows = 0;
    int withoutWords = 0;
    int missing = 0;        ///< verses of the canon that have no row, in books that have one
    int beyond = 0;         ///< rows that the canon doesn't know
    int absentBooks = 0;    ///< books without a row, as in a version of one testament
    QStringList deviations; ///< a Korean line for each book that deviates, one for those absent
};

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
