// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"

#include <QString>

#include <functional>

namespace lumen {

class FlexGrid;
class Recordset;

/// Divides a Hebrew verse into display lines: stored text, font, size in half points, width in
/// twips.
using HebrewDivision = std::function<QString(const QString& text, const QString& font,
                                             int halfPoints, int widthTwips)>;

/// Fills the result grid with one page of an open result: short reference and verse text.
class ResultGrid
{
public:
    static constexpr int kReferenceColumn = 0;
    static constexpr int kTextColumn = 1;

    ResultGrid(FlexGrid& grid, HebrewDivision divide);

    /// Shows 50 records from those of `page` (zero-based) on, in the font of the version `code`. A
    /// page beyond the end shows no row. Painting is held back meanwhile.
    void showPage(Recordset& result, int page, int code, const FontSettings& fonts);
    /// Leaves the header alone.
    void clear();

private:
    void fillRows(Recordset& result, int page, int code);
    QString cellText(const QString& cont, int code) const;

    FlexGrid& m_grid;
    HebrewDivision m_divide;
};

} // namespace lumen
