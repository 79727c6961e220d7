// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/map_names.h"
#include "map/map_tables.h"

#include <QImage>

namespace lumen {

/// A drawn map, the names on it and those that found no room.
struct DrawnMap
{
    QImage picture;
    std::vector<MapName> names;
    QStringList leftOut;
};

/// Draws a map of the tables. `land` are outlines as of readLand.
DrawnMap drawMap(const MapTables& tables, const MapSheet& sheet, const std::vector<GeoLine>& land);

} // namespace lumen
