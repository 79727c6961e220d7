// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/vs_printer.h"

#include <array>
#include <utility>

namespace lumen {

/// One record of a notebook on paper: a table of what stands in its head, the main text below.
struct RecordSheet
{
    using Field = std::pair<QString, QString>; ///< label and text

    std::array<Field, 3> head; ///< days and category; labels may be ""
    std::vector<Field> fields; ///< the label and the RTF text of each row, "" for an empty one
    QString body;              ///< RTF
};

void layOutRecord(VSPrinter& vp, const RecordSheet& sheet);
/// The record's table with words that tell what comes where, to make a page of one's own from.
void layOutSamplePage(VSPrinter& vp);

/// A list of records: the columns of a result.
struct RecordListSheet
{
    QStringList headers;
    std::vector<bool> longTexts;   ///< a column each: those of long texts share the room evenly
    std::vector<QStringList> rows; ///< without tabs and line ends
};

void layOutRecordList(VSPrinter& vp, const RecordListSheet& sheet);
/// A long text as a list shows it: thirty letters and "...", on one line.
QString printedCell(QString text);

} // namespace lumen
