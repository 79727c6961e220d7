// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

#include <vector>

namespace lumen {

/// A point on the earth, in degrees north and east.
struct GeoPoint
{
    double lat = 0;
    double lon = 0;
};

using GeoLine = std::vector<GeoPoint>;

/// What a map shows, in degrees.
struct GeoBox
{
    double west = 0;
    double south = 0;
    double east = 0;
    double north = 0;

    double middle() const { return (south + north) / 2; }
    bool contains(const GeoPoint& point) const;
    /// Wider by a share of its size on each side.
    GeoBox grown(double share) const;
};

/// The part of a closed line that lies within a box, closed along the edges of the box; empty when
/// none does.
GeoLine clipped(const GeoLine& ring, const GeoBox& box);

/// Equirectangular about the middle latitude of a box: a degree east is as long as the cosine of
/// that latitude makes it.
class MapProjection
{
public:
    /// The picture's margins, in pixels, hold degrees and title.
    static constexpr int kMargin = 80;
    static constexpr int kTitleHeight = 150;
    /// The long side of the land that is shown, in pixels.
    static constexpr int kLongSide = 2500;

    explicit MapProjection(const GeoBox& box);

    QPointF at(const GeoPoint& point) const;
    /// The land within the frame, in pixels.
    const QRectF& frame() const { return m_frame; }
    QSize pictureSize() const;
    double pixelsPerKilometre() const;
    const GeoBox& box() const { return m_box; }

private:
    GeoBox m_box;
    double m_perDegree = 1; ///< pixels to a degree north
    double m_shrink = 1;    ///< of a degree east
    QRectF m_frame;
};

} // namespace lumen
