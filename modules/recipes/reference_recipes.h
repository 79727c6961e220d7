// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "map/map_module.h"
#include "original/original_corpus.h"
#include "recipes/recipes.h"
#include "recipes/user_sources.h"
#include "reference/dictionaries.h"
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
    QString ownCrossReferences{};
    HymnalTables hymnal{};
    MapSources maps{};
    BibleDictionarySources bibleDictionary{};
    EnglishDictionarySources englishDictionary{};
    QString matthewHenry{}; ///< the folder of the SWORD module
    QString ownCommentary{};
    QStringList wesley{}; ///< JSON files, a book each
    QString ownWesley{};
};

/// Where they are on this machine.
ReferenceSources installedReferences(const SourceFolders& folders);
/// Puts a user's own files beside those or in their place. Yields remarks on what is of no use.
QStringList takeOwnFiles(const UserSources& user, ReferenceSources& sources);
/// The task of a concordance that is made of a user's table.
ReferenceTask ownConcordanceTask(int code, const QString& file);

/// The modules that are no versions, whether their sources are there or not. Those of the original
/// languages read from the corpus, which must outlive them.
std::vector<ReferenceTask> referenceTasks(OriginalCorpus& corpus, const ReferenceSources& sources);

/// The name of a module that is no version as its file has it, whatever the case of `name`; "" when
/// there is none.
QString referenceFile(const QString& name);

} // namespace lumen
