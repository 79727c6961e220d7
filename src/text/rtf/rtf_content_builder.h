// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/rtf/rtf_content.h"

#include <QHash>
#include <QLatin1StringView>

namespace lumen {

/// Puts text, styles and paragraph ends together into a content, joining runs of one style.
class RtfContentBuilder
{
public:
    /// \param expectedLength  a guess at the text's length, to reserve it at once.
    explicit RtfContentBuilder(qsizetype expectedLength) { m_content.text.reserve(expectedLength); }

    void addText(QLatin1StringView text) { m_content.text += text; }
    /// Leaves out control characters, and replaces the units that mark frames and pictures inside
    /// a document of the display.
    void addUnit(char16_t unit);
    /// The style of what is added from now on.
    void setStyle(const RtfCharStyle& style);
    const RtfCharStyle& style() const { return m_style; }
    /// `isInTable` for a paragraph within a cell; its row comes by endRow().
    void endParagraph(const RtfParagraphStyle& style, bool isInTable = false);
    /// Ends the paragraph and its cell.
    void endCell(const RtfParagraphStyle& style);
    /// Ends a cell that was left open, and puts the cells since the last row into this one.
    void endRow(RtfRow row, const RtfParagraphStyle& style);
    void addPicture(RtfPicture picture);
    void setIncomplete() { m_content.isIncomplete = true; }

    void addFont(const RtfFont& font) { m_content.fonts.push_back(font); }
    void addColor(std::optional<RgbLong> color) { m_content.colors.push_back(color); }
    void setTabWidth(int twips) { m_content.tabWidth = twips; }

    /// Ends the last paragraph, which has no mark, and hands the content out.
    RtfContent take(const RtfParagraphStyle& lastParagraph);

private:
    void closeRun();
    int styleIndex();
    void pushParagraph(const RtfParagraphStyle& style);
    RtfParagraph& addMark(const RtfParagraphStyle& style);
    void dropOpenCells();

    RtfContent m_content;
    RtfCharStyle m_style;
    QHash<quint64, int> m_styleIndexes;
    qsizetype m_runStart = 0;
    std::size_t m_firstRun = 0;
    std::size_t m_firstOpen = 0; ///< paragraph behind the last row
};

} // namespace lumen
