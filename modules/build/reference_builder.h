// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "build/module_builder.h"
#include "original/reference_task.h"

#include <QString>

namespace lumen {

/// Tells the making of a module apart, as taskStamp() does for versions.
QString referenceStamp(const ReferenceTask& task);

/// Whether a module with this stored stamp needs no making: the same rules and sources, and no
/// enrichment that it lacks. One made with an enrichment that is away today stays as it is.
bool isUpToDate(const ReferenceTask& task, const QString& stored);

/// Makes a module that is no version, unless the one that is there is sound and was made of the
/// same sources by the same rules. Never throws: what goes wrong stands in the outcome, and the
/// file that was there stays.
ModuleOutcome buildReference(const ReferenceTask& task, OriginalCorpus& corpus,
                             const QString& folder, const BuildAdvance& advance,
                             const BuildMode& mode = {});

/// Why a source is not there, "" when all are.
QString missingReferenceSource(const ReferenceTask& task);

} // namespace lumen
