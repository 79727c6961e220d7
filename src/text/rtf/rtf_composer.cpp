// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_composer.h"

#include "text/codepage949.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// The plain form of the brackets breaks in the display; the symbols are missing in the fonts of
// the Western versions.
QStringView escapeOf(char16_t c)
{
    switch (c) {
    case u'\\':
        return u"\\\\";
    case u'}':
        return u"\\}";
    case u'{':
        return u"\\{";
    case u'\uFF3B':
        return u"\\'a3\\'db";
    case u'\uFF3D':
        return u"\\'a3\\'dd";
    case u'\u00B6':
        return u"{\\f2\\'a2\\'d2}";
    case u'\u00DF':
        return u"{\\f2\\'a9\\'ac}";
    case u'\u226B':
        return u"{\\f2\\'a1\\'ed}";
    case u'\u226A':
        return u"{\\f2\\'a1\\'ec}";
    case u'\u00BF':
        return u"{\\f2\\'a2\\'af}";
    case u'\u00A1':
        return u"{\\f2\\'a2\\'ae}";
    default:
        return {};
    }
}

// A semicolon ends a name in the font table, and a brace would end the table.
QString tableName(const QString& fontName)
{
    QString name = fontName;
    return name.remove(u';').remove(u'{').remove(u'}').remove(u'\\');
}

QString colorEntry(RgbLong color)
{
    return u"\\red"_s + QString::number(redPart(color)) + u"\\green"_s +
           QString::number(greenPart(color)) + u"\\blue"_s + QString::number(bluePart(color)) +
           u';';
}

QString colorTable(const RtfSettings& settings)
{
    return u"{\\colortbl"_s + colorEntry(settings.defVerColor) + u"\\red37\\green21\\blue102;"_s +
           colorEntry(settings.ver1Color) + colorEntry(settings.ver2Color) +
           colorEntry(settings.ver3Color) + u"\\red0\\green0\\blue255;}"_s;
}

QString fontTable(const RtfSettings& settings)
{
    QString table = u"{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 Symbol;}"
                    u"{\\f2\\fmodern\\fcharset129 "_s;
    table += tableName(settings.mainFont) + u";}"_s;
    table += kRtfFixedFonts;
    for (int slot = 0; slot < kUserFontCount; ++slot) {
        table += u"{\\f"_s + QString::number(kFirstUserRtfFont + slot);
        table += slot < kKoreanUserFonts ? u"\\fmodern\\fcharset129 "_s : u"\\fnil\\fcharset0 "_s;
        table += tableName(settings.userFonts[static_cast<std::size_t>(slot)]) + u";}"_s;
    }
    return table + u'}';
}

} // namespace

QString RtfEscape(QStringView value)
{
    QString result;
    result.reserve(value.size() + 16);
    for (const QChar c : value) {
        const QStringView escape = escapeOf(c.unicode());
        if (escape.isEmpty())
            result += c;
        else
            result += escape;
    }
    return result;
}

QString RtfEscape(const std::optional<QString>& value)
{
    return value ? RtfEscape(QStringView(*value)) : QString();
}

QString rtfDocumentHeader(const RtfSettings& settings)
{
    return u"{\\rtf1\\ansi\\ansicpg949\\deff0\\fs"_s +
           QString::number(rtfSizes(settings.fontSize).text) + colorTable(settings) +
           fontTable(settings);
}

QByteArray toRtfBytes(QStringView rtf)
{
    QByteArray bytes;
    bytes.reserve(rtf.size() * 2);
    for (const QChar c : rtf) {
        const auto code = code949(c.unicode());
        if (!code) {
            const auto number = static_cast<qint16>(c.unicode());
            bytes.append("\\u").append(QByteArray::number(number)).append('?');
            continue;
        }
        if (*code > 0xFF)
            bytes.append(static_cast<char>(*code >> 8));
        bytes.append(static_cast<char>(*code & 0xFF));
    }
    return bytes;
}

} // namespace lumen
