// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_composer.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kMainFont = 2;
constexpr RgbLong kTitleColor = RGB(37, 21, 102);
constexpr RgbLong kNumberColor = RGB(0, 0, 255);

// The plain form of the brackets breaks in the display; the symbols are missing in the fonts of
// the Western versions.
QStringView escapeOf(char16_t c)
{
    switch (c) {
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
        return quotedRtfSign(c);
    }
}

QString colorTable(const RtfSettings& settings)
{
    return u"{\\colortbl"_s + rtfColorEntry(settings.defVerColor) + rtfColorEntry(kTitleColor) +
           rtfColorEntry(settings.ver1Color) + rtfColorEntry(settings.ver2Color) +
           rtfColorEntry(settings.ver3Color) + rtfColorEntry(kNumberColor) + u'}';
}

QString fontTable(const RtfSettings& settings)
{
    QString table = u"{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 Symbol;}"_s;
    table += rtfFontEntry(kMainFont, u"fmodern", RtfFace::Korean, settings.mainFont);
    table += kRtfFixedFonts;
    for (int slot = 0; slot < kUserFontCount; ++slot) {
        const QString& font = settings.userFonts[static_cast<std::size_t>(slot)];
        const int number = kFirstUserRtfFont + slot;
        table += slot < kKoreanUserFonts ? rtfFontEntry(number, u"fmodern", RtfFace::Korean, font)
                                         : rtfFontEntry(number, u"fnil", RtfFace::Western, font);
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

} // namespace lumen
