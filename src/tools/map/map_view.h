// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/map_names.h"

#include <QAbstractScrollArea>
#include <QImage>

#include <functional>
#include <optional>
#include <vector>

namespace lumen {

/// The scrolling view around a map's picture. The zoom factor is 1 where a pixel of the picture is
/// one of the screen (of the window's scale); it stays between kLeast and kMost. Points of the
/// picture are in its pixels.
///
/// Ctrl and the wheel zoom about the pointer, the keys + and - about the middle; the wheel, arrow
/// keys, Page up and down scroll (the wheel with Shift sideways); dragging moves the picture.
class MapView : public QAbstractScrollArea
{
public:
    static constexpr double kLeast = 0.1;
    static constexpr double kMost = 8;
    /// What one step of a zoom command, a key or a notch of the wheel multiplies the factor by.
    static constexpr double kStep = 1.25;

    explicit MapView(QWidget* parent = nullptr);

    /// Shows a picture from its top left corner, at the factor that holds; a fitted view fits it.
    void setPicture(const QImage& picture);
    const QImage& picture() const { return m_levels.front(); }
    /// The names that the picture itself tells of.
    const std::vector<MapName>& names() const { return m_names; }
    /// Stands in the view while there is no picture.
    void setNotice(const QString& text);

    double zoom() const { return m_zoom; }
    /// Keeps what is in the middle of the view there, or what is at `anchor` of the viewport.
    void setZoom(double factor);
    void setZoom(double factor, const QPointF& anchor);
    void enlarge() { setZoom(m_zoom * kStep); }
    void reduce() { setZoom(m_zoom / kStep); }
    /// The whole picture in view, also when the view is resized, until another factor is set.
    void setFitted(bool fitted);
    bool isFitted() const { return m_isFitted; }
    /// The picture's size at the factor.
    QSizeF virtualSize() const;

    /// Draws a ring around a point and scrolls it into the middle of the view, as far as it goes.
    void showPlace(const QPoint& at);
    std::optional<QPoint> ring() const { return m_ring; }
    /// Where a point of the picture is in the viewport.
    QPointF viewPoint(const QPointF& at) const;
    /// The name that is written, or whose mark stands, at a point of the viewport; else nullptr.
    const MapName* nameAt(const QPointF& point) const;

    /// A name or its mark was clicked.
    std::function<void(const QString& name)> onPlace;
    std::function<void()> onZoom;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QPointF origin() const;
    QPointF picturePoint(const QPointF& inView) const;
    const QImage& level(double scale);
    double fittingZoom() const;
    void applyZoom(double factor);
    void showScrollBars();
    void showPointer(const QPointF& at);
    void drawRing(QPainter& painter) const;

    std::vector<QImage> m_levels{QImage()}; ///< the picture, then each half as large as the last
    std::vector<MapName> m_names;
    QString m_notice;
    double m_zoom = 1;
    bool m_isFitted = false;
    std::optional<QPoint> m_ring;
    std::optional<QPoint> m_pressed; ///< where the left button went down, in the viewport
    QPoint m_scrolledAtPress;
    bool m_isDragged = false;
};

} // namespace lumen
