// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/path_resolver.h"

#include <QString>
#include <QStringView>

namespace lumen {

/// Written to \Data and removed at each start, to see whether the folder takes anything.
inline constexpr QStringView kStoreTrial = u"\\.lumenscript.trial";

/// Takes away what a killed program has left of half-written files beside the user's files, their
/// copies and backups, and beside the settings (a native path). Files of other names stay, and all
/// that a running process is writing.
void removeUserLeftovers(const QString& appPath, const QString& settingsFile,
                         const PathResolver& paths);

} // namespace lumen
