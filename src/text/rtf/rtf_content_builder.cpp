// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_content_builder.h"

#include <utility>

namespace lumen {
namespace {

// Of paragraphs in a row whose end has not come yet.
constexpr int kOpenRow = -2;
// Of a cell that nothing is told of, twips.
constexpr int kCellWidth = 1440;

} // namespace

void RtfContentBuilder::addUnit(char16_t unit)
{
    if (unit < 0x20 && unit != u'\t')
        return;
    const bool isReserved = unit == 0xFDD0 || unit == 0xFDD1 || unit == 0xFFFC;
    m_content.text += isReserved ? QChar(QChar::ReplacementCharacter) : QChar(unit);
}

void RtfContentBuilder::setStyle(const RtfCharStyle& style)
{
    if (style == m_style)
        return;
    closeRun();
    m_style = style;
}

int RtfContentBuilder::styleIndex()
{
    const auto bits = [](int value) { return static_cast<quint64>(value) & 0xFFF; };
    const quint64 key = (static_cast<quint64>(m_style.font) & 0xFFFF) << 48 |
                        bits(m_style.halfPoints) << 36 | bits(m_style.color) << 24 |
                        bits(m_style.background) << 12 | m_style.flags;
    const auto found = m_styleIndexes.constFind(key);
    if (found != m_styleIndexes.cend())
        return *found;
    const auto index = static_cast<int>(m_content.styles.size());
    m_content.styles.push_back(m_style);
    m_styleIndexes.insert(key, index);
    return index;
}

void RtfContentBuilder::closeRun()
{
    const qsizetype end = m_content.text.size();
    if (end == m_runStart)
        return;
    const int style = styleIndex();
    auto& runs = m_content.runs;
    if (runs.size() > m_firstRun && runs.back().style == style)
        runs.back().length += end - m_runStart;
    else
        runs.push_back({m_runStart, end - m_runStart, style});
    m_runStart = end;
}

void RtfContentBuilder::pushParagraph(const RtfParagraphStyle& style)
{
    closeRun();
    RtfParagraph paragraph;
    paragraph.end = m_content.text.size();
    paragraph.firstRun = m_firstRun;
    paragraph.runCount = m_content.runs.size() - m_firstRun;
    paragraph.endStyle = styleIndex();
    paragraph.style = style;
    m_content.paragraphs.push_back(paragraph);
}

RtfParagraph& RtfContentBuilder::addMark(const RtfParagraphStyle& style)
{
    pushParagraph(style);
    m_content.text += u'\n';
    m_runStart = m_content.text.size();
    m_firstRun = m_content.runs.size();
    return m_content.paragraphs.back();
}

void RtfContentBuilder::endParagraph(const RtfParagraphStyle& style, bool isInTable)
{
    if (!isInTable)
        dropOpenCells();
    addMark(style).row = isInTable ? kOpenRow : -1;
    if (!isInTable)
        m_firstOpen = m_content.paragraphs.size();
}

void RtfContentBuilder::endCell(const RtfParagraphStyle& style)
{
    RtfParagraph& paragraph = addMark(style);
    paragraph.row = kOpenRow;
    paragraph.endsCell = true;
}

// Cells that no row came for are paragraphs like others.
void RtfContentBuilder::dropOpenCells()
{
    for (std::size_t i = m_firstOpen; i < m_content.paragraphs.size(); ++i) {
        m_content.paragraphs[i].row = -1;
        m_content.paragraphs[i].endsCell = false;
    }
}

void RtfContentBuilder::endRow(RtfRow row, const RtfParagraphStyle& style)
{
    auto& paragraphs = m_content.paragraphs;
    const bool hasOpen = paragraphs.size() > m_firstOpen;
    if (m_content.text.size() > m_runStart || m_content.runs.size() > m_firstRun ||
        (hasOpen && !paragraphs.back().endsCell))
        endCell(style);
    if (paragraphs.size() == m_firstOpen)
        return;
    std::size_t cells = 0;
    for (std::size_t i = m_firstOpen; i < paragraphs.size(); ++i) {
        paragraphs[i].row = static_cast<int>(m_content.rows.size());
        cells += paragraphs[i].endsCell ? 1 : 0;
    }
    // A row that tells of fewer cells than it has, or of none.
    while (row.cells.size() < cells)
        row.cells.push_back({(row.cells.empty() ? row.left : row.cells.back().right) + kCellWidth});
    row.cells.resize(cells);
    m_content.rows.push_back(std::move(row));
    m_firstOpen = paragraphs.size();
}

void RtfContentBuilder::addPicture(RtfPicture picture)
{
    m_content.text += QChar(QChar::ObjectReplacementCharacter);
    m_content.pictures.push_back(std::move(picture));
}

RtfContent RtfContentBuilder::take(const RtfParagraphStyle& lastParagraph)
{
    dropOpenCells();
    pushParagraph(lastParagraph);
    return std::exchange(m_content, {});
}

} // namespace lumen
