// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_table_filler.h"

#include <QTextTable>

#include <algorithm>
#include <cstdlib>

namespace lumen {
namespace {

// Edges that lie nearer to each other are one; programs round each row for itself. Twips.
constexpr int kSameEdge = 30;
constexpr int kCellPadding = 60; // twips
// No page has more columns; a damaged text may tell of thousands.
constexpr std::size_t kMostColumns = 64;

} // namespace

int RtfTableFiller::columnOf(int edge) const
{
    const auto near =
        std::ranges::min_element(m_edges, {}, [edge](int known) { return std::abs(known - edge); });
    return static_cast<int>(near - m_edges.begin());
}

QTextTable* RtfTableFiller::makeTable(QTextCursor& cursor, int firstRow, int lastRow)
{
    m_edges.clear();
    m_left = m_content.rows[static_cast<std::size_t>(firstRow)].left;
    std::size_t mostCells = 1;
    bool bordered = false;
    for (int r = firstRow; r <= lastRow; ++r) {
        const RtfRow& row = m_content.rows[static_cast<std::size_t>(r)];
        mostCells = std::max(mostCells, row.cells.size());
        for (const RtfCell& cell : row.cells) {
            m_edges.push_back(cell.right);
            bordered = bordered || cell.bordered;
        }
    }
    std::ranges::sort(m_edges);
    const auto same = [](int a, int b) { return b - a < kSameEdge; };
    m_edges.erase(std::unique(m_edges.begin(), m_edges.end(), same), m_edges.end());
    if (m_edges.size() > kMostColumns)
        m_edges.resize(kMostColumns);
    // Cells without a width of their own would fall into one column.
    while (m_edges.size() < std::min(mostCells, kMostColumns))
        m_edges.push_back((m_edges.empty() ? m_left : m_edges.back()) + kSameEdge);

    QTextTableFormat format;
    format.setBorder(bordered ? 1 : 0);
    format.setBorderStyle(bordered ? QTextFrameFormat::BorderStyle_Solid
                                   : QTextFrameFormat::BorderStyle_None);
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(kCellPadding * m_pixelsPerTwip);
    QList<QTextLength> widths;
    int left = m_left;
    for (const int edge : m_edges) {
        widths << QTextLength(QTextLength::FixedLength,
                              std::max(edge - left, kSameEdge) * m_pixelsPerTwip);
        left = edge;
    }
    format.setColumnWidthConstraints(widths);
    return cursor.insertTable(lastRow - firstRow + 1, static_cast<int>(m_edges.size()), format);
}

std::size_t RtfTableFiller::fill(QTextCursor& cursor, std::size_t first,
                                 const FillParagraph& fillParagraph)
{
    const auto& paragraphs = m_content.paragraphs;
    std::size_t end = first;
    while (end < paragraphs.size() && paragraphs[end].row >= 0)
        ++end;
    const int firstRow = paragraphs[first].row;
    QTextTable* const table = makeTable(cursor, firstRow, paragraphs[end - 1].row);
    const int columns = table->columns();
    int row = -1;
    int column = 0;
    std::size_t cell = 0;
    bool isFirst = true;
    QTextCursor inside = cursor;
    for (std::size_t i = first; i < end; ++i) {
        if (paragraphs[i].row != row) {
            row = paragraphs[i].row;
            column = 0;
            cell = 0;
            isFirst = true;
        }
        const int line = row - firstRow;
        const RtfRow& told = m_content.rows[static_cast<std::size_t>(row)];
        const int last = std::clamp(columnOf(told.cells[cell].right), column, columns - 1);
        if (isFirst && column < columns) {
            if (last > column)
                table->mergeCells(line, column, 1, last - column + 1);
            if (told.cells[cell].continuesAbove && line > 0) {
                const QTextTableCell above = table->cellAt(line - 1, column);
                if (above.column() == column && above.columnSpan() == last - column + 1)
                    table->mergeCells(above.row(), column, line - above.row() + 1,
                                      above.columnSpan());
            }
        }
        inside = table->cellAt(line, std::min(column, columns - 1)).lastCursorPosition();
        // What stands behind the last column, and the text of a merged cell, is put below.
        const bool opensCell =
            isFirst && inside.block().length() == 1 &&
            inside.position() == table->cellAt(line, std::min(column, columns - 1)).firstPosition();
        const bool isSilent =
            isFirst && !opensCell && paragraphs[i].endsCell && paragraphs[i].runCount == 0;
        if (!isSilent)
            fillParagraph(inside, paragraphs[i], opensCell);
        isFirst = paragraphs[i].endsCell;
        if (paragraphs[i].endsCell) {
            column = std::min(last + 1, columns);
            ++cell;
        }
    }
    cursor = table->lastCursorPosition();
    cursor.movePosition(QTextCursor::NextBlock);
    return end;
}

} // namespace lumen
