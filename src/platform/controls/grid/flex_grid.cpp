// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/flex_grid.h"

#include "platform/controls/colors.h"
#include "platform/controls/grid/grid_delegate.h"
#include "platform/controls/grid/grid_layout.h"
#include "platform/controls/twips.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <numeric>

namespace lumen {
namespace {

// How long column widths must stand still before texts are divided anew, milliseconds.
constexpr int kResizeRest = 150;
constexpr int kLeastColumn = 24; // pixels
constexpr int kWholeShare = 10000;
constexpr QStringView kWord = u"예루살렘으로"; // no column gets narrower than such a word

/// Shares `room` out by weight; nobody gets less than his least.
std::vector<int> shareOut(int room, const std::vector<int>& weights, const std::vector<int>& least)
{
    std::vector<int> widths = least;
    int spare = room - std::accumulate(least.begin(), least.end(), 0);
    const int whole = std::max(1, std::accumulate(weights.begin(), weights.end(), 0));
    std::vector<int> wished(weights.size());
    for (std::size_t at = 0; at < weights.size(); ++at)
        wished[at] = std::max(0, static_cast<int>(qint64(room) * weights[at] / whole) - least[at]);
    const int wishes = std::max(1, std::accumulate(wished.begin(), wished.end(), 0));
    const int given = std::max(0, spare);
    for (std::size_t at = 0; at < widths.size(); ++at) {
        const int more = static_cast<int>(qint64(given) * wished[at] / wishes);
        widths[at] += more;
        spare -= more;
    }
    if (!widths.empty() && spare > 0)
        widths.back() += spare;
    return widths;
}

} // namespace

FlexGrid::FlexGrid(QWidget* parent)
    : QTableView(parent), m_model(new GridModel(this)), m_heights(std::make_unique<RowHeights>())
{
    m_model->setBaseFont(font());
    setModel(m_model);
    setItemDelegate(new GridDelegate(*this, *m_model));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(GridSelection::Rows);
    showScheme(*this);
    onSchemeChange(*this, [this] { showScheme(*this, m_ground); });
    m_resizeTimer.setParent(this);
    m_resizeTimer.setSingleShot(true);
    m_resizeTimer.setInterval(kResizeRest);
    wireHeader();
}

FlexGrid::~FlexGrid() = default;

void FlexGrid::wireHeader()
{
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setMinimumSectionSize(kLeastColumn);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int col) {
        // A drag of the user's tells every pixel; heights follow once it rests.
        if (m_fitting)
            return;
        columnDragged(col);
        m_resizeTimer.start();
    });
    connect(&m_resizeTimer, &QTimer::timeout, this, [this] {
        columnsResized();
        if (onResizeEnded)
            onResizeEnded();
    });
}

int FlexGrid::Rows() const
{
    return m_model->rows();
}

void FlexGrid::setRows(int rows)
{
    quietly([&] { m_model->setRows(rows); });
}

int FlexGrid::Cols() const
{
    return m_model->cols();
}

void FlexGrid::setCols(int cols)
{
    quietly([&] { m_model->setCols(cols); });
    stretchColumns();
}

int FlexGrid::FixedRows() const
{
    return m_model->fixedRows();
}

void FlexGrid::setFixedRows(int rows)
{
    quietly([&] { m_model->setFixedRows(rows); });
    horizontalHeader()->setVisible(rows > 0);
}

int FlexGrid::FixedCols() const
{
    return m_model->fixedCols();
}

void FlexGrid::setFixedCols(int cols)
{
    m_model->setFixedCols(cols);
    setColHidden(0, cols > 0);
    verticalHeader()->setVisible(cols > 0);
    verticalHeader()->setSectionsClickable(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

void FlexGrid::Clear()
{
    m_model->clear();
    clearSpans();
}

QString FlexGrid::TextMatrix(int row, int col) const
{
    return m_model->text(row, col);
}

void FlexGrid::setTextMatrix(int row, int col, const QString& text)
{
    m_model->setText(row, col, text);
}

int FlexGrid::AddItem(const QStringList& cells)
{
    const int row = Rows();
    setRows(row + 1);
    for (int col = 0; col < cells.size(); ++col)
        m_model->setText(row, col, cells[col]);
    return row;
}

void FlexGrid::RemoveItem(int row)
{
    quietly([&] { m_model->removeGridRow(row); });
}

void FlexGrid::setColStyle(int col, const CellStyle& style)
{
    m_model->setColStyle(col, style);
}

void FlexGrid::setCellStyle(int row, int col, const CellStyle& style)
{
    m_model->setCellStyle(row, col, style);
}

void FlexGrid::setHeaderStyle(const CellStyle& style)
{
    m_model->setHeaderStyle(style);
}

void FlexGrid::setMergedRow(int row, int firstCol)
{
    m_model->setMergedFrom(row, firstCol);
    if (m_redraw)
        applyMergedRows();
}

void FlexGrid::applyMergedRows()
{
    clearSpans();
    if (!m_model->hasMergedRows())
        return;
    for (int row = FixedRows(); row < Rows(); ++row) {
        const int from = m_model->mergedFrom(row);
        if (from >= 0 && from < Cols() - 1)
            setSpan(row - FixedRows(), from, 1, Cols() - from);
    }
}

void FlexGrid::setBackColor(RgbLong color)
{
    m_ground = color;
    showScheme(*this, m_ground);
}

void FlexGrid::setBackColorAlternate(RgbLong color)
{
    static_cast<GridDelegate*>(itemDelegate())->setAlternate(toColor(color));
    viewport()->update();
}

void FlexGrid::setDescription(std::function<QString(int row, int col)> describe)
{
    m_model->setDescribe(std::move(describe));
}

int FlexGrid::ColWidth(int col) const
{
    return toTwips(columnWidth(col));
}

void FlexGrid::setColWidth(int col, int twips)
{
    const bool before = std::exchange(m_fitting, true);
    setColumnWidth(col, toPixels(twips));
    m_fitting = before;
    stretchColumns();
    columnsResized();
}

bool FlexGrid::ColHidden(int col) const
{
    return isColumnHidden(col);
}

void FlexGrid::setColHidden(int col, bool hidden)
{
    setColumnHidden(col, hidden);
    stretchColumns();
    columnsResized();
}

void FlexGrid::setStretchFrom(int firstCol)
{
    m_stretchFrom = firstCol;
    // A bar that comes with the rows would change all widths and heights once more.
    setVerticalScrollBarPolicy(firstCol < 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOn);
    stretchColumns();
    columnsResized();
}

QList<int> FlexGrid::stretchedColumns() const
{
    QList<int> columns;
    for (int col = std::max(0, m_stretchFrom); m_stretchFrom >= 0 && col < Cols(); ++col)
        if (!isColumnHidden(col))
            columns.append(col);
    return columns;
}

int FlexGrid::stretchRoom() const
{
    int room = viewport()->width();
    for (int col = 0; col < m_stretchFrom && col < Cols(); ++col)
        if (!isColumnHidden(col))
            room -= columnWidth(col);
    return std::max(0, room);
}

std::vector<int> FlexGrid::leastWidths(const QList<int>& columns, int room) const
{
    std::vector<int> least;
    for (const int col : columns) {
        const int word = naturalCellWidth(kWord.toString(), m_model->font(FixedRows(), col));
        const int even = room / static_cast<int>(columns.size());
        least.push_back(std::max(kLeastColumn, std::min(word, even)));
    }
    return least;
}

void FlexGrid::setWidths(const QList<int>& columns, const std::vector<int>& widths)
{
    const bool before = std::exchange(m_fitting, true);
    for (qsizetype at = 0; at < columns.size(); ++at)
        setColumnWidth(columns[at], widths[static_cast<std::size_t>(at)]);
    m_fitting = before;
}

void FlexGrid::stretchColumns()
{
    const QList<int> columns = stretchedColumns();
    if (columns.isEmpty())
        return;
    const int room = stretchRoom();
    const auto dragged = m_shares.find(columns.size());
    const std::vector<int> weights = dragged != m_shares.end()
                                         ? dragged->second
                                         : std::vector<int>(std::size_t(columns.size()), 1);
    setWidths(columns, shareOut(room, weights, leastWidths(columns, room)));
}

void FlexGrid::columnDragged(int col)
{
    const QList<int> columns = stretchedColumns();
    const qsizetype at = columns.indexOf(col);
    if (at < 0)
        return;
    // The columns behind make room; those in front stay, and so does the right edge.
    const int room = stretchRoom();
    const std::vector<int> least = leastWidths(columns, room);
    std::vector<int> widths;
    int before = 0;
    for (qsizetype left = 0; left < at; ++left) {
        widths.push_back(columnWidth(columns[left]));
        before += widths.back();
    }
    const auto behind = least.begin() + at + 1;
    const int most = room - before - std::accumulate(behind, least.end(), 0);
    const int lowest = at == columns.size() - 1 ? most : least[std::size_t(at)];
    widths.push_back(std::max(lowest, std::min(columnWidth(col), most)));
    std::vector<int> weights;
    for (qsizetype right = at + 1; right < columns.size(); ++right)
        weights.push_back(columnWidth(columns[right]));
    const std::vector<int> rest =
        shareOut(room - before - widths.back(), weights, std::vector<int>(behind, least.end()));
    widths.insert(widths.end(), rest.begin(), rest.end());
    setWidths(columns, widths);
    std::vector<int>& shares = m_shares[columns.size()];
    shares.clear();
    for (const int width : widths)
        shares.push_back(qRound(double(width) * kWholeShare / std::max(1, room)));
}

QString FlexGrid::StretchShares() const
{
    QStringList lists;
    for (const auto& [count, shares] : m_shares) {
        QStringList parts;
        for (const int share : shares)
            parts << QString::number(share);
        lists << QString::number(count) + u'=' + parts.join(u',');
    }
    return lists.join(u';');
}

void FlexGrid::setStretchShares(const QString& shares)
{
    m_shares.clear();
    for (const QString& list : shares.split(u';')) {
        const QStringList parts = list.section(u'=', 1).split(u',');
        std::vector<int> weights;
        for (const QString& part : parts)
            weights.push_back(part.toInt());
        const bool sound = list.section(u'=', 0, 0).toInt() == parts.size() &&
                           std::all_of(weights.begin(), weights.end(), [](int weight) {
                               return weight > 0 && weight <= kWholeShare;
                           });
        if (sound)
            m_shares[parts.size()] = weights;
    }
    stretchColumns();
    columnsResized();
}

void FlexGrid::setSingleLines(bool single)
{
    m_singleLines = single;
    viewport()->update();
}

void FlexGrid::FitColumns()
{
    const bool before = std::exchange(m_fitting, true);
    for (int col = 0; col < Cols(); ++col) {
        if (isColumnHidden(col))
            continue;
        int width = kLeastColumn;
        for (int row = 0; row < Rows(); ++row)
            if (const QString& text = m_model->text(row, col); !text.isEmpty())
                width = std::max(width, m_heights->cellWidth(text, m_model->font(row, col)));
        setColumnWidth(col, width + (showGrid() ? 1 : 0));
    }
    m_fitting = before;
    columnsResized();
}

void FlexGrid::AutoSize()
{
    m_sized = true;
    if (m_redraw)
        applyHeights();
}

void FlexGrid::columnsResized()
{
    if (m_sized && m_redraw)
        applyHeights();
}

void FlexGrid::applyHeights()
{
    // Before it is shown a grid has no width worth dividing a chapter for.
    if (!isVisible())
        return;
    const int top = TopRow();
    std::vector<int> widths(static_cast<std::size_t>(Cols()));
    for (int col = Cols() - 1; col >= 0; --col)
        widths[static_cast<std::size_t>(col)] = isColumnHidden(col) ? 0 : columnWidth(col);
    const int gridLine = showGrid() ? 1 : 0;
    {
        // The header would have the view lay itself out again for each row.
        const QSignalBlocker quiet(verticalHeader());
        for (int row = FixedRows(); row < Rows(); ++row)
            verticalHeader()->resizeSection(row - FixedRows(), highestCell(row, widths) + gridLine);
    }
    updateGeometries();
    viewport()->update();
    if (top > FixedRows())
        setTopRow(top);
}

int FlexGrid::highestCell(int row, const std::vector<int>& widths) const
{
    const int merged = m_model->mergedFrom(row);
    const int gridLine = showGrid() ? 1 : 0;
    int height = fontMetrics().height() + 2 * kCellMarginY;
    for (int col = 0; col < Cols(); ++col) {
        int width = widths[static_cast<std::size_t>(col)] - gridLine;
        const QString& text = m_model->text(row, col);
        if (merged == col)
            for (int next = col + 1; next < Cols(); ++next)
                width += widths[static_cast<std::size_t>(next)];
        if (width > 0 && !text.isEmpty())
            height = std::max(height, m_heights->cellHeight(text, m_model->font(row, col), width));
        if (merged == col)
            break;
    }
    return height;
}

void FlexGrid::setRedraw(bool redraw)
{
    if (redraw == m_redraw)
        return;
    m_redraw = redraw;
    if (!redraw) {
        setUpdatesEnabled(false);
        m_model->setHeld(true);
        return;
    }
    quietly([&] { m_model->setHeld(false); });
    applyMergedRows();
    if (m_sized)
        applyHeights();
    setUpdatesEnabled(true);
}

void FlexGrid::ShowRow(int row)
{
    scrollToCell({.row = row});
}

void FlexGrid::setTopRow(int row)
{
    scrollToCell({.row = row, .hint = PositionAtTop});
}

void FlexGrid::ShowCell(int row, int col)
{
    scrollToCell({.row = row, .col = col});
}

void FlexGrid::scrollToCell(const ScrollTarget& target)
{
    if (isVisible()) {
        const int col = target.col < 0 ? std::max(columnAt(0), FixedCols()) : target.col;
        scrollTo(cellIndex(target.row, col), target.hint);
    } else {
        m_scrollOnShow = target;
    }
}

int FlexGrid::TopRow() const
{
    return rowAtPoint({0, 0});
}

int FlexGrid::rowAtPoint(const QPoint& point) const
{
    const int row = rowAt(point.y());
    return row < 0 ? -1 : row + FixedRows();
}

int FlexGrid::colAtPoint(const QPoint& point) const
{
    return columnAt(point.x());
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::MouseButton button = event->button();
    const QPoint position = event->position().toPoint();
    QTableView::mouseReleaseEvent(event);
    if (button == Qt::LeftButton && onClick && rowAtPoint(position) >= 0)
        onClick();
    if (onMouseUp)
        onMouseUp(button, position);
    if (button == Qt::RightButton && onContextMenu)
        onContextMenu(viewport()->mapToGlobal(position));
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    const int row = rowAtPoint(position);
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && onDblClick && row >= 0)
        onDblClick(row, colAtPoint(position));
}

void FlexGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        // A window without a handler of its own may have a copy tool above.
        if (onCopy)
            onCopy();
        else
            event->ignore();
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && onEnter)
        onEnter();
    else
        QTableView::keyPressEvent(event);
}

void FlexGrid::keyReleaseEvent(QKeyEvent* event)
{
    const int key = event->key();
    QTableView::keyReleaseEvent(event);
    if (onKeyUp)
        onKeyUp(key);
}

void FlexGrid::contextMenuEvent(QContextMenuEvent* event)
{
    // The one of the button comes before its release has marked the row.
    if (event->reason() != QContextMenuEvent::Mouse && onContextMenu)
        onContextMenu(event->globalPos());
    else
        QTableView::contextMenuEvent(event);
}

void FlexGrid::resizeEvent(QResizeEvent* event)
{
    const int top = TopRow();
    QTableView::resizeEvent(event);
    if (event->size().width() == event->oldSize().width() || m_stretchFrom < 0)
        return;
    stretchColumns();
    columnsResized();
    if (top > FixedRows())
        setTopRow(top);
    m_resizeTimer.start();
}

void FlexGrid::showEvent(QShowEvent* event)
{
    QTableView::showEvent(event);
    stretchColumns();
    columnsResized();
    if (const auto wanted = std::exchange(m_scrollOnShow, std::nullopt))
        scrollToCell(*wanted);
}

void FlexGrid::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    m_model->setBaseFont(font());
    columnsResized();
}

} // namespace lumen
