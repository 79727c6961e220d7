// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "recipes/recipes.h"
#include "recipes/version_task.h"

#include <QString>

#include <vector>

namespace lumen {

/// Where the sources of the original languages are on this machine; the Korean text, which is the
/// user's, is empty.
OriginalSources installedOriginals(const SourceFolders& folders);

/// The Hebrew and Greek versions. They read from the corpus, which must outlive them, but for the
/// Byzantine text, whose tables are the user's.
std::vector<VersionTask> originalVersionTasks(OriginalCorpus& corpus,
                                              const QStringList& byzantineFiles);

/// True for a version that is made only when it is asked for by its code.
bool isMadeOnRequest(int code);

} // namespace lumen
