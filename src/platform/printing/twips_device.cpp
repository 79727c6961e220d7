// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/twips_device.h"

#include <QPainterPath>

#include <algorithm>

namespace lumen {
namespace {

constexpr int kLargeSide = 1 << 24; // twips: no text is as long
constexpr int kColorBits = 24;
constexpr double kMmPerInch = 25.4;
constexpr double kLeastWidth = 5; // twips: a quarter of a point, the finest rule that prints

} // namespace

int TwipsDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
    case PdmHeight:
        return kLargeSide;
    case PdmWidthMM:
    case PdmHeightMM:
        return static_cast<int>(kLargeSide * kMmPerInch / kTwipsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return kTwipsPerInch;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    case PdmNumColors:
    case PdmDepth:
        return kColorBits;
    case PdmDevicePixelRatio:
        break;
    }
    return 1;
}

void FillRecorder::updateState(const QPaintEngineState& now)
{
    m_transform = now.transform();
    m_brush = now.brush().style() == Qt::NoBrush ? QColor() : now.brush().color();
    m_pen = now.pen().style() == Qt::NoPen ? QColor() : now.pen().color();
    m_penWidth = now.pen().widthF();
}

void FillRecorder::addFill(const QRectF& box, const QColor& color)
{
    if (color.isValid() && color.alpha() > 0)
        fills.push_back({m_transform.mapRect(box.normalized()), color});
}

void FillRecorder::drawRects(const QRectF* rects, int count)
{
    for (const QRectF& rect : std::span(rects, static_cast<std::size_t>(count))) {
        addFill(rect, m_brush);
        if (!m_pen.isValid())
            continue;
        const std::array corners{rect.topLeft(), rect.topRight(), rect.bottomRight(),
                                 rect.bottomLeft()};
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const QLineF side(corners[i], corners[(i + 1) % corners.size()]);
            drawLines(&side, 1);
        }
    }
}

void FillRecorder::drawPath(const QPainterPath& path)
{
    const QRectF box = path.boundingRect();
    addFill(box, m_brush.isValid() ? m_brush : m_pen);
}

void FillRecorder::drawLines(const QLineF* lines, int count)
{
    const double half = std::max(m_penWidth, kLeastWidth) / 2;
    for (const QLineF& line : std::span(lines, static_cast<std::size_t>(count)))
        addFill(QRectF(line.p1(), line.p2()).normalized().adjusted(-half, -half, half, half),
                m_pen);
}

void FillRecorder::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    const QPolygonF polygon(QList<QPointF>(points, points + count));
    if (mode == PolylineMode) {
        for (int i = 0; i + 1 < count; ++i) {
            const QLineF side(polygon[i], polygon[i + 1]);
            drawLines(&side, 1);
        }
        return;
    }
    addFill(polygon.boundingRect(), m_brush);
}

void FillRecorder::drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source)
{
    drawImage(target, pixmap.toImage(), source, Qt::AutoColor);
}

void FillRecorder::drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                             Qt::ImageConversionFlags)
{
    const QRect part = source.toAlignedRect();
    pictures.push_back({m_transform.mapRect(target),
                        part == image.rect() || part.isEmpty() ? image : image.copy(part)});
}

} // namespace lumen
