// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/preview_view.h"

#include "platform/controls/twips.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace lumen {
namespace {

constexpr double kLeastZoom = 5; // percent
constexpr double kLargestZoom = 800;
constexpr double kThumbnailZoom = 15;
constexpr double kZoomStep = 1.1;
constexpr int kGap = 12; // pixels around a page
constexpr QColor kDesk(0x80, 0x80, 0x80);
constexpr QColor kGuide(0x60, 0x90, 0xD0);

} // namespace

PreviewView::PreviewView(const VSPrinter& printer, QWidget* parent)
    : QAbstractScrollArea(parent), m_printer(printer)
{
    setFocusPolicy(Qt::StrongFocus);
}

QSizeF PreviewView::pageTwips() const
{
    return {m_printer.PageWidth(), m_printer.PageHeight()};
}

double PreviewView::pixelsPerTwip(double percent) const
{
    return percent / 100 * logicalDpiX() / kTwipsPerInch;
}

double PreviewView::percentToFit(double width, double height) const
{
    const QSizeF page = pageTwips() * pixelsPerTwip(100);
    return 100 * std::min(width / page.width(), height / page.height());
}

double PreviewView::Zoom() const
{
    const double width = viewport()->width() - 2 * kGap;
    const double height = viewport()->height() - 2 * kGap;
    const auto limited = [](double percent) {
        return std::clamp(percent, kLeastZoom, kLargestZoom);
    };
    switch (m_mode) {
    case PreviewZoom::Percentage:
        return m_percent;
    case PreviewZoom::Thumbnail:
        return kThumbnailZoom;
    case PreviewZoom::TwoPages:
        return limited(percentToFit((width - kGap) / 2, height));
    case PreviewZoom::WholePage:
        return limited(percentToFit(width, height));
    case PreviewZoom::PageWidth:
    case PreviewZoom::Stretch:
        break;
    }
    const QSizeF page = pageTwips() * pixelsPerTwip(100);
    const double byWidth = 100 * width / page.width();
    // Filling leaves no desk beside the page nor below it.
    return limited(m_mode == PreviewZoom::PageWidth
                       ? byWidth
                       : std::max(byWidth, 100 * height / page.height()));
}

int PreviewView::columns() const
{
    if (m_mode == PreviewZoom::TwoPages)
        return 2;
    if (m_mode != PreviewZoom::Thumbnail)
        return 1;
    const double page = pageTwips().width() * pixelsPerTwip(Zoom()) + kGap;
    return std::max(1, static_cast<int>((viewport()->width() - kGap) / page));
}

int PreviewView::rows() const
{
    if (m_mode != PreviewZoom::Thumbnail)
        return 1;
    const double page = pageTwips().height() * pixelsPerTwip(Zoom()) + kGap;
    return std::max(1, static_cast<int>((viewport()->height() - kGap) / page));
}

int PreviewView::PreviewPages() const
{
    return columns() * rows();
}

void PreviewView::setZoomMode(PreviewZoom mode)
{
    if (mode == PreviewZoom::Percentage)
        m_percent = Zoom();
    m_mode = mode;
    updateBars();
}

void PreviewView::setZoom(double percent)
{
    m_percent = std::clamp(percent, kLeastZoom, kLargestZoom);
    m_mode = PreviewZoom::Percentage;
    updateBars();
}

void PreviewView::setPreviewPage(int page)
{
    const int shown = std::clamp(page, 1, std::max(1, m_printer.PageCount()));
    if (shown != m_page)
        verticalScrollBar()->setValue(0);
    m_page = shown;
    viewport()->update();
}

void PreviewView::setShowGuides(bool show)
{
    m_guides = show;
    viewport()->update();
}

void PreviewView::documentChanged()
{
    m_page = std::clamp(m_page, 1, std::max(1, m_printer.PageCount()));
    updateBars();
}

QSize PreviewView::contentSize() const
{
    const QSizeF page = pageTwips() * pixelsPerTwip(Zoom());
    return QSizeF(page.width() * columns() + kGap * (columns() + 1),
                  page.height() * rows() + kGap * (rows() + 1))
        .toSize();
}

void PreviewView::updateBars()
{
    const QSize content = contentSize();
    const QSize room = viewport()->size();
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setRange(0, std::max(0, content.width() - room.width()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setRange(0, std::max(0, content.height() - room.height()));
    horizontalScrollBar()->setSingleStep(room.width() / 10);
    verticalScrollBar()->setSingleStep(room.height() / 10);
    viewport()->update();
}

void PreviewView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateBars();
    if (onViewChange)
        onViewChange();
}

void PreviewView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), kDesk);
    const QSizeF page = pageTwips() * pixelsPerTwip(Zoom());
    const QSize content = contentSize();
    const double left = content.width() < viewport()->width()
                            ? (viewport()->width() - content.width()) / 2.0
                            : -horizontalScrollBar()->value();
    const double top = content.height() < viewport()->height()
                           ? (viewport()->height() - content.height()) / 2.0
                           : -verticalScrollBar()->value();
    for (int i = 0; i < PreviewPages(); ++i) {
        const int number = m_page + i;
        if (number > m_printer.PageCount())
            break;
        const QPointF corner(left + kGap + (i % columns()) * (page.width() + kGap),
                             top + kGap + (i / columns()) * (page.height() + kGap));
        drawPage(painter, number, {corner, page});
    }
}

void PreviewView::drawPage(QPainter& painter, int page, const QRectF& place) const
{
    const PrintPage& shown = m_printer.pages()[static_cast<std::size_t>(page - 1)];
    painter.save();
    painter.fillRect(place, Qt::white);
    painter.setClipRect(place.intersected(QRectF(viewport()->rect())));
    painter.translate(place.topLeft());
    const double scale = place.width() / shown.size.width();
    painter.scale(scale, scale);
    if (m_guides) {
        painter.setPen(QPen(kGuide, 0, Qt::DashLine));
        painter.drawRect(
            QRectF(m_printer.MarginLeft, m_printer.MarginTop, m_printer.bodyWidth(),
                   m_printer.PageHeight() - m_printer.MarginTop - m_printer.MarginBottom));
    }
    paintPage(painter, shown);
    painter.restore();
}

void PreviewView::wheelEvent(QWheelEvent* event)
{
    const int steps = event->angleDelta().y();
    if (steps == 0)
        return;
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        setZoom(Zoom() * (steps > 0 ? kZoomStep : 1 / kZoomStep));
        if (onViewChange)
            onViewChange();
        return;
    }
    QScrollBar& bar = *verticalScrollBar();
    const bool atEnd = steps > 0 ? bar.value() == bar.minimum() : bar.value() == bar.maximum();
    if (!atEnd) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    // Behind the end of a page comes the next one; the wheel back enters a page at its end.
    if (onStep)
        onStep(steps > 0 ? -1 : 1);
}

void PreviewView::keyPressEvent(QKeyEvent* event)
{
    QScrollBar& bar = *verticalScrollBar();
    const int key = event->key();
    if (key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
        const int step = key == Qt::Key_PageDown ? 1 : -1;
        const bool atEnd = step > 0 ? bar.value() == bar.maximum() : bar.value() == bar.minimum();
        if (!atEnd)
            bar.setValue(bar.value() + step * bar.pageStep());
        else if (onStep)
            onStep(step);
        return;
    }
    if (key == Qt::Key_Home || key == Qt::Key_End) {
        if (onStep)
            onStep(key == Qt::Key_Home ? -m_printer.PageCount() : m_printer.PageCount());
        return;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

} // namespace lumen
