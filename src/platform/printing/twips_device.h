// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/twips.h"
#include "platform/printing/print_page.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QTransform>

#include <array>
#include <span>

namespace lumen {

/// Keeps what is painted beside text: rules, grounds and pictures. Text is left out, as what comes
/// here has lost its characters.
class FillRecorder : public QPaintEngine
{
public:
    FillRecorder() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& now) override;
    void drawRects(const QRectF* rects, int count) override;
    void drawPath(const QPainterPath& path) override;
    void drawLines(const QLineF* lines, int count) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawPixmap(const QRectF& target, const QPixmap& pixmap, const QRectF& source) override;
    void drawImage(const QRectF& target, const QImage& image, const QRectF& source,
                   Qt::ImageConversionFlags flags) override;
    void drawTextItem(const QPointF&, const QTextItem&) override {}

    std::vector<PageFill> fills;
    std::vector<PagePicture> pictures;

private:
    void addFill(const QRectF& box, const QColor& color);

    QTransform m_transform;
    QColor m_brush;
    QColor m_pen;
    double m_penWidth = 0;
};

/// A surface of which a unit is a twip: text laid out for it breaks lines as no pixels would have
/// it.
class TwipsDevice : public QPaintDevice
{
public:
    QPaintEngine* paintEngine() const override { return &m_recorder; }
    FillRecorder& recorder() { return m_recorder; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    mutable FillRecorder m_recorder;
};

} // namespace lumen
