// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_writer.h"

#include "text/codepage949.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kAnsiCharset = 0;
constexpr int kHangulCharset = 129;
constexpr char16_t kFirstPrintable = 0x20;
constexpr char16_t kFirstBeyondAscii = 0x7F;
constexpr char16_t kLastOneByteCode = 0xFF;

void appendHex(QByteArray& bytes, int byte)
{
    constexpr char kDigits[] = "0123456789abcdef";
    bytes.append("\\'").append(kDigits[byte >> 4 & 0xF]).append(kDigits[byte & 0xF]);
}

int unitNumber(char16_t unit)
{
    return static_cast<qint16>(unit);
}

void appendEightBit(QByteArray& bytes, char16_t unit)
{
    const auto code = code949(unit);
    if (!code) {
        bytes.append("\\u").append(QByteArray::number(unitNumber(unit))).append('?');
        return;
    }
    if (*code > kLastOneByteCode)
        bytes.append(static_cast<char>(*code >> 8));
    bytes.append(static_cast<char>(*code & 0xFF));
}

void appendSevenBit(QByteArray& bytes, char16_t unit)
{
    if (unit < kFirstBeyondAscii) {
        bytes.append(static_cast<char>(unit));
    } else if (const auto code = code949(unit); code && *code > kLastOneByteCode) {
        appendHex(bytes, *code >> 8);
        appendHex(bytes, *code & 0xFF);
    } else {
        bytes.append("\\u").append(QByteArray::number(unitNumber(unit))).append('?');
    }
}

} // namespace

QByteArray toRtfBytes(QStringView rtf, RtfCoding coding)
{
    QByteArray bytes;
    bytes.reserve(rtf.size() * (coding == RtfCoding::SevenBit ? 4 : 2));
    for (const QChar c : rtf) {
        if (coding == RtfCoding::SevenBit)
            appendSevenBit(bytes, c.unicode());
        else
            appendEightBit(bytes, c.unicode());
    }
    return bytes;
}

QStringView quotedRtfSign(char16_t unit)
{
    switch (unit) {
    case u'\\':
        return u"\\\\";
    case u'}':
        return u"\\}";
    case u'{':
        return u"\\{";
    default:
        return {};
    }
}

QString rtfText(QStringView text, RtfFace face)
{
    QString rtf;
    rtf.reserve(text.size());
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        if (const QStringView quoted = quotedRtfSign(unit); !quoted.isEmpty())
            rtf += quoted;
        else if (unit == u'\t')
            rtf += u"\\tab "_s;
        else if (unit == u'\n' || unit == QChar::LineSeparator)
            rtf += u"\\line "_s;
        else if (face == RtfFace::Western && unit >= kFirstBeyondAscii)
            rtf += u"\\u"_s + QString::number(unitNumber(unit)) + u'?';
        else if (unit >= kFirstPrintable)
            rtf += c;
    }
    return rtf;
}

QString rtfFontEntry(int number, QStringView family, RtfFace face, QString name)
{
    const int charset = face == RtfFace::Western ? kAnsiCharset : kHangulCharset;
    name.remove(u';').remove(u'{').remove(u'}').remove(u'\\');
    return u"{\\f"_s + QString::number(number) + u'\\' + family.toString() + u"\\fcharset"_s +
           QString::number(charset) + u' ' + name + u";}"_s;
}

QString rtfColorEntry(RgbLong color)
{
    return u"\\red"_s + QString::number(redPart(color)) + u"\\green"_s +
           QString::number(greenPart(color)) + u"\\blue"_s + QString::number(bluePart(color)) +
           u';';
}

QString rtfRunWords(std::optional<int> font, int halfPoints, std::optional<int> color)
{
    QString words;
    if (font)
        words += u"\\f"_s + QString::number(*font);
    words += u"\\fs"_s + QString::number(halfPoints);
    if (color)
        words += u"\\cf"_s + QString::number(*color);
    return words;
}

int RtfTables::fontNumber(const QString& name, RtfFace face)
{
    qsizetype place = m_fonts.indexOf(name);
    if (place < 0) {
        place = m_fonts.size();
        m_fonts << name;
        m_fontEntries += rtfFontEntry(m_firstFont + static_cast<int>(place), u"fnil", face, name);
    }
    return m_firstFont + static_cast<int>(place);
}

int RtfTables::colorNumber(RgbLong color)
{
    if (!m_colors.contains(color)) {
        m_colors << color;
        m_colorEntries += rtfColorEntry(color);
    }
    return static_cast<int>(m_colors.indexOf(color)) + 1;
}

} // namespace lumen
