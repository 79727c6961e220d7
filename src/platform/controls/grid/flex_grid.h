// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/grid/grid_model.h"
#include "platform/controls/text/text_range.h"
#include "text/basic_text.h"

#include <QList>
#include <QString>
#include <QTableView>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace lumen {

class RowHeights;

/// Whether a click selects a whole row or a single cell.
enum class GridSelection { Rows, Cells };

/// The grids of the program. Row 0 is the fixed header row unless setFixedRows(0); columns count
/// from 0. Widths are twips, sizes points. Text wraps, rows are as high as their highest cell once
/// AutoSize() has run. Reading outside the grid gives "", writing outside changes nothing.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    explicit FlexGrid(QWidget* parent = nullptr);
    ~FlexGrid() override;

    int Rows() const;
    /// Rows that go lose texts and looks, rows that come are empty. setRows(1) empties the grid
    /// below its header.
    void setRows(int rows);
    int Cols() const;
    void setCols(int cols);
    int FixedRows() const;
    /// 1 (a header) or 0 (all rows alike).
    void setFixedRows(int rows);
    int FixedCols() const;
    /// 1 (column 0 holds the labels of the rows, which stay in view and can't be selected) or 0.
    void setFixedCols(int cols);
    /// Takes away all texts, looks and merged rows; rows and columns stay.
    void Clear();
    QString TextMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const QString& text);
    /// Adds a row behind the last and gives its number.
    int AddItem(const QStringList& cells);
    void RemoveItem(int row);

    /// The look of a column's cells below the header, of one cell, of the header row. What a cell's
    /// style leaves open (family "", points 0, no colour) is the column's, then the grid's.
    void setColStyle(int col, const CellStyle& style);
    void setCellStyle(int row, int col, const CellStyle& style);
    void setHeaderStyle(const CellStyle& style);
    /// The text of `firstCol` spans all columns from it to the last.
    void setMergedRow(int row, int firstCol);
    void setBackColor(RgbLong color);
    /// The ground of every other row below the header.
    void setBackColorAlternate(RgbLong color);

    /// What a screen reader says of a cell besides its text.
    void setDescription(std::function<QString(int row, int col)> describe);

    int ColWidth(int col) const;
    void setColWidth(int col, int twips);
    bool ColHidden(int col) const;
    void setColHidden(int col, bool hidden);
    /// From now on the columns from `firstCol` on share the room that those before leave, evenly,
    /// also when the grid is resized; row heights follow. -1 ends it.
    void setStretchFrom(int firstCol);
    /// The shares of the room that the user has given to stretched columns by dragging, kept for
    /// each number of columns: "2=6000,4000;3=5000,3000,2000" in parts of ten thousand. A text that
    /// is no such list leaves the columns even.
    QString StretchShares() const;
    void setStretchShares(const QString& shares);

    /// Shows each cell on one line, cut with "..." where the column is too narrow, for grids that
    /// are lists.
    void setSingleLines(bool single);
    bool SingleLines() const { return m_singleLines; }

    /// Makes every column as wide as its widest text needs without wrapping. Texts that come later
    /// don't change it.
    void FitColumns();
    /// Computes the heights of all rows, now and from then on whenever widths change or a fill
    /// under setRedraw(false) ends. A hidden grid does it when it is shown.
    void AutoSize();
    /// False holds painting, heights and merged rows back until it is true again. See RedrawHold.
    void setRedraw(bool redraw);
    bool Redraw() const { return m_redraw; }

    /// Row and Col are where the selection began (-1: none), RowSel and ColSel where it ended.
    int Row() const;
    int RowSel() const;
    int Col() const;
    int ColSel() const;
    /// Selects one row (in GridSelection::Cells the cell of the current column). No onSelChange
    /// while code selects.
    void setRow(int row);
    void select(int row, int rowSel);
    void setCell(int row, int col);
    void setSelectionMode(GridSelection mode);
    /// Scrolls as little as needed / so that the row is the topmost; a hidden grid does it when it
    /// is shown.
    void ShowRow(int row);
    void setTopRow(int row);
    int TopRow() const;
    /// Scrolls as little as needed both ways; a hidden grid does it when it is shown.
    void ShowCell(int row, int col);
    /// The row or column under a point of the viewport, -1 below the last row or outside.
    int rowAtPoint(const QPoint& point) const;
    int colAtPoint(const QPoint& point) const;

    const QString& Tag() const { return m_tag; }
    void setTag(const QString& tag) { m_tag = tag; }
    /// How a cell's text reads in other programs, when the font that draws it is none of theirs.
    using ReadableText = std::function<QString(const QString& text, const QString& family)>;
    /// The selected cells: columns parted by tabs, rows by "\r\n", hidden columns left out.
    QString selectionText(const ReadableText& readable = {}) const;

    /// Ranges of a cell that are painted as found words; the text stays as it is.
    std::function<QList<TextRange>(int row, int col, const QString& text)> highlight;

    /// A button released below the header, also over the empty ground; position of the viewport.
    std::function<void(Qt::MouseButton button, const QPoint& position)> onMouseUp;
    /// A click with the left button on a row below the header.
    std::function<void()> onClick;
    /// A double click below the header.
    std::function<void(int row, int col)> onDblClick;
    std::function<void(int key)> onKeyUp;
    std::function<void()> onEnter;
    /// The user changed the selection.
    std::function<void()> onSelChange;
    /// The copy key; without it nothing is copied.
    std::function<void()> onCopy;
    /// The context menu was asked for, by key or by the right button, then behind onMouseUp; the
    /// position is global.
    std::function<void(const QPoint& position)> onContextMenu;
    /// Column widths have changed through the user or a resize, and that has come to rest.
    std::function<void()> onResizeEnded;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void changeEvent(QEvent* event) override;

private:
    /// Runs something that changes the selection without telling it as the user's.
    template <typename Change>
    void quietly(Change change)
    {
        const bool before = std::exchange(m_inCode, true);
        change();
        m_inCode = before;
    }
    QModelIndex cellIndex(int row, int col);
    std::pair<int, int> selectedRows() const;
    void wireHeader();
    void applyMergedRows();
    void applyHeights();
    int highestCell(int row, const std::vector<int>& widths) const;
    struct ScrollTarget
    {
        int row = 0;
        int col = -1; ///< -1: whatever column is in view
        ScrollHint hint = EnsureVisible;
    };
    void scrollToCell(const ScrollTarget& target);
    void stretchColumns();
    QList<int> stretchedColumns() const;
    int stretchRoom() const;
    std::vector<int> leastWidths(const QList<int>& columns, int room) const;
    void setWidths(const QList<int>& columns, const std::vector<int>& widths);
    void columnDragged(int col);
    void columnsResized();

    GridModel* m_model;
    std::unique_ptr<RowHeights> m_heights;
    std::optional<RgbLong> m_ground;
    QTimer m_resizeTimer;
    QString m_tag;
    GridSelection m_mode = GridSelection::Rows;
    std::optional<ScrollTarget> m_scrollOnShow;
    int m_stretchFrom = -1;
    std::map<qsizetype, std::vector<int>> m_shares; // by the number of stretched columns
    bool m_redraw = true;
    bool m_singleLines = false;
    bool m_sized = false;
    bool m_inCode = false;
    bool m_fitting = false;
};

/// Holds a grid's painting back for as long as it lives, also when an exception ends the fill.
class RedrawHold
{
public:
    explicit RedrawHold(FlexGrid& grid) : m_grid(grid), m_before(grid.Redraw())
    {
        m_grid.setRedraw(false);
    }
    ~RedrawHold() { m_grid.setRedraw(m_before); }
    RedrawHold(const RedrawHold&) = delete;
    RedrawHold& operator=(const RedrawHold&) = delete;

private:
    FlexGrid& m_grid;
    bool m_before;
};

} // namespace lumen
