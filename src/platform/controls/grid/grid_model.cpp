// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/grid_model.h"

#include "data/version_font.h"
#include "platform/controls/colors.h"

#include <algorithm>

namespace lumen {
namespace {

Qt::Alignment toAlignment(GridAlign align)
{
    switch (align) {
    case GridAlign::Center:
        return Qt::AlignCenter;
    case GridAlign::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case GridAlign::Left:
    case GridAlign::Inherit:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

// Takes from `below` what `style` leaves open.
void complete(CellStyle& style, const CellStyle& below)
{
    if (style.family.isEmpty())
        style.family = below.family;
    if (style.points <= 0)
        style.points = below.points;
    if (!style.bold)
        style.bold = below.bold;
    if (!style.color)
        style.color = below.color;
    if (!style.back)
        style.back = below.back;
    if (style.align == GridAlign::Inherit)
        style.align = below.align;
}

} // namespace

GridModel::GridModel(QObject* parent) : QAbstractTableModel(parent), m_rows(1), m_shownRows(1) {}

bool GridModel::holds(int row, int col) const
{
    return row >= 0 && row < rows() && col >= 0 && col < m_cols;
}

void GridModel::resizeRows(int rows)
{
    const std::size_t before = m_rows.size();
    m_rows.resize(static_cast<std::size_t>(rows));
    for (std::size_t row = before; row < m_rows.size(); ++row)
        m_rows[row].cells.resize(static_cast<std::size_t>(m_cols));
}

void GridModel::setRows(int count)
{
    const int before = rows();
    const int wanted = std::max(count, m_fixedRows);
    if (m_held || wanted == before) {
        resizeRows(wanted);
        m_keptRows = std::min(m_keptRows, wanted);
    } else if (wanted < before) {
        beginRemoveRows({}, wanted - m_fixedRows, before - m_fixedRows - 1);
        resizeRows(wanted);
        endRemoveRows();
    } else {
        beginInsertRows({}, before - m_fixedRows, wanted - m_fixedRows - 1);
        resizeRows(wanted);
        endInsertRows();
    }
}

void GridModel::setCols(int count)
{
    const int before = m_cols;
    const int wanted = std::max(count, 0);
    if (wanted == before)
        return;
    if (wanted > before)
        beginInsertColumns({}, before, wanted - 1);
    else
        beginRemoveColumns({}, wanted, before - 1);
    m_cols = wanted;
    m_colStyles.resize(static_cast<std::size_t>(wanted));
    for (Row& row : m_rows)
        row.cells.resize(static_cast<std::size_t>(wanted));
    if (wanted > before)
        endInsertColumns();
    else
        endRemoveColumns();
}

void GridModel::setFixedRows(int count)
{
    Q_ASSERT(!m_held && (count == 0 || count == 1));
    beginResetModel();
    m_fixedRows = count;
    resizeRows(std::max(rows(), count));
    endResetModel();
}

void GridModel::setFixedCols(int count)
{
    Q_ASSERT(count == 0 || count == 1);
    m_fixedCols = count;
    tellHeaders();
}

void GridModel::removeGridRow(int row)
{
    if (row < m_fixedRows || row >= rows())
        return;
    if (m_held) {
        m_rows.erase(m_rows.begin() + row);
        m_keptRows = std::min(m_keptRows, row);
        return;
    }
    beginRemoveRows({}, row - m_fixedRows, row - m_fixedRows);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

void GridModel::clear()
{
    for (Row& row : m_rows) {
        row = Row();
        row.cells.resize(static_cast<std::size_t>(m_cols));
    }
    std::fill(m_colStyles.begin(), m_colStyles.end(), CellStyle());
    m_styles.resize(1);
    if (m_held || m_cols == 0)
        return;
    tellHeaders();
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, m_cols - 1));
}

void GridModel::tellHeaders()
{
    if (m_cols > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_cols - 1);
    if (m_fixedCols > 0 && rowCount() > 0)
        Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

void GridModel::setHeld(bool held)
{
    if (held == m_held)
        return;
    if (held) {
        m_shownRows = m_keptRows = rows();
        m_held = true;
        return;
    }
    sync();
    m_held = false;
    tellHeaders();
}

void GridModel::sync()
{
    if (!m_held)
        return;
    const int kept = std::max(m_keptRows, m_fixedRows);
    if (kept < m_shownRows) {
        beginRemoveRows({}, kept - m_fixedRows, m_shownRows - m_fixedRows - 1);
        m_shownRows = kept;
        endRemoveRows();
    }
    if (rows() > m_shownRows) {
        beginInsertRows({}, m_shownRows - m_fixedRows, rows() - m_fixedRows - 1);
        m_shownRows = rows();
        endInsertRows();
    }
    m_keptRows = rows();
}

const QString& GridModel::text(int row, int col) const
{
    static const QString nothing;
    if (!holds(row, col))
        return nothing;
    return m_rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)].text;
}

void GridModel::setText(int row, int col, const QString& text)
{
    if (!holds(row, col))
        return;
    m_rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)].text = text;
    tell(row, col);
}

void GridModel::tell(int row, int col)
{
    if (m_held)
        return;
    if (row < m_fixedRows)
        Q_EMIT headerDataChanged(Qt::Horizontal, col, col);
    else if (col < m_fixedCols)
        Q_EMIT headerDataChanged(Qt::Vertical, row - m_fixedRows, row - m_fixedRows);
    else
        Q_EMIT dataChanged(index(row - m_fixedRows, col), index(row - m_fixedRows, col));
}

int GridModel::internStyle(const CellStyle& style)
{
    // A grid has a handful of looks: one a version, one for headings, one for marked rows.
    const auto found = std::find(m_styles.begin(), m_styles.end(), style);
    if (found != m_styles.end())
        return static_cast<int>(found - m_styles.begin());
    m_styles.push_back(style);
    return static_cast<int>(m_styles.size()) - 1;
}

void GridModel::setColStyle(int col, const CellStyle& style)
{
    if (col < 0 || col >= m_cols)
        return;
    m_colStyles[static_cast<std::size_t>(col)] = style;
    if (!m_held && rowCount() > 0)
        Q_EMIT dataChanged(index(0, col), index(rowCount() - 1, col));
}

void GridModel::setCellStyle(int row, int col, const CellStyle& style)
{
    if (!holds(row, col))
        return;
    m_rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)].style =
        internStyle(style);
    tell(row, col);
}

void GridModel::setHeaderStyle(const CellStyle& style)
{
    m_headerStyle = style;
    if (m_cols > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, m_cols - 1);
}

CellStyle GridModel::style(int row, int col) const
{
    if (!holds(row, col))
        return {};
    const Cell& cell = m_rows[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)];
    CellStyle style = m_styles[static_cast<std::size_t>(cell.style)];
    complete(style, row < m_fixedRows ? m_headerStyle : m_colStyles[static_cast<std::size_t>(col)]);
    if (style.align == GridAlign::Inherit)
        style.align = row < m_fixedRows ? GridAlign::Center : GridAlign::Left;
    return style;
}

QFont GridModel::font(int row, int col) const
{
    const CellStyle look = style(row, col);
    QFont font = m_baseFont;
    if (!look.family.isEmpty())
        font.setFamily(look.family);
    if (look.points > 0)
        font.setPointSizeF(look.points);
    if (look.bold)
        font.setBold(*look.bold);
    return font;
}

int GridModel::mergedFrom(int row) const
{
    return row >= 0 && row < rows() ? m_rows[static_cast<std::size_t>(row)].mergedFrom : -1;
}

void GridModel::setMergedFrom(int row, int firstCol)
{
    if (row >= 0 && row < rows())
        m_rows[static_cast<std::size_t>(row)].mergedFrom = firstCol < m_cols ? firstCol : -1;
}

bool GridModel::hasMergedRows() const
{
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [](const Row& row) { return row.mergedFrom >= 0; });
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return (m_held ? m_shownRows : rows()) - m_fixedRows;
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_cols;
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    const int row = index.row() + m_fixedRows;
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::AccessibleTextRole: // the codes of the Hebrew and Greek fonts would be spelled out
        return unicodeOfFont(text(row, index.column()), style(row, index.column()).family);
    case Qt::AccessibleDescriptionRole:
        return m_describe ? m_describe(row, index.column()) : QString();
    case Qt::FontRole:
        return font(row, index.column());
    case Qt::TextAlignmentRole:
        return QVariant(toAlignment(style(row, index.column()).align));
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        const bool isLabel = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
        return m_fixedCols > 0 && isLabel ? text(section + m_fixedRows, 0) : QVariant();
    }
    if (m_fixedRows == 0)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(0, section);
    case Qt::FontRole:
        return font(0, section);
    case Qt::TextAlignmentRole:
        return QVariant(toAlignment(style(0, section).align));
    case Qt::ForegroundRole:
        if (const auto color = style(0, section).color)
            return toColor(*color);
        return {};
    default:
        return {};
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

} // namespace lumen
