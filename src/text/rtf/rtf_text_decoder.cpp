// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_text_decoder.h"

#include "text/codepage949.h"

#include <QByteArray>
#include <QStringDecoder>

namespace lumen {
namespace {

constexpr int kKoreanPage = 949;
constexpr int kWesternPage = 1252;
constexpr int kKoreanCharset = 129;
constexpr int kWesternCharset = 0;
constexpr QChar kReplacement{u'\uFFFD'};

std::array<char16_t, 256> singleByteTable(int codePage)
{
    std::array<char16_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        QStringDecoder decoder(("windows-" + QByteArray::number(codePage)).constData());
        const char c = static_cast<char>(byte);
        const QString text = decoder.isValid() ? QString(decoder.decode(QByteArrayView(&c, 1)))
                                               : QString(QLatin1Char(c));
        table[byte] = text.isEmpty() ? kReplacement.unicode() : text.front().unicode();
    }
    return table;
}

char16_t westernUnit(unsigned char byte)
{
    static const std::array<char16_t, 256> table = singleByteTable(kWesternPage);
    return table[byte];
}

} // namespace

void RtfTextDecoder::setCodePage(int codePage)
{
    m_korean = codePage == kKoreanPage;
    if (m_korean)
        return;
    const bool known = codePage >= 1250 && codePage <= 1258;
    m_single = singleByteTable(known ? codePage : kWesternPage);
}

bool RtfTextDecoder::readsPairs() const
{
    return m_korean || m_charset == kKoreanCharset;
}

void RtfTextDecoder::add(unsigned char byte, QString& text)
{
    if (m_lead != 0 && addTrail(byte, text))
        return;
    if (!readsPairs())
        text += QChar(m_single[byte]);
    else if (isLeadByte949(byte))
        m_lead = byte;
    else
        text += QChar(unit949(byte).value_or(kReplacement.unicode()));
}

// True when the byte was used up.
bool RtfTextDecoder::addTrail(unsigned char byte, QString& text)
{
    const unsigned char lead = m_lead;
    m_lead = 0;
    if (isTrailByte949(byte)) {
        if (const auto unit = unit949(static_cast<std::uint16_t>(lead << 8 | byte))) {
            text += QChar(*unit);
            return true;
        }
    }
    addCutLead(lead, text);
    return isTrailByte949(byte) && m_charset != kWesternCharset;
}

// Other programs write accented letters of a Western font as single bytes, also into a document
// of the Korean page; no pair of the page begins so.
void RtfTextDecoder::addCutLead(unsigned char lead, QString& text) const
{
    text += m_charset == kWesternCharset ? QChar(westernUnit(lead)) : kReplacement;
}

void RtfTextDecoder::flush(QString& text)
{
    if (m_lead == 0)
        return;
    const unsigned char lead = m_lead;
    m_lead = 0;
    addCutLead(lead, text);
}

} // namespace lumen
