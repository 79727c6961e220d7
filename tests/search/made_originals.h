// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/original/original_query.h"
#include "support/original_modules.h"

#include <QList>
#include <QStringList>

namespace lumen {

/// Made-up Hebrew and Greek verses of a few words each, in many books. Words repeat, some forms
/// have two Strong's numbers and some codes the stems that are stored as wildcards.
QList<OriginalVerse> madeOriginals();

/// The keys that a condition alone has to find, from the words themselves.
QStringList plainMatches(const QList<OriginalVerse>& verses, OriginalLanguage language,
                         const OriginalCondition& condition);

/// The keys that a question has to find, in canon order; `earlier` are those of the result before.
QStringList plainAnswer(const QList<OriginalVerse>& verses, const OriginalQuestion& question,
                        const QStringList& earlier = {});

} // namespace lumen
