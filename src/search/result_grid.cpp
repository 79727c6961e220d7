// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/result_grid.h"

#include "canon/verse_index.h"
#include "platform/controls/flex_grid.h"
#include "platform/jet/recordset.h"
#include "search/result_pages.h"
#include "text/field_scramble.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kReferenceTwips = 1100;
constexpr int kTextPoints = 10;

constexpr int kPointedHebrew = 301;
constexpr int kHebrewConsonants = 302;
constexpr int kHebrewConsonantsM = 303;
// Half points, as the division takes them.
constexpr int kPointedSize = 32;
constexpr int kConsonantSize = 24;

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
                              DES::UnscrambleField(Text(result.Fields(u"cont")))};
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
    m_grid.setRows(1);
    m_grid.setTextMatrix(0, kReferenceColumn, u"장절"_s);
    m_grid.setTextMatrix(0, kTextColumn, u"본문"_s);
    m_grid.setHeaderStyle(cellStyle(u"굴림"_s, kTextPoints, GridAlign::Center));
}

void ResultGrid::showPage(Recordset& result, int page, int code, const FontSettings& fonts)
{
    showVerses(versesOfPage(result, page), code, fonts);
}

void ResultGrid::showVerses(const QList<ResultVerse>& verses, int code, const FontSettings& fonts)
{
    const RedrawHold hold(m_grid);
    clear();
    for (const ResultVerse& verse : verses)
        m_grid.AddItem({verse.reference, cellText(verse.text, code)});
    const VersionFont font = GetVersionFontEx(code, fonts);
    constexpr int kRightCentre = 7;
    m_grid.setColStyle(kReferenceColumn, cellStyle(u"굴림"_s, kTextPoints, GridAlign::Left));
    const GridAlign align = font.alignment == kRightCentre ? GridAlign::Right : GridAlign::Left;
    m_grid.setColStyle(kTextColumn,
                       cellStyle(font.font, scaledSize(font.factor, kTextPoints), align));
    m_grid.AutoSize();
}

QString ResultGrid::cellText(const QString& cont, int code) const
{
    const int width = m_grid.ColWidth(kTextColumn);
    switch (code) {
    case kPointedHebrew:
        return m_divide(cont, u"OrvaneHeb"_s, kPointedSize, width);
    case kHebrewConsonants:
    case kHebrewConsonantsM:
        return m_divide(cont, u"OrvaneHebC"_s, kConsonantSize, width);
    default:
        return cont;
    }
}

} // namespace lumen
