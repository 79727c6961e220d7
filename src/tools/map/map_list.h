// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace lumen {

class DataControl;
struct AppState;
struct Services;

inline constexpr QStringView kMapModule = u"\\data\\BibleMap.dts";

/// A map of the list; its picture is "\maps\k<number>.map" under the program.
struct MapSheetEntry
{
    QString title;
    int number = 0;
};

/// A place and the number of a map that names it.
struct MapPlaceEntry
{
    QString name;
    int number = 0;
};

/// The maps in the order of the module. Throws a JetError, also when the module is nowhere.
std::vector<MapSheetEntry> readMapSheets(DataControl& data, const Services& services,
                                         const AppState& state);
/// The places of the module that the data control has open; none in a module without that table.
std::vector<MapPlaceEntry> readMapPlaces(const DataControl& data);

/// The path of a map's picture.
QString mapFile(const AppState& state, int number);

/// The places whose names hold what was typed, blanks aside: first those of the map on show, then
/// those that begin with it, then by name. All of that map when nothing was typed.
std::vector<MapPlaceEntry> foundPlaces(const std::vector<MapPlaceEntry>& places,
                                       const QString& typed, int shownMap);

/// What a place is looked up by: its name without what tells it from others of that name,
/// "미스바(길르앗)" as "미스바".
QString placeWord(const QString& name);

} // namespace lumen
