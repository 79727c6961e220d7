// SPDX-License-Identifier: GPL-2.0-or-later
#include "print/bible_layout.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr double kHeaderPoints = 10;

PrintLook headerLook()
{
    PrintLook look;
    look.points = kHeaderPoints;
    look.bold = true;
    look.align = Qt::AlignHCenter;
    return look;
}

PrintRow printRow(const VerseSheet& sheet, const VerseSheet::Row& row)
{
    PrintRow printed;
    if (!row.heading.isEmpty()) {
        PrintLook look;
        look.bold = true;
        PrintCell heading{row.heading, look};
        heading.columns = static_cast<int>(sheet.columns.size()) + 1;
        return {heading};
    }
    PrintLook place;
    place.align = Qt::AlignHCenter;
    printed.push_back({row.place, place});
    for (const QString& text : row.texts)
        printed.push_back({text});
    return printed;
}

} // namespace

void layOutVerses(VSPrinter& vp, const VerseSheet& sheet)
{
    if (sheet.columns.empty())
        return;
    PrintTable table;
    table.columns.push_back({sheet.placeWidth, {}});
    const double width =
        (vp.bodyWidth() - sheet.placeWidth) / static_cast<double>(sheet.columns.size());
    PrintRow header{{sheet.placeHeader, headerLook()}};
    for (const VerseSheet::Column& column : sheet.columns) {
        table.columns.push_back({std::max(width, 1.0), column.look});
        header.push_back({column.name, headerLook()});
    }
    table.header = header;
    for (const VerseSheet::Row& row : sheet.rows)
        table.rows.push_back(printRow(sheet, row));
    vp.addTable(table);
}

} // namespace lumen
