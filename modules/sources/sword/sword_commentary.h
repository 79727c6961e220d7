// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"
#include "platform/result.h"

#include <QString>

#include <vector>

namespace lumen {

/// What a commentary has at a verse of English numbering: the mark-up as it is, "" for none.
struct CommentaryEntry
{
    VersePlace verse;
    QString markup;
};

/// Reads the verse entries of a compressed SWORD commentary in the numbering of the KJV, without
/// the library. `folder` holds its files, "ot.bzv" and the like. Whether an entry's length takes
/// two or four bytes is seen from the index and not from the conf file, which is wrong for one
/// package.
Result<std::vector<CommentaryEntry>> readSwordCommentary(const QString& folder);

} // namespace lumen
