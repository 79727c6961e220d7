// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/vs_printer.h"

namespace lumen {

/// A chapter as a table of verses by versions, or verses of several places below one another.
struct VerseSheet
{
    struct Column
    {
        QString name;
        PrintLook look;
    };
    struct Row
    {
        QString heading = {}; ///< spans all columns; then there is nothing else
        QString place = {};   ///< a verse's number, or where it stands
        QStringList texts = {};
    };

    QString placeHeader;   ///< above the first column
    double placeWidth = 0; ///< twips
    std::vector<Column> columns;
    std::vector<Row> rows;
};

inline constexpr double kVerseNumberWidth = 1440 / 2.54;    ///< 1 cm, twips
inline constexpr double kVersePlaceWidth = 2 * 1440 / 2.54; ///< 2 cm

void layOutVerses(VSPrinter& vp, const VerseSheet& sheet);

} // namespace lumen
