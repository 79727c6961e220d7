// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/map_painter.h"

#include "map/label_layout.h"
#include "map/map_frame.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace lumen {

namespace {

constexpr QColor kSea(206, 226, 240);
constexpr QColor kLand(247, 241, 224);
constexpr QColor kShore(92, 130, 160);
constexpr QColor kWaterName(40, 84, 140);
constexpr QColor kRegionName(122, 92, 52);
constexpr QColor kWall(90, 70, 60);
constexpr QColor kBorder(130, 80, 130);

constexpr double kHalo = 6;
constexpr double kMark = 8; // half the size of a place's mark
// How much beyond the frame the land goes on, so that its cut edges stay out of sight.
constexpr double kBeyond = 0.05;
// Arrows stand on stretches of a route that are at least so long, in pixels.
constexpr double kArrowStretch = 60;
constexpr double kArrow = 20;
constexpr double kMarkRoom = 18; // what names keep clear around a mark

// What writes a name: size and slant by what it names.
QFont fontOf(const MapPlace& place, int weight)
{
    const bool wide = place.kind == PlaceKind::Region || place.kind == PlaceKind::Water;
    QFont font = mapFont(weight >= kLargeWeight ? TextSize::Large : TextSize::Small);
    font.setBold(weight >= kLargeWeight && !wide);
    font.setItalic(place.kind == PlaceKind::Water);
    if (place.kind == PlaceKind::Region)
        font.setLetterSpacing(QFont::AbsoluteSpacing, weight >= kLargeWeight ? 12 : 5);
    return font;
}

QColor colorOf(PlaceKind kind)
{
    if (kind == PlaceKind::Region)
        return kRegionName;
    return kind == PlaceKind::Water ? kWaterName : QColor(Qt::black);
}

void drawMark(QPainter& painter, PlaceKind kind, const QPointF& at)
{
    painter.setPen(QPen(Qt::black, 2));
    painter.setBrush(kind == PlaceKind::Town ? QColor(170, 40, 30) : QColor(Qt::white));
    if (kind == PlaceKind::Town)
        painter.drawEllipse(at, kMark, kMark);
    else if (kind == PlaceKind::Site)
        painter.drawRect(QRectF(at.x() - kMark, at.y() - kMark, 2 * kMark, 2 * kMark));
    else
        painter.drawPolygon(QPolygonF({{at.x(), at.y() - 1.4 * kMark},
                                       {at.x() + 1.4 * kMark, at.y() + kMark},
                                       {at.x() - 1.4 * kMark, at.y() + kMark}}));
}

// One map on its way into a picture, from the water up to the names.
class MapPainter
{
public:
    MapPainter(const MapTables& tables, const MapSheet& sheet);

    DrawnMap draw(const std::vector<GeoLine>& land);

private:
    QPolygonF polygon(const GeoLine& line) const;
    std::vector<const MapLine*> linesOf(LineKind kind) const;
    void drawLand(const std::vector<GeoLine>& land);
    void drawWaters();
    void drawBorders();
    void drawRoutes();
    void drawArrows(const QPolygonF& route, const QColor& color);
    void drawLegend();
    void drawPlaces();
    void writeName(const MapPlace& place, int weight, const QRectF& room);

    const MapTables& m_tables;
    const MapSheet& m_sheet;
    MapProjection m_projection;
    QImage m_picture;
    QPainter m_painter;
    QList<QRectF> m_furniture; ///< what stands on the map and is not of it
    std::vector<MapName> m_names;
    QStringList m_leftOut;
};

MapPainter::MapPainter(const MapTables& tables, const MapSheet& sheet)
    : m_tables(tables), m_sheet(sheet), m_projection(sheet.box),
      m_picture(m_projection.pictureSize(), QImage::Format_RGB32), m_painter(&m_picture)
{
    m_picture.fill(Qt::white);
    m_painter.setRenderHint(QPainter::Antialiasing);
}

QPolygonF MapPainter::polygon(const GeoLine& line) const
{
    QPolygonF points;
    for (const GeoPoint& point : line)
        points << m_projection.at(point);
    return points;
}

std::vector<const MapLine*> MapPainter::linesOf(LineKind kind) const
{
    std::vector<const MapLine*> lines;
    for (const MapLine& line : m_tables.lines)
        if (line.kind == kind && line.isOn(m_sheet.number))
            lines.push_back(&line);
    return lines;
}

void MapPainter::drawLand(const std::vector<GeoLine>& land)
{
    const GeoBox beyond = m_sheet.box.grown(kBeyond);
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const GeoLine& ring : land) {
        const GeoLine seen = clipped(ring, beyond);
        if (seen.size() < 3)
            continue;
        path.addPolygon(polygon(seen));
        path.closeSubpath();
    }
    m_painter.fillRect(m_projection.frame(), kSea);
    m_painter.setPen(QPen(kShore, 3));
    m_painter.setBrush(kLand);
    m_painter.drawPath(path);
}

void MapPainter::drawWaters()
{
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(kShore, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const MapLine* river : linesOf(LineKind::River))
        m_painter.drawPath(smoothPath(polygon(river->points)));
    m_painter.setPen(QPen(kShore, 3));
    m_painter.setBrush(kSea);
    for (const MapLine* lake : linesOf(LineKind::Lake)) {
        GeoLine ring = lake->points;
        ring.push_back(ring.front());
        m_painter.drawPath(smoothPath(polygon(ring)));
    }
}

void MapPainter::drawBorders()
{
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(kWall, 9, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    for (const MapLine* wall : linesOf(LineKind::Wall))
        m_painter.drawPolyline(polygon(wall->points));
    QPen pen(kBorder, 4);
    pen.setDashPattern({6, 2, 1, 2});
    m_painter.setPen(pen);
    for (const MapLine* border : linesOf(LineKind::Border))
        m_painter.drawPolyline(polygon(border->points));
}

void MapPainter::drawArrows(const QPolygonF& route, const QColor& color)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    for (qsizetype i = 1; i < route.size(); ++i) {
        const QLineF stretch(route[i - 1], route[i]);
        if (stretch.length() < kArrowStretch)
            continue;
        m_painter.save();
        m_painter.translate(stretch.pointAt(0.5));
        m_painter.rotate(-stretch.angle());
        m_painter.drawPolygon(
            QPolygonF({{kArrow, 0}, {-kArrow / 2, kArrow * 0.7}, {-kArrow / 2, -kArrow * 0.7}}));
        m_painter.restore();
    }
}

void MapPainter::drawRoutes()
{
    int order = 0;
    for (const MapLine* route : linesOf(LineKind::Route)) {
        const QPen pen = routePen(order++);
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawPolyline(polygon(route->points));
        drawArrows(polygon(route->points), pen.color());
    }
}

void MapPainter::drawLegend()
{
    std::vector<LegendRow> rows;
    int order = 0;
    for (const MapLine* route : linesOf(LineKind::Route))
        rows.push_back({route->name, routePen(order++)});
    QPen border(kBorder, 4);
    border.setDashPattern({6, 2, 1, 2});
    for (const MapLine* line : linesOf(LineKind::Border))
        if (!line->name.isEmpty())
            rows.push_back({line->name, border});
    if (!linesOf(LineKind::Wall).empty())
        rows.push_back({linesOf(LineKind::Wall).front()->name, QPen(kWall, 9)});
    std::vector<QPointF> marks;
    for (const MapPlace& place : m_tables.places)
        if (place.weights.contains(m_sheet.number))
            marks.push_back(m_projection.at(place.at));
    m_furniture << drawLegendBox(m_painter, m_projection, rows, marks);
}

void MapPainter::writeName(const MapPlace& place, int weight, const QRectF& room)
{
    const QFont font = fontOf(place, weight);
    const QFontMetricsF metrics(font);
    QPainterPath name;
    name.addText(room.left(), room.top() + metrics.ascent(), font, place.name);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(
        QPen(QColor(255, 255, 255, 220), kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_painter.drawPath(name);
    m_painter.fillPath(name, colorOf(place.kind));
}

void MapPainter::drawPlaces()
{
    std::vector<const MapPlace*> shown;
    std::vector<LabelWish> wishes;
    std::vector<QRectF> taken(m_furniture.begin(), m_furniture.end());
    for (const MapPlace& place : m_tables.places) {
        const auto weight = place.weights.find(m_sheet.number);
        if (weight == place.weights.end())
            continue;
        const QFontMetricsF metrics(fontOf(place, weight->second));
        const QPointF at = m_projection.at(place.at);
        const bool across = place.kind == PlaceKind::Region || place.kind == PlaceKind::Water;
        shown.push_back(&place);
        wishes.push_back({at,
                          {metrics.horizontalAdvance(place.name), metrics.height()},
                          weight->second,
                          across});
        if (across)
            continue;
        taken.emplace_back(at.x() - kMarkRoom / 2, at.y() - kMarkRoom / 2, kMarkRoom, kMarkRoom);
    }
    const auto rooms = placeLabels(wishes, m_projection.frame(), taken);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (!rooms[i]) {
            m_leftOut << shown[i]->name;
            continue;
        }
        if (!wishes[i].across)
            drawMark(m_painter, shown[i]->kind, wishes[i].at);
        writeName(*shown[i], wishes[i].weight, *rooms[i]);
        m_names.push_back({shown[i]->name, wishes[i].at.toPoint(), rooms[i]->toAlignedRect()});
    }
}

DrawnMap MapPainter::draw(const std::vector<GeoLine>& land)
{
    m_painter.setClipRect(m_projection.frame());
    drawLand(land);
    drawWaters();
    drawBorders();
    drawRoutes();
    drawLegend();
    drawPlaces();
    m_painter.setClipping(false);
    drawFrame(m_painter, m_projection);
    writeTitle(m_painter, m_projection, m_sheet.title, m_sheet.note);
    m_painter.end();
    return {m_picture, m_names, m_leftOut};
}

} // namespace

DrawnMap drawMap(const MapTables& tables, const MapSheet& sheet, const std::vector<GeoLine>& land)
{
    return MapPainter(tables, sheet).draw(land);
}

} // namespace lumen
