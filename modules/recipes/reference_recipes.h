// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "original/original_corpus.h"
#include "recipes/recipes.h"
#include "reference/hymnal.h"
#include "reference/reference_task.h"

#include <QString>

#include <map>
#include <vector>

namespace lumen {

/// The files of the modules that aren't made of the original texts. Native paths.
struct ReferenceSources
{
    QString crossReferences{};
    HymnalTables hymnal{};
};

/// Where they are on this machine.
ReferenceSources installedReferences(const SourceFolders& folders);
/// Puts a user's own tables, by their names, in the place of those. Yields remarks on what is of no
/// use.
QStringList takeOwnTables(const std::map<QString, QString>& tables, ReferenceSources& sources);

/// The modules that are no versions, whether their sources are there or not. Those of the original
/// languages read from the corpus, which must outlive them.
std::vector<ReferenceTask> referenceTasks(OriginalCorpus& corpus, const ReferenceSources& sources);

/// The name of a module that is no version as its file has it, whatever the case of `name`; "" when
/// there is none.
QString referenceFile(const QString& name);

} // namespace lumen
