// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "reference/module_task.h"

namespace lumen {

/// The Strong's dictionaries. The part of speech of a Greek word is that of most of its forms.
Result<ModuleReport> fillHebrewStrong(OriginalCorpus& corpus, ModuleStore& store);
Result<ModuleReport> fillGreekStrong(OriginalCorpus& corpus, ModuleStore& store);

/// The Korean part of speech that a Greek code tells, with the gender of a noun.
QString greekPartOfSpeech(QStringView code);

} // namespace lumen
