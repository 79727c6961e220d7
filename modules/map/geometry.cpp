// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/geometry.h"

#include <QtMath>

#include <algorithm>

namespace lumen {

namespace {

constexpr double kKilometresPerDegree = 111.32; // of latitude

double value(const GeoPoint& point, bool isLat)
{
    return isLat ? point.lat : point.lon;
}

// One edge of the box: what lies on the wrong side of it is cut off.
struct Edge
{
    bool isLat;
    double at;
    bool keepsGreater;

    bool keeps(const GeoPoint& point) const
    {
        return keepsGreater ? value(point, isLat) >= at : value(point, isLat) <= at;
    }
    GeoPoint crossing(const GeoPoint& a, const GeoPoint& b) const
    {
        const double share = (at - value(a, isLat)) / (value(b, isLat) - value(a, isLat));
        return {a.lat + share * (b.lat - a.lat), a.lon + share * (b.lon - a.lon)};
    }
};

GeoLine cut(const GeoLine& ring, const Edge& edge)
{
    GeoLine kept;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const GeoPoint& from = ring[i == 0 ? ring.size() - 1 : i - 1];
        const GeoPoint& to = ring[i];
        if (edge.keeps(from) != edge.keeps(to))
            kept.push_back(edge.crossing(from, to));
        if (edge.keeps(to))
            kept.push_back(to);
    }
    return kept;
}

} // namespace

bool GeoBox::contains(const GeoPoint& point) const
{
    return point.lat >= south && point.lat <= north && point.lon >= west && point.lon <= east;
}

GeoBox GeoBox::grown(double share) const
{
    const double wide = (east - west) * share;
    const double high = (north - south) * share;
    return {west - wide, south - high, east + wide, north + high};
}

GeoLine clipped(const GeoLine& ring, const GeoBox& box)
{
    GeoLine kept = ring;
    for (const Edge& edge : {Edge{true, box.south, true}, Edge{true, box.north, false},
                             Edge{false, box.west, true}, Edge{false, box.east, false}})
        kept = cut(kept, edge);
    return kept;
}

MapProjection::MapProjection(const GeoBox& box)
    : m_box(box), m_shrink(qCos(qDegreesToRadians(box.middle())))
{
    const double wide = (box.east - box.west) * m_shrink;
    const double high = box.north - box.south;
    m_perDegree = kLongSide / std::max(wide, high);
    m_frame = QRectF(kMargin, kTitleHeight, wide * m_perDegree, high * m_perDegree);
}

QPointF MapProjection::at(const GeoPoint& point) const
{
    return {m_frame.left() + (point.lon - m_box.west) * m_shrink * m_perDegree,
            m_frame.top() + (m_box.north - point.lat) * m_perDegree};
}

QSize MapProjection::pictureSize() const
{
    return {qCeil(m_frame.right()) + kMargin, qCeil(m_frame.bottom()) + kMargin};
}

double MapProjection::pixelsPerKilometre() const
{
    return m_perDegree / kKilometresPerDegree;
}

} // namespace lumen
