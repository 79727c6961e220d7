// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace lumen {

/// Where the text of a cell stands.
enum class GridAlign { Inherit, Left, Center, Right };

/// The look of a cell. What is left open comes from the column, then from the grid.
struct CellStyle
{
    QString family = {};
    double points = 0;
    std::optional<bool> bold = {};
    std::optional<RgbLong> color = {};
    std::optional<RgbLong> back = {};
    GridAlign align = GridAlign::Inherit;

    friend bool operator==(const CellStyle&, const CellStyle&) = default;
};

/// Texts and looks of a FlexGrid. Rows and columns are those of the grid, the header row among
/// them; the view shows the rows from fixedRows() on.
class GridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit GridModel(QObject* parent = nullptr);

    int rows() const { return static_cast<int>(m_rows.size()); }
    int cols() const { return m_cols; }
    int fixedRows() const { return m_fixedRows; }
    void setRows(int rows);
    void setCols(int cols);
    void setFixedRows(int rows);
    int fixedCols() const { return m_fixedCols; }
    /// 1: the texts of column 0 are the labels of the rows; 0: it is a column like all others.
    void setFixedCols(int cols);
    void removeGridRow(int row);
    void clear();

    const QString& text(int row, int col) const;
    void setText(int row, int col, const QString& text);
    void setColStyle(int col, const CellStyle& style);
    void setCellStyle(int row, int col, const CellStyle& style);
    void setHeaderStyle(const CellStyle& style);
    /// Cell, then column, then grid; complete but for the colours.
    CellStyle style(int row, int col) const;
    QFont font(int row, int col) const;
    /// What a screen reader says of a cell besides its text.
    using Describe = std::function<QString(int row, int col)>;
    void setDescribe(Describe describe) { m_describe = std::move(describe); }
    void setBaseFont(const QFont& font) { m_baseFont = font; }

    /// The first column of a row's merged stretch, -1 when it has none.
    int mergedFrom(int row) const;
    void setMergedFrom(int row, int firstCol);
    bool hasMergedRows() const;

    /// While held, views are told nothing: they keep the row count they know, and texts of rows
    /// that have gone read as "". sync() brings their row count up to date.
    void setHeld(bool held);
    void sync();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    Describe m_describe;
    struct Cell
    {
        QString text;
        int style = 0; // in m_styles
    };
    struct Row
    {
        std::vector<Cell> cells;
        int mergedFrom = -1;
    };

    int internStyle(const CellStyle& style);
    void tell(int row, int col);
    void tellHeaders();
    bool holds(int row, int col) const;
    void resizeRows(int rows);

    std::vector<Row> m_rows;
    std::vector<CellStyle> m_styles{CellStyle{}};
    std::vector<CellStyle> m_colStyles;
    CellStyle m_headerStyle;
    QFont m_baseFont;
    int m_cols = 0;
    int m_fixedRows = 1;
    int m_fixedCols = 0;
    bool m_held = false;
    int m_shownRows = 0; // what views know while held, fixed rows among them
    int m_keptRows = 0;  // the first rows, which stayed throughout the hold
};

} // namespace lumen
