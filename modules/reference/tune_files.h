// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

namespace lumen {

/// Whether each tune of a table, "" for none, has its file.
bool tuneFilesAreThere(const QString& tunes, const QString& moduleFolder);

/// Writes "<number>.mid" for each tune of a table and removes those made here before of other
/// numbers. A file that the user has put there stays, which the lines for the report tell.
Result<QStringList> writeTuneFiles(const QString& tunes, const QString& moduleFolder);

} // namespace lumen
