// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/printing/print_page.h"

#include <QPainter>

#include <algorithm>

namespace lumen {
namespace {

void paint(QPainter& painter, const PageText& text)
{
    for (const PageGlyphs& glyphs : text.glyphs) {
        painter.setPen(glyphs.color);
        painter.drawGlyphRun(text.origin, glyphs.run);
    }
}

void paint(QPainter& painter, const PageFill& fill)
{
    // A rule finer than the dots of a screen is a dot wide there.
    const QTransform scale = painter.transform();
    QRectF box = fill.box;
    box.setWidth(std::max(box.width(), 1 / scale.m11()));
    box.setHeight(std::max(box.height(), 1 / scale.m22()));
    painter.fillRect(box, fill.color);
}

void paint(QPainter& painter, const PagePicture& picture)
{
    // The painter takes one dot of several, which breaks lines and letters of a picture that is
    // shown much smaller than it is; on paper it hardly ever is.
    const QSize shown = painter.combinedTransform().mapRect(picture.box).size().toSize();
    if (shown.width() * 2 < picture.picture.width() && !shown.isEmpty())
        painter.drawImage(picture.box, picture.picture.scaled(shown, Qt::IgnoreAspectRatio,
                                                              Qt::SmoothTransformation));
    else
        painter.drawImage(picture.box, picture.picture);
}

} // namespace

QRectF boxOf(const PageItem& item)
{
    return std::visit([](const auto& shown) { return shown.box; }, item);
}

PageItem movedBy(PageItem item, const QPointF& offset)
{
    std::visit([&offset](auto& shown) { shown.box.translate(offset); }, item);
    if (auto* const text = std::get_if<PageText>(&item))
        text->origin += offset;
    return item;
}

void paintPage(QPainter& painter, const PrintPage& page)
{
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF visible = painter.hasClipping() ? painter.clipBoundingRect() : QRectF();
    for (const PageItem& item : page.items)
        if (visible.isEmpty() || boxOf(item).intersects(visible))
            std::visit([&painter](const auto& shown) { paint(painter, shown); }, item);
}

} // namespace lumen
