// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/reference_task.h"

#include <QString>

namespace lumen {

/// What the maps are made of.
struct MapSources
{
    QString tables{}; ///< a folder, as of readMapTables
    QString land{};   ///< fine outlines; where the file is missing, coarse ones of the tables serve
};

/// The list of the maps, and the places on each.
Result<ModuleReport> fillMaps(const MapSources& maps, ModuleStore& store);

/// Whether each map has its picture.
bool mapFilesAreThere(const MapSources& maps, const QString& moduleFolder);

/// Draws "maps/k<number>.map", PNG with the names on it as text, for each map and removes those
/// made here before of other numbers. A picture that the user has put there stays. Yields lines for
/// the report: pictures that stay, names that found no room. NotFound without a font that has
/// Hangul.
Result<QStringList> writeMapFiles(const MapSources& maps, const QString& moduleFolder);

} // namespace lumen
