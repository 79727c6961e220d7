// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/flex_grid.h"

#include <QItemSelectionModel>

#include <algorithm>

namespace lumen {

QModelIndex FlexGrid::cellIndex(int row, int col)
{
    quietly([&] { m_model->sync(); });
    return m_model->index(row - FixedRows(), std::max(col, 0));
}

std::pair<int, int> FlexGrid::selectedRows() const
{
    const QItemSelection ranges = selectionModel()->selection();
    if (ranges.isEmpty())
        return {-1, -1};
    int first = ranges.first().top();
    int last = ranges.first().bottom();
    for (const QItemSelectionRange& range : ranges) {
        first = std::min(first, range.top());
        last = std::max(last, range.bottom());
    }
    return {first + FixedRows(), last + FixedRows()};
}

int FlexGrid::Row() const
{
    const auto [first, last] = selectedRows();
    return RowSel() == first ? last : first;
}

int FlexGrid::RowSel() const
{
    // The right button moves the current cell within the range, so only its ends count.
    const auto [first, last] = selectedRows();
    return currentIndex().isValid() && currentIndex().row() + FixedRows() == first ? first : last;
}

int FlexGrid::Col() const
{
    const QItemSelection ranges = selectionModel()->selection();
    if (ranges.isEmpty())
        return -1;
    return ColSel() == ranges.first().left() ? ranges.first().right() : ranges.first().left();
}

int FlexGrid::ColSel() const
{
    const QItemSelection ranges = selectionModel()->selection();
    return ranges.isEmpty() ? -1 : std::max(currentIndex().column(), ranges.first().left());
}

void FlexGrid::setRow(int row)
{
    if (m_mode == GridSelection::Cells)
        setCell(row, std::max(currentIndex().column(), 0));
    else
        select(row, row);
}

void FlexGrid::select(int row, int rowSel)
{
    const QModelIndex from = cellIndex(row, 0);
    const QModelIndex to = cellIndex(rowSel, 0);
    quietly([&] {
        if (!from.isValid() || !to.isValid()) {
            clearSelection();
            return;
        }
        const QItemSelection rows(from.row() <= to.row() ? from : to,
                                  from.row() <= to.row() ? to : from);
        selectionModel()->setCurrentIndex(to, QItemSelectionModel::NoUpdate);
        selectionModel()->select(rows,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    });
}

void FlexGrid::setCell(int row, int col)
{
    const QModelIndex cell = cellIndex(row, col);
    quietly([&] {
        selectionModel()->setCurrentIndex(cell, m_mode == GridSelection::Rows
                                                    ? QItemSelectionModel::ClearAndSelect |
                                                          QItemSelectionModel::Rows
                                                    : QItemSelectionModel::ClearAndSelect);
    });
}

void FlexGrid::setSelectionMode(GridSelection mode)
{
    m_mode = mode;
    setSelectionBehavior(mode == GridSelection::Rows ? SelectRows : SelectItems);
    QTableView::setSelectionMode(ContiguousSelection);
}

QString FlexGrid::selectionText(const ReadableText& readable) const
{
    const QItemSelection ranges = selectionModel()->selection();
    if (ranges.isEmpty())
        return {};
    const auto [first, last] = selectedRows();
    QStringList lines;
    for (int row = first; row <= last; ++row) {
        QStringList cells;
        for (int col = ranges.first().left(); col <= ranges.first().right(); ++col)
            if (!isColumnHidden(col)) {
                const QString& text = m_model->text(row, col);
                cells << (readable ? readable(text, m_model->style(row, col).family) : text);
            }
        lines << cells.join(u'\t');
    }
    return lines.join(QStringLiteral("\r\n"));
}

void FlexGrid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (!m_inCode && onSelChange)
        onSelChange();
}

} // namespace lumen
