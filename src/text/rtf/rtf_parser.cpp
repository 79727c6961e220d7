// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_parser.h"

#include "text/rtf/rtf_parsing.h"

#include <algorithm>
#include <utility>

namespace lumen::rtf_parsing {
namespace {

// Groups nested deeper are read without a state of their own: no document has so many, and
// memory stays bounded for any input.
constexpr std::size_t kMaxDepth = 2000;
constexpr qint64 kMaxParameter = 100'000'000;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

int hexValue(char c)
{
    if (isDigit(c))
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// Bytes that stand for themselves and need no decoding.
bool isPlainAscii(char c)
{
    return c >= 0x20 && c <= 0x7E && c != '\\' && c != '{' && c != '}';
}

} // namespace

RtfContent Parser::run()
{
    while (m_at < m_bytes.size() && !m_ended) {
        switch (m_bytes[m_at]) {
        case '{':
            ++m_at;
            openGroup();
            break;
        case '}':
            ++m_at;
            closeGroup();
            break;
        case '\\':
            ++m_at;
            readControl();
            break;
        default:
            readText();
        }
    }
    flushText();
    return m_builder.take(m_state.paragraph);
}

// Plain ASCII of the body is taken in one go; all else goes byte by byte.
void Parser::readText()
{
    if (m_state.destination == Destination::Picture) {
        const qsizetype start = m_at;
        while (m_at < m_bytes.size() && m_bytes[m_at] != '\\' && m_bytes[m_at] != '{' &&
               m_bytes[m_at] != '}')
            ++m_at;
        m_pictureReader.addHex(m_bytes.sliced(start, m_at - start));
        return;
    }
    qsizetype end = m_at;
    while (end < m_bytes.size() && isPlainAscii(m_bytes[end]))
        ++end;
    const bool isBody = m_state.destination == Destination::Body &&
                        (m_state.style.flags & RtfCharStyle::Hidden) == 0;
    if (end > m_at && isBody && m_skip == 0 && !m_decoder.isWaiting()) {
        m_builder.addText(QLatin1StringView(m_bytes.data() + m_at, end - m_at));
        m_at = end;
        m_starred = false;
        return;
    }
    const auto byte = static_cast<unsigned char>(m_bytes[m_at++]);
    if (byte == '\r' || byte == '\n' || byte == 0)
        return;
    addByte(byte);
}

void Parser::readControl()
{
    if (m_at >= m_bytes.size())
        return;
    const char c = m_bytes[m_at];
    if (isLetter(c)) {
        apply(readControlWord());
        return;
    }
    ++m_at;
    if (c == '\'')
        readHexByte();
    else
        readSymbol(c);
}

ControlWord Parser::readControlWord()
{
    const qsizetype start = m_at;
    while (m_at < m_bytes.size() && isLetter(m_bytes[m_at]))
        ++m_at;
    ControlWord word{{m_bytes.data() + start, static_cast<std::size_t>(m_at - start)}, {}};
    const auto digitAt = [this](qsizetype at) {
        return at < m_bytes.size() && isDigit(m_bytes[at]);
    };
    const bool negative = m_at < m_bytes.size() && m_bytes[m_at] == '-' && digitAt(m_at + 1);
    if (negative)
        ++m_at;
    if (digitAt(m_at)) {
        qint64 number = 0;
        for (; digitAt(m_at); ++m_at)
            number = std::min(number * 10 + (m_bytes[m_at] - '0'), kMaxParameter);
        word.parameter = static_cast<int>(negative ? -number : number);
    }
    if (m_at < m_bytes.size() && m_bytes[m_at] == ' ')
        ++m_at;
    return word;
}

void Parser::readHexByte()
{
    if (m_at + 1 >= m_bytes.size()) {
        m_at = m_bytes.size();
        return;
    }
    const int high = hexValue(m_bytes[m_at]);
    const int low = hexValue(m_bytes[m_at + 1]);
    if (high < 0 || low < 0)
        return;
    m_at += 2;
    addByte(static_cast<unsigned char>(high << 4 | low));
}

void Parser::readSymbol(char symbol)
{
    switch (symbol) {
    case '\\':
    case '{':
    case '}':
        addByte(static_cast<unsigned char>(symbol));
        break;
    case '*':
        m_starred = true;
        break;
    case '~':
        addUnit(u'\u00A0');
        break;
    case '_':
        addUnit(u'\u2011');
        break;
    case '\r':
    case '\n':
        endParagraph();
        break;
    case '\t':
        addUnit(u'\t');
        break;
    default: // optional hyphens and the like show nothing
        break;
    }
}

void Parser::openGroup()
{
    flushText();
    m_skip = 0;
    if (m_groups.size() < kMaxDepth) {
        m_groups.push_back(m_state);
        m_state.start = m_at - 1;
        m_state.holdsPicture = false;
    } else {
        ++m_deeperGroups;
    }
}

void Parser::closeGroup()
{
    flushText();
    m_skip = 0;
    m_starred = false;
    if (m_deeperGroups > 0) {
        --m_deeperGroups;
        return;
    }
    if (m_groups.empty()) {
        m_ended = true;
        return;
    }
    const GroupState outer = m_groups.back();
    m_groups.pop_back();
    // Within a font table each entry mostly has a group of its own; its end ends a name that
    // misses its semicolon.
    if (m_state.destination == Destination::Fonts)
        finishFont();
    // The paragraph properties of the last group hold for the last paragraph, which has no mark.
    if (m_groups.empty()) {
        m_ended = true;
        return;
    }
    const GroupState closed = m_state;
    setStyle(outer.style);
    m_state = outer;
    leavePictureGroup(closed);
}

void Parser::apply(const ControlWord& word)
{
    const bool starred = std::exchange(m_starred, false);
    flushText();
    m_skip = 0;
    const RtfControlWord* row = findRtfControlWord(word.name);
    if (starred && (!row || row->action != RtfAction::PictureGroup)) {
        skip(row && row->action == RtfAction::SkipDestination && row->value != 0);
        return;
    }
    if (!row)
        return;
    const int parameter = word.parameter.value_or(0);
    if (row->action == RtfAction::Binary) {
        const qsizetype length = std::clamp<qsizetype>(parameter, 0, m_bytes.size() - m_at);
        if (m_state.destination == Destination::Picture)
            m_pictureReader.addBytes(m_bytes.sliced(m_at, length));
        m_at += length;
        return;
    }
    if (m_state.destination == Destination::Skipped)
        return;
    if (row->action < RtfAction::FontCharset)
        applyDocument(*row, parameter);
    else if (m_state.destination != Destination::Body)
        applyTable(*row, parameter);
    else if (row->action < RtfAction::Alignment)
        applyCharacter(*row, word.parameter);
    else if (row->action < RtfAction::RowBegin)
        applyParagraph(*row, parameter);
    else
        applyTableRow(*row, parameter);
}

void Parser::addByte(unsigned char byte)
{
    m_starred = false;
    if (m_skip > 0) {
        --m_skip;
        return;
    }
    if (m_state.destination == Destination::Skipped)
        return;
    if (m_state.destination == Destination::Colors) {
        addColorByte(byte);
        return;
    }
    m_decoder.add(byte, m_decoded);
    takeDecoded();
}

void Parser::addColorByte(unsigned char byte)
{
    if (byte != ';')
        return;
    m_builder.addColor(m_hasColor ? std::optional(m_color) : std::nullopt);
    m_color = 0;
    m_hasColor = false;
}

void Parser::flushText()
{
    if (!m_decoder.isWaiting())
        return;
    m_decoder.flush(m_decoded);
    takeDecoded();
}

void Parser::takeDecoded()
{
    for (const QChar c : std::as_const(m_decoded))
        addUnit(c.unicode());
    m_decoded.truncate(0);
}

void Parser::addUnit(char16_t unit)
{
    if (m_state.destination == Destination::Fonts) {
        if (unit == u';')
            finishFont();
        else
            m_fontName += QChar(unit);
        return;
    }
    if (m_state.destination != Destination::Body)
        return;
    if (unit == QChar::ParagraphSeparator) {
        endParagraph();
        return;
    }
    if ((m_state.style.flags & RtfCharStyle::Hidden) == 0)
        m_builder.addUnit(unit);
}

void Parser::finishFont()
{
    if (m_inFont) {
        m_font.name = m_fontName.trimmed();
        m_charsets.insert(m_font.number, m_font.charset);
        m_builder.addFont(m_font);
    }
    m_inFont = false;
    m_font = RtfFont();
    m_fontName.clear();
    m_decoder.setCharset(m_charsets.value(m_state.style.font, -1));
}

void Parser::setStyle(const RtfCharStyle& style)
{
    m_state.style = style;
    m_builder.setStyle(style);
    m_decoder.setCharset(m_charsets.value(style.font, -1));
}

void Parser::endParagraph()
{
    if (m_state.destination != Destination::Body)
        return;
    flushText();
    m_builder.endParagraph(m_state.paragraph, m_state.inTable);
}

} // namespace lumen::rtf_parsing

namespace lumen {

bool isRtf(QByteArrayView bytes)
{
    return bytes.startsWith("{\\rtf");
}

RtfContent parseRtf(QByteArrayView bytes)
{
    return isRtf(bytes) ? rtf_parsing::Parser(bytes).run() : plainTextContent(bytes);
}

} // namespace lumen
