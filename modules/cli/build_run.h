// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/build_options.h"
#include "original/original_corpus.h"
#include "reference/module_builder.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace lumen {

/// What is to be made, and what was found on the way that has no place.
struct BuildPlan
{
    /// What the modules of the original languages read from; goes after the tasks that read it.
    std::unique_ptr<OriginalCorpus> corpus;
    /// The versions in the order of their codes, then the others.
    std::vector<std::unique_ptr<const ModuleTask>> tasks;
    std::vector<ModuleOutcome> refused; ///< modules asked for that can't be made
    QStringList remarks;
    BuildMode mode;
};

/// Puts installed and supplied sources together; a supplied one goes before an installed one.
Result<BuildPlan> planBuild(const BuildOptions& options, const SourceFolders& folders);

/// Makes the modules of a plan, several at once, and shows how far it has come. The outcomes stand
/// in the order of the tasks. When the user asks to stop, what isn't finished is Interrupted.
std::vector<ModuleOutcome> runPlan(const BuildPlan& plan, const QString& outFolder, int jobs);

} // namespace lumen
