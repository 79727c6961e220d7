// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "original/original_text.h"
#include "platform/result.h"
#include "sources/key_places.h"

#include <QHash>
#include <QString>

#include <functional>

namespace lumen {

/// Brings verses of the Hebrew Bible's numbering into the English one. Titles of Psalms, which are
/// verses of their own in Hebrew, come to stand in verse 1.
class WlcVersification
{
public:
    /// Reads the map of verses; Damaged with file and line when an entry makes no sense.
    static Result<WlcVersification> read(const QString& file);

    /// The English place of a word; words count from 1, paragraph marks left out. Five verses are
    /// divided between two places.
    VersePlace english(const VersePlace& wlc, int word) const;

private:
    QHash<QString, VersePlace> m_places;
};

/// The new place of a word by the place of its verse and its number in it, from 1.
using WordPlace = std::function<VersePlace(const VersePlace& verse, int word)>;

/// Regroups a text word by word; what comes to one place is joined in the order of the text. A
/// paragraph mark stays with the word before it. The result is in the order of the canon.
OriginalText regrouped(OriginalText text, const WordPlace& placeOf);

} // namespace lumen
