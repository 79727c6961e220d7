// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/text_flow.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace lumen {

struct PrintColumn
{
    double width = 0; ///< twips
    PrintLook look;   ///< of cells that bring none of their own
};

/// A cell: laid out already, or a text in the column's look.
struct PrintCell
{
    QString text;
    std::optional<PrintLook> look = {};
    QString rtf = {}; ///< in place of the text, "" for none
    int columns = 1;  ///< how many columns the cell takes
};

using PrintRow = std::vector<PrintCell>;

/// A table over the pages: its header stands again at the head of each page, and a row parts only
/// where it is higher than a page.
struct PrintTable
{
    std::vector<PrintColumn> columns;
    std::optional<PrintRow> header;
    std::vector<PrintRow> rows;
    double padding = 60; ///< twips between a cell's text and its borders
};

/// Columns of a format text such as "^+1 cm\t^+2400": "^" centres, "+" wraps, ">" sets right, a
/// number without a unit counts twips. A text that can't be read gives columns of equal width, with
/// a warning in the log; `width` is the room for all.
std::vector<PrintColumn> columnsOfFormat(const QString& format, QChar separator, double width);

} // namespace lumen
