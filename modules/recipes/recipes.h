// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "recipes/version_task.h"

#include <QString>

#include <vector>

namespace lumen {

/// Where installed sources are looked for. Native paths.
struct SourceFolders
{
    QString sword;    ///< holds "mods.d"
    QString bibledit; ///< holds "sources", "demo" and "mapping"
    QString npm;      ///< holds a folder "<package>-<version>" for each package
    QString dictd;    ///< holds dictionaries of the DICT protocol
    QString content;  ///< what was written for the modules and comes with the program
};

/// The places of this machine.
SourceFolders installedFolders();

/// Whether Vulgate and Synodal numbers are kept or turned into English ones.
enum class Renumbering { Keep, English };

/// The modules that can be made from installed packages, whether these are there or not.
std::vector<VersionTask> installedTasks(const SourceFolders& folders, Renumbering renumbering);

/// The task for a file that the user supplies; mends and conditions are those of the code. The name
/// is taken from the catalogue, that of a user slot from `name`.
VersionTask userTask(int code, const QString& name, const ModuleSource& source,
                     const SourceFolders& folders, Renumbering renumbering);

/// The Baptists' edition out of the task of the Korean text.
VersionTask baptistTask(const VersionTask& korean);

/// Why a module of this code can't be made under this name, "" when it can.
QString whyNotBuildable(int code, const QString& name);

/// The catalogue's name of a code; "" for a user slot and for a code that isn't known.
QString catalogueName(int code);

} // namespace lumen
