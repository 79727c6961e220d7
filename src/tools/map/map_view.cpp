// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/map/map_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lumen {

namespace {

constexpr int kLine = 40;        // pixels that an arrow key scrolls
constexpr double kNotch = 120;   // a notch of the wheel
constexpr double kMarkRoom = 12; // pixels of the view around a mark that a click may miss it by
constexpr double kRing = 16;     // pixels of the view
constexpr QColor kRingColor(190, 20, 60);

} // namespace

MapView::MapView(QWidget* parent) : QAbstractScrollArea(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setCursor(Qt::OpenHandCursor);
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()})
        bar->setSingleStep(kLine);
}

void MapView::setPicture(const QImage& picture)
{
    m_levels.assign(1, picture);
    m_names = mapNamesOf(picture.text(kMapNamesKey));
    m_ring.reset();
    if (m_isFitted)
        m_zoom = fittingZoom();
    showScrollBars();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

void MapView::setNotice(const QString& text)
{
    m_notice = text;
    setPicture({});
}

QSizeF MapView::virtualSize() const
{
    return QSizeF(picture().size()) * m_zoom;
}

void MapView::setZoom(double factor)
{
    setZoom(factor, QRectF(viewport()->rect()).center());
}

void MapView::setZoom(double factor, const QPointF& anchor)
{
    const QPointF held = picturePoint(anchor);
    m_isFitted = false;
    applyZoom(factor);
    const QPointF shift = viewPoint(held) - anchor;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(shift.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(shift.y()));
}

void MapView::setFitted(bool fitted)
{
    m_isFitted = fitted;
    applyZoom(fitted ? fittingZoom() : m_zoom);
}

void MapView::applyZoom(double factor)
{
    m_zoom = std::clamp(factor, kLeast, kMost);
    showScrollBars();
    viewport()->update();
    if (onZoom)
        onZoom();
}

double MapView::fittingZoom() const
{
    const QSize room = maximumViewportSize();
    const QSize size = picture().size();
    if (size.isEmpty())
        return m_zoom;
    return std::clamp(
        std::min(double(room.width()) / size.width(), double(room.height()) / size.height()),
        kLeast, kMost);
}

// A bar that comes or goes resizes the viewport soon after, which ends here again.
void MapView::showScrollBars()
{
    const QSizeF size = virtualSize();
    const auto show = [this](QScrollBar& bar, double length, int room) {
        // A fitted picture may be wider by the part of a pixel.
        bar.setRange(0, m_isFitted ? 0 : std::max(0, qCeil(length) - room));
        bar.setPageStep(room);
    };
    show(*horizontalScrollBar(), size.width(), viewport()->width());
    show(*verticalScrollBar(), size.height(), viewport()->height());
}

// The picture's corner in the viewport: a picture smaller than the view stands in its middle.
QPointF MapView::origin() const
{
    const QSizeF free = QSizeF(viewport()->size()) - virtualSize();
    return {free.width() > 0 ? free.width() / 2 : -double(horizontalScrollBar()->value()),
            free.height() > 0 ? free.height() / 2 : -double(verticalScrollBar()->value())};
}

QPointF MapView::viewPoint(const QPointF& at) const
{
    return origin() + at * m_zoom;
}

QPointF MapView::picturePoint(const QPointF& inView) const
{
    return (inView - origin()) / m_zoom;
}

void MapView::showPlace(const QPoint& at)
{
    m_ring = at;
    const QPointF shift = viewPoint(at) - QRectF(viewport()->rect()).center();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(shift.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(shift.y()));
    viewport()->update();
}

const MapName* MapView::nameAt(const QPointF& point) const
{
    const QPointF at = picturePoint(point);
    for (const MapName& name : m_names)
        if (QRectF(name.label).contains(at))
            return &name;
    const MapName* nearest = nullptr;
    double least = kMarkRoom / m_zoom;
    for (const MapName& name : m_names)
        if (const double distance = QLineF(at, name.at).length(); distance <= least) {
            least = distance;
            nearest = &name;
        }
    return nearest;
}

// Scaled down by far, a picture loses lines and letters unless it is halved step by step first.
const QImage& MapView::level(double scale)
{
    std::size_t wanted = 0;
    for (; scale <= 0.5; scale *= 2)
        ++wanted;
    while (m_levels.size() <= wanted && m_levels.back().width() > 1 && m_levels.back().height() > 1)
        m_levels.push_back(m_levels.back().scaled(m_levels.back().size() / 2, Qt::IgnoreAspectRatio,
                                                  Qt::SmoothTransformation));
    return m_levels[std::min(wanted, m_levels.size() - 1)];
}

void MapView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    if (picture().isNull()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(kLine, kLine, -kLine, -kLine),
                         int(Qt::AlignCenter) | Qt::TextWordWrap, m_notice);
        return;
    }
    const QRectF whole(origin(), virtualSize());
    const QRectF seen = whole.intersected(event->rect());
    const QImage& picture = level(m_zoom * devicePixelRatioF());
    const double toLevel = picture.width() / whole.width();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, toLevel * devicePixelRatioF() != 1);
    painter.drawImage(seen, picture,
                      QRectF((seen.topLeft() - whole.topLeft()) * toLevel, seen.size() * toLevel));
    drawRing(painter);
}

void MapView::drawRing(QPainter& painter) const
{
    if (!m_ring)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QPen& pen : {QPen(Qt::white, 7), QPen(kRingColor, 3)}) {
        painter.setPen(pen);
        painter.drawEllipse(viewPoint(*m_ring), kRing, kRing);
    }
}

void MapView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (m_isFitted)
        applyZoom(fittingZoom());
    else
        showScrollBars();
}

void MapView::wheelEvent(QWheelEvent* event)
{
    const QPoint delta = event->angleDelta();
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        setZoom(m_zoom * std::pow(kStep, delta.y() / kNotch), event->position());
        event->accept();
    } else if ((event->modifiers() & Qt::ShiftModifier) != 0 && delta.x() == 0) {
        QScrollBar* const bar = horizontalScrollBar();
        bar->setValue(bar->value() -
                      qRound(delta.y() / kNotch * kLine * QApplication::wheelScrollLines()));
        event->accept();
    } else
        QAbstractScrollArea::wheelEvent(event);
}

void MapView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return enlarge();
    case Qt::Key_Minus:
        return reduce();
    case Qt::Key_Home:
        horizontalScrollBar()->setValue(0);
        return verticalScrollBar()->setValue(0);
    case Qt::Key_End:
        horizontalScrollBar()->setValue(horizontalScrollBar()->maximum());
        return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    default:
        return QAbstractScrollArea::keyPressEvent(event);
    }
}

void MapView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = event->position().toPoint();
    m_scrolledAtPress = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    m_isDragged = false;
}

void MapView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressed)
        return showPointer(event->position());
    const QPoint moved = event->position().toPoint() - *m_pressed;
    if (!m_isDragged && moved.manhattanLength() < QApplication::startDragDistance())
        return;
    m_isDragged = true;
    viewport()->setCursor(Qt::ClosedHandCursor);
    horizontalScrollBar()->setValue(m_scrolledAtPress.x() - moved.x());
    verticalScrollBar()->setValue(m_scrolledAtPress.y() - moved.y());
}

void MapView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_pressed)
        return;
    const bool isClick = !m_isDragged;
    m_pressed.reset();
    showPointer(event->position());
    const MapName* const name = isClick ? nameAt(event->position()) : nullptr;
    if (name == nullptr)
        return;
    m_ring = name->at;
    viewport()->update();
    if (onPlace)
        onPlace(QString(name->name));
}

void MapView::showPointer(const QPointF& at)
{
    viewport()->setCursor(nameAt(at) ? Qt::PointingHandCursor : Qt::OpenHandCursor);
}

} // namespace lumen
