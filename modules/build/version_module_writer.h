// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

#include <QList>
#include <QString>

#include <functional>
#include <utility>

namespace lumen {

/// What stands in a version module besides its verses.
struct ModuleLabel
{
    QString tableName;
    QList<std::pair<QString, QString>> originLines;
};

/// Writes a version module: one row a verse in canon order with its keys, testament and group; the
/// words scrambled, the part and the heading plain. `advance` is called with the share of rows
/// written, 0 to 1, now and then; when it returns false nothing is left behind and the result is
/// Cancelled. Errors of the store are JetErrors.
Result<Done> writeVersionModule(const QString& file, const ModuleLabel& label,
                                const VersionText& version,
                                const std::function<bool(double)>& advance);

} // namespace lumen
