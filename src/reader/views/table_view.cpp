// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/views/table_view.h"

#include "platform/controls/grid/flex_grid.h"
#include "reader/views/text_view.h"
#include "text/rtf/rtf_tables.h"

#include <QScrollBar>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr int kMarkColumn = 0;
constexpr int kVerseColumn = 1;
constexpr int kFirstVersionColumn = 2;
constexpr int kMarkWidth = 330;  // twips: the mark and a margin
constexpr int kVerseWidth = 560; // twips: three digits and a margin
constexpr RgbLong kMiniTitleColor = RGB(37, 21, 102);
constexpr double kHeaderPoints = 9;

RgbLong slotColor(const ReaderColors& colors, int slot)
{
    return static_cast<RgbLong>(slot == 0 ? colors.DefVerColor
                                          : colors.verColors[static_cast<std::size_t>(slot - 1)]);
}

/// The size of a version's text in half points.
int textSize(const TableStyle& style, int code)
{
    return scaledSize(GetVersionFontEx(code, style.fonts).factor, rtfSizes(style.fontSize).text);
}

} // namespace

QString spokenVersion(const QString& name, int code)
{
    const QString language = versionLanguage(code);
    return language.isEmpty() ? name : u"%1, %2"_s.arg(name, language);
}

TableView::TableView(FlexGrid& hflex본문) : m_grid(hflex본문)
{
    clear();
}

void TableView::clear()
{
    m_grid.setRows(1);
    m_verseOfRow.assign(1, 0);
}

void TableView::setUpColumns(const std::vector<ChapterSource>& sources, const QStringList& headers,
                             const TableStyle& style)
{
    m_grid.setCols(kFirstVersionColumn + static_cast<int>(sources.size()));
    m_grid.setHeaderStyle(
        {.family = u"굴림"_s, .points = kHeaderPoints, .align = GridAlign::Center});
    m_grid.setTextMatrix(0, kVerseColumn, u"절"_s);
    m_grid.setColWidth(kMarkColumn, kMarkWidth);
    m_grid.setColWidth(kVerseColumn, kVerseWidth);
    CellStyle number;
    number.align = GridAlign::Center;
    m_grid.setColStyle(kMarkColumn, number);
    m_grid.setColStyle(kVerseColumn, number);
    for (std::size_t at = 0; at < sources.size(); ++at) {
        const int col = kFirstVersionColumn + static_cast<int>(at);
        const int code = sources[at].code;
        m_grid.setTextMatrix(0, col, headers.value(static_cast<qsizetype>(at)));
        CellStyle look;
        look.family = GetVersionFontEx(code, style.fonts).font;
        look.points = textSize(style, code) / 2.0;
        look.color = slotColor(style.colors, sources[at].slot);
        look.align = isHebrewVersion(code) ? GridAlign::Right : GridAlign::Left;
        m_grid.setColStyle(col, look);
    }
    m_grid.setStretchFrom(kFirstVersionColumn);
}

QString TableView::cellText(const ChapterSource& source, const ChapterVerse& verse, int col,
                            const TableStyle& style) const
{
    const QString part = source.slot == 0 && style.showMiniTitle ? verse.part : QString();
    if (!isHebrewVersion(source.code))
        return part + verse.cont;
    const QString font = GetVersionFont(source.code, style.fonts).font;
    return part + style.divideHebrew(verse.cont, font, textSize(style, source.code),
                                     m_grid.ColWidth(col), part);
}

void TableView::addHeading(const ChapterVerse& verse, const TableStyle& style)
{
    if (!style.showMiniTitle || verse.miniTitle.isEmpty())
        return;
    const int row = m_grid.Rows();
    m_grid.setRows(row + 1);
    m_grid.setTextMatrix(row, kFirstVersionColumn, u"『"_s + verse.miniTitle + u"』"_s);
    CellStyle look;
    look.bold = true;
    look.color = kMiniTitleColor;
    look.align = GridAlign::Left;
    m_grid.setCellStyle(row, kFirstVersionColumn, look);
    m_grid.setMergedRow(row, kFirstVersionColumn);
    m_verseOfRow.push_back(0);
}

void TableView::addVerse(const std::vector<ChapterSource>& sources, const ChapterVerse& base,
                         const TableStyle& style)
{
    addHeading(base, style);
    const int row = m_grid.Rows();
    m_grid.setRows(row + 1);
    m_grid.setTextMatrix(row, kVerseColumn, QString::number(base.verse));
    for (std::size_t at = 0; at < sources.size(); ++at) {
        const ChapterVerse* const verse = at == 0 ? &base : sources[at].find(base.verse);
        if (verse == nullptr)
            continue;
        const int col = kFirstVersionColumn + static_cast<int>(at);
        m_grid.setTextMatrix(row, col, cellText(sources[at], *verse, col, style));
    }
    m_verseOfRow.push_back(base.verse);
}

void TableView::show(const std::vector<ChapterSource>& sources, const QStringList& headers,
                     const TableStyle& style)
{
    const RedrawHold hold(m_grid);
    clear();
    m_grid.Clear();
    setUpColumns(sources, headers, style);
    m_grid.setBackColor(static_cast<RgbLong>(style.colors.BackColor));
    m_grid.setBackColorAlternate(static_cast<RgbLong>(style.colors.AltColor));
    if (!sources.empty())
        for (const ChapterVerse& base : sources.front().verses)
            addVerse(sources, base, style);
    describeCells(sources, headers);
    m_grid.AutoSize();
    if (m_grid.Rows() > 1)
        markRow(qBound(1, m_grid.Tag().toInt(), m_grid.Rows() - 1));
}

void TableView::describeCells(const std::vector<ChapterSource>& sources, const QStringList& headers)
{
    QStringList versions;
    for (std::size_t at = 0; at < sources.size(); ++at)
        versions << spokenVersion(headers.value(static_cast<qsizetype>(at)), sources[at].code);
    m_grid.setDescription([rows = m_verseOfRow, versions](int row, int col) {
        const QString version = versions.value(col - kFirstVersionColumn);
        const int verse = row >= 0 && row < int(rows.size()) ? rows[std::size_t(row)] : 0;
        return verse == 0 || version.isEmpty() ? version : u"%1절, %2"_s.arg(verse).arg(version);
    });
}

int TableView::verseRowFrom(int row) const
{
    const int rows = static_cast<int>(m_verseOfRow.size());
    while (row > 0 && row < rows && m_verseOfRow[static_cast<std::size_t>(row)] == 0)
        ++row;
    return row > 0 && row < rows ? row : -1;
}

int TableView::verseOfRow(int row) const
{
    const int verseRow = verseRowFrom(row);
    return verseRow < 0 ? 0 : m_verseOfRow[static_cast<std::size_t>(verseRow)];
}

void TableView::markRow(int row)
{
    const int marked = verseRowFrom(row);
    if (marked < 0)
        return;
    m_grid.setTextMatrix(m_grid.Tag().toInt(), kMarkColumn, QString());
    m_grid.setTextMatrix(marked, kMarkColumn, u"▶"_s);
    m_grid.setTag(QString::number(marked));
}

int TableView::currentVerse()
{
    if (m_grid.Tag().toInt() == 0) {
        m_grid.setTag(u"1"_s);
        m_grid.setRow(1);
    }
    const int verse = verseOfRow(m_grid.Tag().toInt());
    return verse == 0 ? 1 : verse;
}

QString TableView::currentRange()
{
    if (const VerseRange selected = selectedRange(); !selected.empty())
        return verseRangeText(selected.first, selected.last);
    const int below = verseOfRow(m_grid.Row());
    return QString::number(below == 0 ? currentVerse() : below);
}

VerseRange TableView::selectedRange() const
{
    VerseRange range;
    const int rows = static_cast<int>(m_verseOfRow.size());
    const int last = std::min(std::max(m_grid.Row(), m_grid.RowSel()), rows - 1);
    for (int row = std::max(1, std::min(m_grid.Row(), m_grid.RowSel())); row <= last; ++row)
        if (const int verse = m_verseOfRow[static_cast<std::size_t>(row)]; verse != 0)
            range.add(verse);
    return range;
}

void TableView::selectRange(const VerseRange& range)
{
    const int first = rowOfVerse(range.first);
    const int last = rowOfVerse(range.last);
    if (first > 0 && last > 0)
        m_grid.select(first, last);
}

std::vector<SelectedVerse> TableView::selectedVerses(const std::vector<ChapterSource>& sources,
                                                     bool withPart) const
{
    const int anchor = m_grid.Row() > 0 ? m_grid.Row() : m_grid.Tag().toInt();
    const int end = m_grid.RowSel() > 0 ? m_grid.RowSel() : anchor;
    int first = std::min(anchor, end);
    int last = std::min(std::max(anchor, end), static_cast<int>(m_verseOfRow.size()) - 1);
    if (first == last)
        first = last = verseRowFrom(first);
    std::vector<SelectedVerse> selected;
    for (int row = std::max(1, first); row <= last; ++row)
        for (const ChapterSource& source : sources)
            // A heading row has no verse, and none has its number.
            if (const ChapterVerse* const verse =
                    source.find(m_verseOfRow[static_cast<std::size_t>(row)])) {
                const bool part = withPart && source.slot == 0;
                selected.push_back({source.slot, source.code, verse->verse,
                                    part ? verse->part + verse->cont : verse->cont});
            }
    return selected;
}

int TableView::rowOfVerse(int verse) const
{
    const auto place = std::find(m_verseOfRow.begin(), m_verseOfRow.end(), verse);
    return verse < 1 || place == m_verseOfRow.end()
               ? -1
               : static_cast<int>(place - m_verseOfRow.begin());
}

void TableView::selectVerse(int verse)
{
    const int row = rowOfVerse(verse);
    if (row < 0)
        return;
    m_grid.setRow(row);
    scrollToVerse(verse);
    markRow(row);
}

int TableView::topVerse() const
{
    return m_grid.verticalScrollBar()->value() == 0 ? 0 : verseOfRow(m_grid.TopRow());
}

bool TableView::isInView(int verse) const
{
    const int row = rowOfVerse(verse);
    const int last = m_grid.rowAtPoint({0, m_grid.viewport()->height() - 1});
    return row >= m_grid.TopRow() && (last < 0 || row <= last);
}

void TableView::scrollToVerse(int verse)
{
    const int row = verse == 0 ? 1 : rowOfVerse(verse);
    if (row < 0)
        return;
    const bool hasHeading = row > 1 && m_verseOfRow[static_cast<std::size_t>(row - 1)] == 0;
    m_grid.setTopRow(hasHeading ? row - 1 : row);
}

} // namespace lumen
