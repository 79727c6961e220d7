// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "reference/module_task.h"

namespace lumen {

/// The word analysis: for each verse a row of each kind, with a column a word. Invalid when a verse
/// has more words than columns.
Result<ModuleReport> fillWordAnalysis(OriginalCorpus& corpus, ModuleStore& store);

} // namespace lumen
