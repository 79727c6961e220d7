// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"
#include "reference/module_builder.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// The one line on a module that is shown while building.
QString outcomeLine(const ModuleOutcome& outcome);

/// The whole report: per module rows, verses without words, verses missing against the canon, what
/// was changed or looks odd, and the seconds; before it the remarks on the user's folder.
QString reportText(const std::vector<ModuleOutcome>& outcomes, const QStringList& remarks,
                   double seconds);

/// Writes the report in one step; a report that was there stays if that fails.
Result<Done> saveReport(const QString& file, const QString& text);

} // namespace lumen
