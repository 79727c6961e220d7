// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/reference_task.h"

namespace lumen {

/// The empty tables that a search of the original languages works in.
Result<ModuleReport> fillScratchTables(ModuleStore& store);

} // namespace lumen
