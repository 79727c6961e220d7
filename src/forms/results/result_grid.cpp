// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/result_grid.h"

#include "canon/verse_index.h"
#include "data/chapter_reader.h"
#include "forms/results/result_pages.h"
#include "forms/results/verse_copy.h"
#include "jet/rows/recordset.h"
#include "platform/controls/grid/flex_grid.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kReferenceTwips = 1100;
constexpr int kTextPoints = 10;
constexpr RgbLong kTextColor = RGB(0, 0, 0); // of a copy, whatever the desktop's colours are

CellStyle cellStyle(const QString& family, int points, GridAlign align)
{
    CellStyle style;
    style.family = family;
    style.points = points;
    style.align = align;
    return style;
}

QList<ResultVerse> versesOfPage(Recordset& result, int page)
{
    QList<ResultVerse> verses;
    result.MoveFirst();
    if (page != 0)
        result.setAbsolutePosition(ResultPages(result.RecordCount()).firstRecord(page));
    while (verses.size() < ResultPages::kRowsPerPage && !result.Eof()) {
        verses << ResultVerse{BibleCode::IndexToRef(Text(result.Fields(u"Index"))),
                              readableText(Text(result.Fields(u"cont")))};
        result.MoveNext();
    }
    return verses;
}

} // namespace

ResultGrid::ResultGrid(FlexGrid& grid, HebrewDivision divide)
    : m_grid(grid), m_divide(std::move(divide))
{
    m_grid.setCols(2);
    m_grid.setColWidth(kReferenceColumn, kReferenceTwips);
    m_grid.setStretchFrom(kTextColumn);
    clear();
}

void ResultGrid::clear()
{
    m_verses.clear();
    m_grid.setRows(1);
    m_grid.setTextMatrix(0, kReferenceColumn, u"장절"_s);
    m_grid.setTextMatrix(0, kTextColumn, u"본문"_s);
    m_grid.setHeaderStyle(cellStyle(u"굴림"_s, kTextPoints, GridAlign::Center));
}

void ResultGrid::showPage(Recordset& result, int page, int code, const FontSettings& fonts)
{
    showVerses(versesOfPage(result, page), code, fonts);
}

void ResultGrid::showVerses(const QList<ResultVerse>& verses, int code, const FontSettings& fonts,
                            FillPlace place)
{
    const bool kept = place == FillPlace::Kept && m_grid.RowSel() > 0;
    const int current = kept ? m_grid.RowSel() : 1;
    const int top = kept ? m_grid.TopRow() : 1;
    {
        const RedrawHold hold(m_grid);
        clear();
        m_verses = verses;
        m_code = code;
        m_font = GetVersionFontEx(code, fonts);
        for (const ResultVerse& verse : verses)
            m_grid.AddItem({verse.reference, cellText(verse.text)});
        constexpr int kRightCentre = 7;
        m_grid.setColStyle(kReferenceColumn, cellStyle(u"굴림"_s, kTextPoints, GridAlign::Left));
        const GridAlign align =
            m_font.alignment == kRightCentre ? GridAlign::Right : GridAlign::Left;
        m_grid.setColStyle(kTextColumn,
                           cellStyle(m_font.font, scaledSize(m_font.factor, kTextPoints), align));
        m_grid.AutoSize();
    }
    // Enter opens the current row, also when the keys have just come to the grid.
    m_grid.setRow(current);
    m_grid.setTopRow(top);
}

void ResultGrid::copyTo(Clipboard& clipboard) const
{
    const auto [first, last] = std::minmax({m_grid.Row(), m_grid.RowSel()});
    std::vector<CopiedVerse> copied;
    for (int row = std::max(first, 1); row <= last && row <= m_verses.size(); ++row) {
        const ResultVerse& verse = m_verses.at(row - 1);
        copied.push_back({m_code, verse.reference, verse.text, m_font.font,
                          scaledSize(m_font.factor, 2 * kTextPoints), kTextColor});
    }
    if (!copied.empty())
        clipboard.set(composeVerseCopy(copied, {}, OriginalText::Unicode));
}

void ResultGrid::divideAnew()
{
    if (!isHebrewVersion(m_code) || m_verses.isEmpty())
        return;
    const RedrawHold hold(m_grid);
    for (int row = 1; row < m_grid.Rows(); ++row)
        m_grid.setTextMatrix(row, kTextColumn, cellText(m_verses.at(row - 1).text));
}

QString ResultGrid::cellText(const QString& text) const
{
    if (!isHebrewVersion(m_code))
        return text;
    // In the size of the cell: a line that is cut too long would wrap and be read out of order.
    return m_divide(text, m_font.font, 2 * scaledSize(m_font.factor, kTextPoints),
                    m_grid.ColWidth(kTextColumn));
}

} // namespace lumen
