// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "recipes/recipes.h"
#include "reference/reference_task.h"

#include <QString>

#include <vector>

namespace lumen {

/// The files of the modules that aren't made of the original texts. Native paths.
struct ReferenceSources
{
    QString crossReferences;
};

/// Where they are on this machine.
ReferenceSources installedReferences(const SourceFolders& folders);

/// The modules that are no versions, whether their sources are there or not. Those of the original
/// languages read from the corpus, which must outlive them.
std::vector<ReferenceTask> referenceTasks(OriginalCorpus& corpus, const ReferenceSources& sources);

/// The name of a module that is no version as its file has it, whatever the case of `name`; "" when
/// there is none.
QString referenceFile(const QString& name);

} // namespace lumen
