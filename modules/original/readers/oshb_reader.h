// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "original/original_text.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// One written word of the tagged Hebrew text, or a paragraph mark. Text, lemma and morph are
/// parallel lists of pieces, divided by "/".
struct OshbWord
{
    QString text;  ///< Unicode, with accents
    QString lemma; ///< "c/3212", "834 a", "" for a mark
    QString morph; ///< "HC/Vqw3ms", "" for a mark
    Reading reading = Reading::Plain;
    bool isMark = false;
    bool maqaf = false;    ///< a maqaf stands behind it
    bool sofPasuq = false; ///< a sof pasuq stands behind it
};

/// A verse in the numbering of the Hebrew text. A ketiv stands in front of its qere.
struct OshbVerse
{
    VersePlace place;
    std::vector<OshbWord> words;
};

/// Reads one book of the tagged Hebrew text. Notes other than readings, accents and the inverted
/// nun are passed over. Damaged with file and line when the file can't be read to its end.
Result<std::vector<OshbVerse>> readOshbFile(const QString& file);

} // namespace lumen
