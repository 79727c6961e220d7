// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"

#include <QList>
#include <QString>

#include <functional>

namespace lumen {

class Clipboard;
class FlexGrid;
class Recordset;

/// Divides a Hebrew verse into display lines: stored text, font, size in half points, width in
/// twips.
using HebrewDivision = std::function<QString(const QString& text, const QString& font,
                                             int halfPoints, int widthTwips)>;

/// A verse of a result, readable.
struct ResultVerse
{
    QString reference;
    QString text; ///< as its module holds it, Hebrew not yet divided
};

/// Which row is the current and topmost one after a fill.
enum class FillPlace {
    First, ///< the first: a new search, another page
    Kept   ///< the one before the fill: the same verses in another version
};

/// Fills a result grid with one page of verses: short reference and text.
class ResultGrid
{
public:
    static constexpr int kReferenceColumn = 0;
    static constexpr int kTextColumn = 1;

    ResultGrid(FlexGrid& grid, HebrewDivision divide);

    /// Shows 50 records from those of `page` (zero-based) on, in the font of the version `code`;
    /// the first row becomes the current one. A page beyond the end shows no row. Painting is held
    /// back meanwhile.
    void showPage(Recordset& result, int page, int code, const FontSettings& fonts);
    /// The same with verses that were read before.
    void showVerses(const QList<ResultVerse>& verses, int code, const FontSettings& fonts,
                    FillPlace place = FillPlace::First);
    /// The short reference of a grid row, "" for the header and beyond the last.
    QString reference(int row) const { return m_verses.value(row - 1).reference; }
    /// Divides Hebrew verses for the width that the text column has now; the view keeps its place.
    void divideAnew();
    /// Leaves the header alone.
    void clear();
    /// Copies the selected rows as whole verses behind their references, Hebrew and Greek as
    /// Unicode. Without a selection the clipboard stays as it is.
    void copyTo(Clipboard& clipboard) const;

private:
    QString cellText(const QString& text) const;

    FlexGrid& m_grid;
    HebrewDivision m_divide;
    QList<ResultVerse> m_verses; ///< those in the grid
    int m_code = 0;              ///< the version that they are shown in
    VersionFont m_font;          ///< its font
};

} // namespace lumen
