// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "map/geometry.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <set>

namespace lumen {

/// One map: the number of its file, what stands above it and what it shows.
struct MapSheet
{
    int number = 0;
    QString title;
    QString note; ///< which part of the Bible it is for
    GeoBox box;
};

enum class PlaceKind { Town, Mountain, Site, Region, Water };

/// A name on maps. Regions and waters are written across their point, all others beside a mark.
struct MapPlace
{
    QString name;
    GeoPoint at;
    PlaceKind kind = PlaceKind::Town;
    std::map<int, int> weights; ///< by map: 3 is written large, and the heavier finds room first
};

enum class LineKind { River, Lake, Border, Wall, Route };

/// What is drawn through points: a lake is closed, a route has its form by its order on a map.
struct MapLine
{
    LineKind kind = LineKind::River;
    std::set<int> maps; ///< empty: all
    QString name;       ///< of borders and routes, for the legend
    GeoLine points;

    bool isOn(int map) const { return maps.empty() || maps.contains(map); }
};

struct MapTables
{
    std::vector<MapSheet> sheets;
    std::vector<MapPlace> places;
    std::vector<MapLine> lines;
};

/// The files of the tables in a folder, for sources.
QStringList mapTableFiles(const QString& folder);

/// "31.78,35.23" in degrees north and east.
std::optional<GeoPoint> pointOf(const QString& text);

/// Maps, places and lines out of maps.tsv, places.tsv and lines.tsv. Damaged, with the bad lines of
/// a table: a map twice or without extent, a kind or a map that isn't known, a point that is
/// neither a pair of degrees nor a place, a place outside a map that it is said to be on.
Result<MapTables> readMapTables(const QString& folder);

} // namespace lumen
