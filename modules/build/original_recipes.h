// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "build/module_task.h"
#include "build/recipes.h"
#include "original/original_corpus.h"

#include <QString>

#include <vector>

namespace lumen {

/// Where the sources of the original languages are on this machine; those of the user are empty.
OriginalSources installedOriginals(const SourceFolders& folders);

/// The Hebrew and Greek versions. They read from the corpus, which must outlive them.
std::vector<ModuleTask> originalVersionTasks(OriginalCorpus& corpus);

/// True for a version that is made only when it is asked for by its code.
bool isMadeOnRequest(int code);

/// The name of a module that is no version as its file has it, whatever the case of `name`; "" when
/// there is none.
QString referenceFile(const QString& name);

} // namespace lumen
