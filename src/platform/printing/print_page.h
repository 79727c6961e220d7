// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QImage>
#include <QRectF>
#include <QString>

#include <variant>
#include <vector>

class QPainter;

namespace lumen {

/// Letters of one font in one colour; positions are relative to the text's origin.
struct PageGlyphs
{
    QGlyphRun run;
    QColor color;
};

/// One line of text as it was laid out. The text is what was laid out, in reading order.
struct PageText
{
    QRectF box;
    QPointF origin;
    QString text;
    std::vector<PageGlyphs> glyphs;
};

/// A rule, a border or a ground.
struct PageFill
{
    QRectF box;
    QColor color;
};

struct PagePicture
{
    QRectF box;
    QImage picture;
};

using PageItem = std::variant<PageText, PageFill, PagePicture>;

/// One page as it was laid out, in twips from its upper left corner.
struct PrintPage
{
    QSizeF size;
    std::vector<PageItem> items;
};

/// The place that an item takes.
QRectF boxOf(const PageItem& item);
/// The item moved; used once it is known where a piece of text comes to stand.
PageItem movedBy(PageItem item, const QPointF& offset);

/// Paints the items alone, on whatever ground there is. The painter counts in twips.
void paintPage(QPainter& painter, const PrintPage& page);

} // namespace lumen
