// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "map/map_tables.h"

#include <QImage>

namespace lumen {

/// A drawn map and the names that found no room on it.
struct DrawnMap
{
    QImage picture;
    QStringList leftOut;
};

/// Draws a map of the tables. `land` are outlines as of readLand.
DrawnMap drawMap(const MapTables& tables, const MapSheet& sheet, const std::vector<GeoLine>& land);

} // namespace lumen
