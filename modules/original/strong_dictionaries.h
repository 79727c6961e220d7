// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/reference_task.h"

namespace lumen {

/// The Strong's dictionaries. The part of speech of a Greek word is that of most of its forms.
Result<ReferenceReport> fillHebrewStrong(OriginalCorpus& corpus, ModuleStore& store);
Result<ReferenceReport> fillGreekStrong(OriginalCorpus& corpus, ModuleStore& store);

/// The Korean part of speech that a Greek code tells, with the gender of a noun.
QString greekPartOfSpeech(QStringView code);

} // namespace lumen
