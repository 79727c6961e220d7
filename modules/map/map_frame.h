// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "map/geometry.h"

#include <QFont>
#include <QPainter>
#include <QPen>
#include <QString>

namespace lumen {

enum class TextSize { Credit, Small, Large, Title };

/// From this weight on a name is written large.
inline constexpr int kLargeWeight = 3;

/// The font that the names are written in; "" when none with Hangul is installed. Needs the
/// application of Qt Gui.
QString mapFontFamily();

QFont mapFont(TextSize size);

/// The form of a map's first, second, ... route: colour, dashes and breadth all differ.
QPen routePen(int order);

/// A curve through all points.
QPainterPath smoothPath(const QPolygonF& points);

/// A line of the legend: what is drawn with this pen.
struct LegendRow
{
    QString name;
    QPen pen;
};

/// Legend, if there is anything to tell, and scale bar, in the corner of the frame that covers the
/// fewest of `marks`. Yields the room that they take.
QRectF drawLegendBox(QPainter& painter, const MapProjection& projection,
                     const std::vector<LegendRow>& rows, const std::vector<QPointF>& marks);

/// The frame, divided by degrees or parts of them, which stand beside it.
void drawFrame(QPainter& painter, const MapProjection& projection);

/// Title, note and, in small letters, who is to be named for the data.
void writeTitle(QPainter& painter, const MapProjection& projection, const QString& title,
                const QString& note);

} // namespace lumen
