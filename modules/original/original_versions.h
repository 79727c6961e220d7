// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "sources/version_text.h"

namespace lumen {

/// How the Hebrew Bible is written out.
enum class HebrewEdition {
    Pointed,
    Consonants,
    Divided ///< consonants with "/" between the pieces of a word
};

/// A verse as it is stored: turned round as a whole, words divided by a blank or a maqaf, what is
/// read in brackets behind what is written. Paragraph marks are left out.
QString hebrewVerseText(const OriginalVerse& verse, HebrewEdition edition);

/// The Hebrew Bible as a version.
VersionResult hebrewVersion(OriginalCorpus& corpus, HebrewEdition edition);
/// The Greek text behind the King James Version.
VersionResult receivedGreekVersion(OriginalCorpus& corpus);
/// The Byzantine text out of the user's tables: chapter, verse, words with number and tag.
VersionResult byzantineVersion(const QStringList& files);

/// A Greek text of another source in the codes of its font, without accents, under the keys. Verses
/// that the keys join or divide are left alone where the source has them as the keys do.
void encodeGreek(VersionText& version);

/// True for a table of that shape: a book's name, and the three columns.
bool looksLikeByzantine(const QString& file);

} // namespace lumen
