// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/land.h"

#include "map/map_tables.h"
#include "sources/user_table.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Arcs hold whole numbers, each the difference to the one before.
std::vector<GeoLine> arcsOf(const QJsonObject& topology)
{
    const QJsonObject transform = topology[u"transform"].toObject();
    const QJsonArray scale = transform[u"scale"].toArray();
    const QJsonArray origin = transform[u"translate"].toArray();
    std::vector<GeoLine> arcs;
    for (const auto& arc : topology[u"arcs"].toArray()) {
        GeoLine line;
        double x = 0;
        double y = 0;
        for (const auto& step : arc.toArray()) {
            x += step.toArray().at(0).toDouble();
            y += step.toArray().at(1).toDouble();
            line.push_back({y * scale.at(1).toDouble() + origin.at(1).toDouble(),
                            x * scale.at(0).toDouble() + origin.at(0).toDouble()});
        }
        arcs.push_back(std::move(line));
    }
    return arcs;
}

// A ring names its arcs in order; one that runs backwards is the complement of its number.
bool appendArc(const std::vector<GeoLine>& arcs, int number, GeoLine& ring)
{
    const int forward = number < 0 ? ~number : number;
    if (std::size_t(forward) >= arcs.size())
        return false;
    const GeoLine& arc = arcs[std::size_t(forward)];
    if (number < 0)
        ring.insert(ring.end(), arc.rbegin(), arc.rend());
    else
        ring.insert(ring.end(), arc.begin(), arc.end());
    return true;
}

bool addPolygon(const std::vector<GeoLine>& arcs, const QJsonArray& polygon,
                std::vector<GeoLine>& land)
{
    for (const auto& numbers : polygon) {
        GeoLine ring;
        for (const auto& number : numbers.toArray())
            if (!appendArc(arcs, number.toInt(), ring))
                return false;
        land.push_back(std::move(ring));
    }
    return true;
}

bool addGeometry(const std::vector<GeoLine>& arcs, const QJsonObject& geometry,
                 std::vector<GeoLine>& land)
{
    const QString type = geometry[u"type"].toString();
    if (type == u"Polygon")
        return addPolygon(arcs, geometry[u"arcs"].toArray(), land);
    const bool isCollection = type == u"GeometryCollection";
    for (const auto& part : geometry[isCollection ? u"geometries"_s : u"arcs"_s].toArray())
        if (isCollection ? !addGeometry(arcs, part.toObject(), land)
                         : !addPolygon(arcs, part.toArray(), land))
            return false;
    return true;
}

Result<std::vector<GeoLine>> readTopology(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{FailureKind::NotFound, u"해안선 파일을 읽을 수 없습니다: %1"_s.arg(path)};
    const QJsonObject topology = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonObject shape = topology[u"objects"].toObject()[u"land"].toObject();
    std::vector<GeoLine> land;
    if (!addGeometry(arcsOf(topology), shape, land) || land.empty())
        return Failure{FailureKind::Damaged, u"해안선 파일이 손상되었습니다: %1"_s.arg(path)};
    return land;
}

} // namespace

Result<std::vector<GeoLine>> readLand(const QString& file)
{
    if (file.endsWith(u".json"))
        return readTopology(file);
    const auto lines = readUserTable(file, {{u"점"_s}, 1});
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    std::vector<GeoLine> land;
    for (const TableLine& line : lines.value()) {
        GeoLine ring;
        for (const QString& text : line.cells[0].split(u' ', Qt::SkipEmptyParts)) {
            const auto point = pointOf(text);
            if (point)
                ring.push_back(*point);
            else
                faults.add(line.number, u"위도,경도가 아님: %1"_s.arg(text));
        }
        land.push_back(std::move(ring));
    }
    if (!faults.isEmpty())
        return faults.failure();
    return land;
}

} // namespace lumen
