// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/twips.h"
#include "platform/log.h"
#include "platform/printing/vs_printer.h"

#include <QLoggingCategory>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

Q_LOGGING_CATEGORY(lcPrinting, "lumen.printing", QtWarningMsg)

constexpr double kRule = 10; // half a point

std::optional<PrintColumn> columnOf(QString text)
{
    PrintColumn column;
    column.look.wraps = false;
    while (!text.isEmpty() && u"^+<>~"_s.contains(text.front())) {
        if (text.front() == u'^')
            column.look.align = Qt::AlignHCenter;
        else if (text.front() == u'>')
            column.look.align = Qt::AlignRight;
        else if (text.front() == u'+')
            column.look.wraps = true;
        text.remove(0, 1);
    }
    constexpr std::pair<QStringView, double> kUnits[]{
        {u"cm", kTwipsPerInch / 2.54}, {u"mm", kTwipsPerInch / 25.4}, {u"in", kTwipsPerInch}};
    double factor = 1;
    text = text.trimmed();
    for (const auto& [unit, twips] : kUnits)
        if (text.endsWith(unit)) {
            factor = twips;
            text.chop(unit.size());
            break;
        }
    bool isNumber = false;
    column.width = text.trimmed().toDouble(&isNumber) * factor;
    if (!isNumber || column.width <= 0)
        return {};
    return column;
}

} // namespace

std::vector<PrintColumn> columnsOfFormat(const QString& format, QChar separator, double width)
{
    const QStringList parts = format.split(separator);
    std::vector<PrintColumn> columns;
    for (const QString& part : parts) {
        const auto column = columnOf(part);
        if (!column) {
            qCWarning(lcPrinting) << "table format not readable:" << format;
            return std::vector<PrintColumn>(static_cast<std::size_t>(parts.size()),
                                            {width / static_cast<double>(parts.size()), {}});
        }
        columns.push_back(*column);
    }
    return columns;
}

VSPrinter::LaidRow VSPrinter::layRow(const PrintTable& table, const PrintRow& row) const
{
    LaidRow laid;
    double left = MarginLeft;
    std::size_t column = 0;
    const double pageRoom = bodyBottom() - bodyTop() - 2 * table.padding;
    for (const PrintCell& cell : row) {
        if (column >= table.columns.size())
            break;
        const std::size_t end =
            std::min(table.columns.size(), column + static_cast<std::size_t>(cell.columns));
        double width = 0;
        for (std::size_t i = column; i < end; ++i)
            width += table.columns[i].width;
        const double room = std::max(width - 2 * table.padding, 1.0);
        laid.push_back(
            {cell.rtf.isEmpty()
                 ? flowOfText(cell.text, cell.look.value_or(table.columns[column].look), room)
                 : flowOfRtf(cell.rtf, room, pageRoom),
             left, width});
        left += width;
        column = end;
    }
    return laid;
}

void VSPrinter::drawPiece(const PrintTable& table, LaidRow& row, double room)
{
    double height = 0;
    std::vector<std::size_t> ends;
    for (const LaidCell& cell : row) {
        const std::size_t behind = cell.next >= cell.flow.bands.size()
                                       ? cell.next
                                       : cell.flow.fitting(cell.next, room, true);
        ends.push_back(behind);
        height = std::max(height, cell.flow.heightOf(cell.next, behind));
    }
    height += 2 * table.padding;
    const double right = row.back().left + row.back().width;
    fill({row.front().left, CurrentY, right - row.front().left, kRule});
    for (std::size_t i = 0; i < row.size(); ++i) {
        LaidCell& cell = row[i];
        fill({cell.left, CurrentY, kRule, height});
        add(cell.flow.piece(cell.next, ends[i],
                            {cell.left + table.padding, CurrentY + table.padding}));
        cell.next = ends[i];
    }
    fill({right - kRule, CurrentY, kRule, height});
    CurrentY += height;
    fill({row.front().left, CurrentY, right - row.front().left, kRule});
}

void VSPrinter::placeRow(const PrintTable& table, LaidRow& row,
                         const std::function<void()>& newPage)
{
    if (row.empty())
        return;
    const auto left = [&row] {
        double height = 0;
        for (const LaidCell& cell : row)
            if (cell.next < cell.flow.bands.size())
                height = std::max(height, cell.flow.heightOf(cell.next, cell.flow.bands.size()));
        return height;
    };
    const double around = 2 * table.padding + kRule;
    if (CurrentY + left() + around > bodyBottom() && CurrentY > bodyTop())
        newPage();
    do {
        drawPiece(table, row, bodyBottom() - CurrentY - around);
        if (left() > 0)
            newPage();
    } while (left() > 0);
}

void VSPrinter::addTable(const PrintTable& table)
{
    const auto drawHeader = [this, &table] {
        if (!table.header)
            return;
        LaidRow header = layRow(table, *table.header);
        drawPiece(table, header, bodyBottom() - CurrentY);
    };
    const auto newPage = [this, &drawHeader] {
        NewPage();
        drawHeader();
    };
    drawHeader();
    for (const PrintRow& row : table.rows) {
        LaidRow laid = layRow(table, row);
        placeRow(table, laid, newPage);
    }
}

void VSPrinter::AddTable(const QString& format, const QString& header, const QString& body)
{
    const QChar between = TableSep.isEmpty() ? QChar(u'\t') : TableSep.front();
    const QChar behind = TableSep.size() < 2 ? QChar(u'\n') : TableSep.back();
    PrintTable table;
    table.columns = columnsOfFormat(format, between, bodyWidth());
    const auto rowOf = [between](const QString& line) {
        PrintRow row;
        for (const QString& text : line.split(between))
            row.push_back({text});
        return row;
    };
    PrintRow head = rowOf(header);
    for (PrintCell& cell : head) {
        cell.look = PrintLook();
        cell.look->bold = true;
        cell.look->align = Qt::AlignHCenter;
    }
    table.header = head;
    for (const QString& line : body.split(behind, Qt::SkipEmptyParts))
        table.rows.push_back(rowOf(line));
    addTable(table);
}

} // namespace lumen
