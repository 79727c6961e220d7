// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace lumen {

class FlexGrid;
class GridModel;

/// Paints the cells of a FlexGrid: grounds, wrapped text and the found words in it.
class GridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    GridDelegate(FlexGrid& grid, GridModel& model);

    void setAlternate(const QColor& color) { m_alternate = color; }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// What a cell is painted with, by the desktop's colours of now.
    QColor ground(const QStyleOptionViewItem& option, const QModelIndex& index) const;
    QColor textColor(const QStyleOptionViewItem& option, const QModelIndex& index) const;

private:
    void paintText(QPainter& painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;

    FlexGrid& m_grid;
    GridModel& m_model;
    QColor m_alternate;
};

} // namespace lumen
