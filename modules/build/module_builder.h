// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "build/module_task.h"

#include <QString>

#include <functional>

namespace lumen {

/// Told while a module is made, with the share that is done, 0 to 1. False stops the work.
using BuildAdvance = std::function<bool(double share)>;

/// The file of a version's module in a folder.
QString moduleFile(const QString& folder, int code);

/// Makes one module, unless the one that is there is sound and was made of the same source by the
/// same rules. A text that has lost words is refused.
/// Never throws: what goes wrong stands in the outcome, and the file that was there stays.
ModuleOutcome buildModule(const ModuleTask& task, const QString& folder,
                          const BuildAdvance& advance, const BuildMode& mode = {});

} // namespace lumen
