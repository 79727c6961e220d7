// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "reference/module_task.h"

namespace lumen {

/// The codes of all words of a verse as they are looked for, each with ";" behind it: of a Hebrew
/// word first those of its prefixes.
QString searchedCodes(const OriginalVerse& verse);

/// The table of the parsing search, one row a verse.
Result<ModuleReport> fillParsingSearch(OriginalCorpus& corpus, ModuleStore& store);

} // namespace lumen
