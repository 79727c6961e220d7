// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/map_tables.h"

#include "sources/user_table.h"

#include <QHash>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr double kPole = 90;
constexpr double kDateLine = 180;

const QHash<QString, PlaceKind>& placeKinds()
{
    static const QHash<QString, PlaceKind> kinds{{u"성읍"_s, PlaceKind::Town},
                                                 {u"산"_s, PlaceKind::Mountain},
                                                 {u"곳"_s, PlaceKind::Site},
                                                 {u"지역"_s, PlaceKind::Region},
                                                 {u"물"_s, PlaceKind::Water}};
    return kinds;
}

const QHash<QString, LineKind>& lineKinds()
{
    static const QHash<QString, LineKind> kinds{{u"강"_s, LineKind::River},
                                                {u"호수"_s, LineKind::Lake},
                                                {u"경계"_s, LineKind::Border},
                                                {u"성벽"_s, LineKind::Wall},
                                                {u"길"_s, LineKind::Route}};
    return kinds;
}

// Reads the tables one after another, as lines name places and both name maps.
class TableReader
{
public:
    explicit TableReader(const QString& folder) : m_folder(folder) {}

    Result<MapTables> read();

private:
    using ReadLine = void (TableReader::*)(const TableLine& line, TableFaults& faults);

    Result<Done> readTable(const QString& name, const TableForm& form, ReadLine take);
    void readSheet(const TableLine& line, TableFaults& faults);
    void readPlace(const TableLine& line, TableFaults& faults);
    void readLine(const TableLine& line, TableFaults& faults);
    const MapSheet* sheet(int number) const;
    std::optional<GeoPoint> placeOrPoint(const QString& text, const std::set<int>& maps) const;

    QString m_folder;
    MapTables m_tables;
};

Result<Done> TableReader::readTable(const QString& name, const TableForm& form, ReadLine take)
{
    const QString file = m_folder + u'/' + name;
    const auto lines = readUserTable(file, form);
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    for (const TableLine& line : lines.value())
        (this->*take)(line, faults);
    if (!faults.isEmpty())
        return faults.failure();
    return Done{};
}

const MapSheet* TableReader::sheet(int number) const
{
    const auto found = std::ranges::find_if(
        m_tables.sheets, [number](const MapSheet& one) { return one.number == number; });
    return found == m_tables.sheets.end() ? nullptr : &*found;
}

void TableReader::readSheet(const TableLine& line, TableFaults& faults)
{
    enum { Number, Title, Note, SouthWest, NorthEast };
    MapSheet one{line.cells[Number].toInt(), line.cells[Title], line.cells[Note], {}};
    const auto low = pointOf(line.cells[SouthWest]);
    const auto high = pointOf(line.cells[NorthEast]);
    if (one.number < 1 || sheet(one.number))
        faults.add(line.number,
                   u"지도 번호가 맞지 않거나 앞에도 있음: %1"_s.arg(line.cells[Number]));
    if (!low || !high || low->lat >= high->lat || low->lon >= high->lon)
        return faults.add(line.number, u"지도의 남서쪽과 북동쪽 모서리가 맞지 않음"_s);
    one.box = {low->lon, low->lat, high->lon, high->lat};
    m_tables.sheets.push_back(one);
}

void TableReader::readPlace(const TableLine& line, TableFaults& faults)
{
    enum { Name, Position, Kind, Maps };
    const auto point = pointOf(line.cells[Position]);
    if (!point || !placeKinds().contains(line.cells[Kind]))
        return faults.add(line.number, u"자리나 종류가 맞지 않음: %1"_s.arg(line.cells[Name]));
    MapPlace place{line.cells[Name], *point, placeKinds()[line.cells[Kind]], {}};
    for (const QString& entry : line.cells[Maps].split(u' ', Qt::SkipEmptyParts)) {
        const int map = entry.section(u':', 0, 0).toInt();
        const int weight = entry.section(u':', 1).toInt();
        const MapSheet* shown = sheet(map);
        if (!shown || weight < 1)
            faults.add(line.number, u"지도 번호나 무게가 맞지 않음: %1"_s.arg(entry));
        else if (!shown->box.contains(place.at))
            faults.add(line.number, u"%1번 지도의 밖에 있음: %2"_s.arg(map).arg(place.name));
        place.weights[map] = weight;
    }
    m_tables.places.push_back(place);
}

// Of places of one name that which stands on a map of the line goes first.
std::optional<GeoPoint> TableReader::placeOrPoint(const QString& text,
                                                  const std::set<int>& maps) const
{
    if (const auto point = pointOf(text))
        return point;
    const QString name = QString(text).replace(u'_', u' ');
    std::optional<GeoPoint> elsewhere;
    for (const MapPlace& place : m_tables.places) {
        if (place.name != name)
            continue;
        if (std::ranges::any_of(maps, [&place](int map) { return place.weights.contains(map); }))
            return place.at;
        elsewhere = elsewhere.value_or(place.at);
    }
    return elsewhere;
}

void TableReader::readLine(const TableLine& line, TableFaults& faults)
{
    enum { Kind, Maps, Name, Points };
    if (!lineKinds().contains(line.cells[Kind]))
        return faults.add(line.number, u"종류가 맞지 않음: %1"_s.arg(line.cells[Kind]));
    MapLine one{lineKinds()[line.cells[Kind]], {}, line.cells[Name], {}};
    for (const QString& map : line.cells[Maps].split(u' ', Qt::SkipEmptyParts)) {
        if (map == u"*")
            continue;
        if (!sheet(map.toInt()))
            faults.add(line.number, u"없는 지도: %1"_s.arg(map));
        one.maps.insert(map.toInt());
    }
    for (const QString& text : line.cells[Points].split(u' ', Qt::SkipEmptyParts)) {
        if (const auto point = placeOrPoint(text, one.maps))
            one.points.push_back(*point);
        else
            faults.add(line.number, u"위도,경도도 지명도 아님: %1"_s.arg(text));
    }
    if (one.points.size() < 2)
        faults.add(line.number, u"점이 둘보다 적음"_s);
    m_tables.lines.push_back(std::move(one));
}

Result<MapTables> TableReader::read()
{
    const struct
    {
        QString file;
        TableForm form;
        ReadLine readLine;
    } tables[] = {
        {u"maps.tsv"_s,
         {{u"번호"_s, u"제목"_s, u"본문"_s, u"남서쪽"_s, u"북동쪽"_s}, 5},
         &TableReader::readSheet},
        {u"places.tsv"_s,
         {{u"이름"_s, u"자리"_s, u"종류"_s, u"지도:무게"_s}, 4},
         &TableReader::readPlace},
        {u"lines.tsv"_s, {{u"종류"_s, u"지도"_s, u"이름"_s, u"점"_s}, 4}, &TableReader::readLine},
    };
    for (const auto& table : tables)
        if (const auto done = readTable(table.file, table.form, table.readLine); !done)
            return done.failure();
    return std::move(m_tables);
}

} // namespace

QStringList mapTableFiles(const QString& folder)
{
    return {folder + u"/maps.tsv"_s, folder + u"/places.tsv"_s, folder + u"/lines.tsv"_s,
            folder + u"/coast.tsv"_s};
}

std::optional<GeoPoint> pointOf(const QString& text)
{
    const QStringList parts = text.split(u',');
    bool isLat = false;
    bool isLon = false;
    const double lat = parts.first().toDouble(&isLat);
    const double lon = parts.last().toDouble(&isLon);
    if (parts.size() != 2 || !isLat || !isLon || qAbs(lat) > kPole || qAbs(lon) > kDateLine)
        return std::nullopt;
    return GeoPoint{lat, lon};
}

Result<MapTables> readMapTables(const QString& folder)
{
    return TableReader(folder).read();
}

} // namespace lumen
