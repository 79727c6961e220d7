// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"

#include <QString>

#include <functional>

namespace lumen {

/// What became of a task.
enum class ModuleState { Built, UpToDate, SourceMissing, Failed, Interrupted };

struct ModuleOutcome
{
    QString file; ///< without ".dts"
    QString name;
    ModuleState state = ModuleState::Failed;
    QString problem; ///< why it failed or what is missing
    ModuleReport report;
    double seconds = 0;
};

/// Told while a module is made, with the share that is done, 0 to 1. False stops the work.
using BuildAdvance = std::function<bool(double share)>;

/// The file of a task's module in a folder.
QString moduleFile(const QString& folder, const ModuleTask& task);

/// Makes one module, unless the one that is there is sound and was made of the same sources by the
/// same rules. Never throws: what goes wrong stands in the outcome, and the file that was there
/// stays.
ModuleOutcome buildModule(const ModuleTask& task, const QString& folder,
                          const BuildAdvance& advance, const BuildMode& mode = {});

} // namespace lumen
