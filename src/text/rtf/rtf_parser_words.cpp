// SPDX-License-Identifier: GPL-2.0-or-later
// What the control words of rtf_parsing.h do.
#include "text/rtf/rtf_parsing.h"

#include <algorithm>
#include <utility>

namespace lumen::rtf_parsing {

void Parser::applyDocument(const RtfControlWord& row, int parameter)
{
    switch (row.action) {
    case RtfAction::AnsiCodePage:
        m_decoder.setCodePage(parameter);
        break;
    case RtfAction::DefaultFont: {
        m_defaultFont = parameter;
        RtfCharStyle style = m_state.style;
        style.font = parameter;
        setStyle(style);
        break;
    }
    case RtfAction::DefaultTab:
        m_builder.setTabWidth(parameter);
        break;
    case RtfAction::FontTable:
        m_state.destination = Destination::Fonts;
        break;
    case RtfAction::ColorTable:
        m_state.destination = Destination::Colors;
        break;
    case RtfAction::SkipDestination:
        skip(row.value != 0);
        break;
    case RtfAction::PictureGroup:
        enterPictureGroup();
        break;
    case RtfAction::Picture:
        enterPictureGroup();
        m_state.destination = Destination::Picture;
        m_pictureReader.begin();
        break;
    default:
        break;
    }
}

void Parser::applyTable(const RtfControlWord& row, int parameter)
{
    const auto setPart = [&](int shift) {
        m_color |= static_cast<RgbLong>(std::clamp(parameter, 0, 255)) << shift;
        m_hasColor = true;
    };
    switch (row.action) {
    case RtfAction::Font:
        finishFont();
        m_inFont = true;
        m_font.number = parameter;
        break;
    case RtfAction::FontCharset:
        m_font.charset = parameter;
        m_decoder.setCharset(parameter);
        break;
    case RtfAction::Red:
        setPart(0);
        break;
    case RtfAction::Green:
        setPart(8);
        break;
    case RtfAction::Blue:
        setPart(16);
        break;
    case RtfAction::PicturePart:
        m_pictureReader.setPart(static_cast<RtfPicturePart>(row.value), parameter);
        break;
    case RtfAction::Unicode:
        addUnicode(parameter);
        break;
    default:
        break;
    }
}

void Parser::applyTableRow(const RtfControlWord& row, int parameter)
{
    switch (row.action) {
    case RtfAction::RowBegin:
        m_row = RtfRow();
        m_cell = RtfCell();
        break;
    case RtfAction::CellEnd:
        flushText();
        m_builder.endCell(m_state.paragraph);
        break;
    case RtfAction::RowEnd:
        flushText();
        m_builder.endRow(m_row, m_state.paragraph);
        break;
    case RtfAction::RowPart:
        switch (static_cast<RtfRowPart>(row.value)) {
        case RtfRowPart::Left:
            m_row.left = parameter;
            break;
        case RtfRowPart::ContinuesAbove:
            m_cell.continuesAbove = true;
            break;
        case RtfRowPart::Border:
            m_cell.bordered = true;
            break;
        case RtfRowPart::Right:
            m_cell.right = parameter;
            m_row.cells.push_back(std::exchange(m_cell, {}));
            break;
        }
        break;
    default:
        break;
    }
}

void Parser::applyCharacter(const RtfControlWord& row, std::optional<int> parameter)
{
    RtfCharStyle style = m_state.style;
    const auto flags = static_cast<quint8>(row.value);
    switch (row.action) {
    case RtfAction::Font:
        style.font = parameter.value_or(m_defaultFont);
        break;
    case RtfAction::FontSize:
        style.halfPoints = std::clamp(parameter.value_or(RtfCharStyle().halfPoints), 1, 3276);
        break;
    case RtfAction::Color:
        style.color = parameter.value_or(0);
        break;
    case RtfAction::Background:
        style.background = parameter.value_or(0) > 0 ? *parameter : -1;
        break;
    case RtfAction::SetFlag:
        if (flags == RtfCharStyle::Superscript || flags == RtfCharStyle::Subscript)
            style.flags &=
                static_cast<quint8>(~(RtfCharStyle::Superscript | RtfCharStyle::Subscript));
        style.flags = static_cast<quint8>(parameter.value_or(1) != 0 ? style.flags | flags
                                                                     : style.flags & ~flags);
        break;
    case RtfAction::ClearFlag:
        style.flags &= static_cast<quint8>(~flags);
        break;
    case RtfAction::PlainText:
        style = RtfCharStyle();
        style.font = m_defaultFont;
        break;
    default:
        break;
    }
    setStyle(style);
}

void Parser::applyParagraph(const RtfControlWord& row, int parameter)
{
    RtfParagraphStyle& style = m_state.paragraph;
    switch (row.action) {
    case RtfAction::Alignment:
        style.alignment = static_cast<RtfAlignment>(row.value);
        break;
    case RtfAction::LeftIndent:
        style.leftIndent = parameter;
        break;
    case RtfAction::FirstLineIndent:
        style.firstLineIndent = parameter;
        break;
    case RtfAction::RightIndent:
        style.rightIndent = parameter;
        break;
    case RtfAction::SpaceBefore:
        style.spaceBefore = parameter;
        break;
    case RtfAction::SpaceAfter:
        style.spaceAfter = parameter;
        break;
    case RtfAction::LineSpacing:
        style.lineSpacing = parameter;
        break;
    case RtfAction::LineMultiple:
        style.lineMultiple = parameter != 0;
        break;
    case RtfAction::PlainParagraph:
        style = RtfParagraphStyle();
        m_state.inTable = false;
        break;
    case RtfAction::InTable:
        m_state.inTable = true;
        break;
    case RtfAction::ParagraphEnd:
        endParagraph();
        break;
    case RtfAction::Character:
        addUnit(static_cast<char16_t>(row.value));
        break;
    case RtfAction::Unicode:
        addUnicode(parameter);
        break;
    case RtfAction::UnicodeSkip:
        m_state.unicodeSkip = std::clamp(parameter, 0, 16);
        break;
    default:
        break;
    }
}

// The number is a signed 16-bit one; some programs write the unsigned one, or one beyond 16 bits.
void Parser::addUnicode(int number)
{
    const auto code = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
    if (code > 0xFFFF && code <= 0x10FFFF) {
        addUnit(QChar::highSurrogate(code));
        addUnit(QChar::lowSurrogate(code));
    } else if (code <= 0xFFFF) {
        addUnit(static_cast<char16_t>(code));
    }
    m_skip = m_state.unicodeSkip;
}

void Parser::enterPictureGroup()
{
    if (m_state.holdsPicture)
        return;
    m_state.holdsPicture = true;
    ++m_pictureGroups;
}

// The outermost group of a picture is kept with it, so that what the display knows nothing of (an
// embedded object, a metafile) is still there when the text is written.
void Parser::leavePictureGroup(const GroupState& closed)
{
    if (closed.destination == Destination::Picture && m_state.destination != Destination::Picture)
        m_picture = m_pictureReader.take();
    if (!closed.holdsPicture || --m_pictureGroups > 0)
        return;
    if (!m_picture) {
        m_builder.setIncomplete();
        return;
    }
    const QByteArrayView group = m_bytes.sliced(closed.start, m_at - closed.start);
    const bool isPlain = std::ranges::all_of(group, [](char c) { return c > 0 && c < 0x7F; });
    if (isPlain && !group.contains("\\bin"))
        m_picture->group = group.toByteArray();
    if (m_state.destination == Destination::Body)
        m_builder.addPicture(std::move(*m_picture));
    m_picture.reset();
}

void Parser::skip(bool isLost)
{
    if (isLost && m_state.destination == Destination::Body)
        m_builder.setIncomplete();
    m_state.destination = Destination::Skipped;
}

} // namespace lumen::rtf_parsing
