// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "reference/module_task.h"

namespace lumen {

/// The lists by which a search goes from a word to its number, and from a number or a lemma to the
/// verses that hold it.
Result<ModuleReport> fillInvertedLists(OriginalCorpus& corpus, ModuleStore& store);

} // namespace lumen
