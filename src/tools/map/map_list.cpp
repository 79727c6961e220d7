// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/map/map_list.h"

#include "data/app_state.h"
#include "data/module_path.h"
#include "forms/module_query.h"
#include "jet/data_control.h"
#include "jet/rows/recordset.h"
#include "text/field_scramble.h"

#include <algorithm>
#include <tuple>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kPlaceTable = u"BibleMapPlace";

bool hasTable(const Database& module, QStringView name)
{
    const TableDefs tables = module.TableDefs();
    for (int i = 0; i < tables.Count(); ++i)
        if (tables(i).Name.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

// Letters may be typed as parts, and blanks where the map has none.
QString simplified(const QString& name)
{
    return name.normalized(QString::NormalizationForm_C).remove(u' ');
}

} // namespace

std::vector<MapSheetEntry> readMapSheets(DataControl& data, const Services& services,
                                         const AppState& state)
{
    Recordset& rows = askModule(data, services, state, kMapModule, u"select * from BibleMap"_s);
    std::vector<MapSheetEntry> sheets;
    for (; !rows.Eof(); rows.MoveNext())
        sheets.push_back(
            {DES::UnscrambleField(Text(rows.Fields(u"Title"))), Number(rows.Fields(u"FileNum"))});
    return sheets;
}

std::vector<MapPlaceEntry> readMapPlaces(const DataControl& data)
{
    std::vector<MapPlaceEntry> places;
    if (data.Database() == nullptr || !hasTable(*data.Database(), kPlaceTable))
        return places;
    const auto rows = data.Database()->OpenRecordset(u"select FileNum, Name from BibleMapPlace"_s);
    const QStringList numbers = rows->columnTexts(u"FileNum");
    const QStringList names = rows->columnTexts(u"Name");
    for (qsizetype i = 0; i < names.size(); ++i)
        places.push_back({DES::UnscrambleField(names[i]), numbers[i].toInt()});
    return places;
}

QString mapFile(const AppState& state, int number)
{
    return joinedPath(state.AppPath, u"\\maps\\k"_s + QString::number(number) + u".map"_s);
}

std::vector<MapPlaceEntry> foundPlaces(const std::vector<MapPlaceEntry>& places,
                                       const QString& typed, int shownMap)
{
    const QString word = simplified(typed);
    std::vector<MapPlaceEntry> found;
    std::ranges::copy_if(places, std::back_inserter(found), [&](const MapPlaceEntry& place) {
        return word.isEmpty() ? place.number == shownMap : simplified(place.name).contains(word);
    });
    std::ranges::stable_sort(found, {}, [&](const MapPlaceEntry& place) {
        return std::tuple(place.number != shownMap, !simplified(place.name).startsWith(word),
                          place.name);
    });
    return found;
}

QString placeWord(const QString& name)
{
    return name.section(u'(', 0, 0).trimmed();
}

} // namespace lumen
