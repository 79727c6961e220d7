// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/grid_delegate.h"

#include "platform/controls/colors.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/grid/grid_layout.h"

#include <QPainter>
#include <QTextLayout>

namespace lumen {
namespace {

// Ground and text of a found word: dark on a light yellow, readable on every ground around it.
constexpr QColor kFoundGround(255, 226, 110);
constexpr QColor kFoundText(30, 20, 0);

QList<QTextLayout::FormatRange> foundWords(const QString& text, const QList<TextRange>& ranges)
{
    QTextCharFormat format;
    format.setBackground(kFoundGround);
    format.setForeground(kFoundText);
    QList<QTextLayout::FormatRange> found;
    for (const TextRange& range : ranges) {
        const TextRange shown = shownRange(text, range);
        found.append({shown.start, shown.length, format});
    }
    return found;
}

} // namespace

GridDelegate::GridDelegate(FlexGrid& grid, GridModel& model)
    : QStyledItemDelegate(&grid), m_grid(grid), m_model(model)
{
}

QColor GridDelegate::ground(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (option.state & QStyle::State_Selected)
        return option.palette.color(QPalette::Highlight);
    if (const auto own = m_model.style(index.row() + m_model.fixedRows(), index.column()).back)
        return toColor(*own);
    if (index.row() % 2 == 1 && m_alternate.isValid())
        return groundInScheme(m_alternate, QPalette::AlternateBase);
    return option.palette.color(QPalette::Base);
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    painter->fillRect(option.rect, ground(option, index));
    paintText(*painter, option, index);
    painter->restore();
}

QColor GridDelegate::textColor(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (option.state & QStyle::State_Selected)
        return option.palette.color(QPalette::HighlightedText);
    const QColor behind = ground(option, index);
    if (const auto own = m_model.style(index.row() + m_model.fixedRows(), index.column()).color)
        return textInScheme(behind, toColor(*own));
    return readableOn(behind, option.palette.color(QPalette::Text));
}

void GridDelegate::paintText(QPainter& painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    const int row = index.row() + m_model.fixedRows();
    const int col = index.column();
    const QString& text = m_model.text(row, col);
    if (text.isEmpty())
        return;
    const CellStyle look = m_model.style(row, col);
    const QFont font = m_model.font(row, col);
    const int room = option.rect.width() - 2 * kCellMarginLeft;
    const bool single = m_grid.SingleLines();
    QTextLayout layout(
        single ? QFontMetrics(font).elidedText(text, Qt::ElideRight, room) : shownText(text), font);
    if (m_grid.highlight && !single)
        layout.setFormats(foundWords(text, m_grid.highlight(row, col, text)));
    const int height = layOutCell(layout, option.rect.width(), look.align);
    painter.setPen(textColor(option, index));
    // A cell beside a longer one stands in the middle; one that is cut off begins at its top.
    const int spare = std::max(0, option.rect.height() - height);
    layout.draw(&painter,
                option.rect.topLeft() + QPoint(kCellMarginLeft, kCellMarginY + spare / 2));
}

} // namespace lumen
