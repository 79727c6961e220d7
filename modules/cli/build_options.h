// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"
#include "recipes/recipes.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace lumen {

/// The arguments of `lumen-modules build`, read and checked.
struct BuildOptions
{
    bool help = false;
    QString outFolder;       ///< native; the program's Data folder unless told
    QSet<int> only;          ///< codes of versions
    QSet<QString> onlyFiles; ///< modules that are no versions; all are made when both are empty
    QString sourceFolder;
    int moduleCode = 0; ///< of the one module that is made of named files, 0 for none
    QString moduleName;
    QString format;
    QStringList files;
    QString reportFile;
    bool baptist = false;
    Renumbering renumbering = Renumbering::Keep;
    int jobs = 1;
    BuildMode mode;

    bool makesAll() const { return only.isEmpty() && onlyFiles.isEmpty(); }
};

/// Invalid with a Korean text when the arguments make no sense.
Result<BuildOptions> parseBuildOptions(const QStringList& args);

/// The program's Data folder, where its modules lie.
QString defaultDataFolder();

/// The help of `lumen-modules build`.
QString buildUsage();

} // namespace lumen
