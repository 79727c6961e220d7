// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_font.h"

#include "text/basic_text.h"
#include "text/original_unicode.h"
#include "text/rtf_tables.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

static_assert(kUserVersionCount == kUserFontCount);

constexpr int kGridLeftTop = 0;
constexpr int kGridLeftCenter = 1;
constexpr int kGridRightTop = 6;
constexpr int kGridRightCenter = 7;
// The size at which a user font has the factor 1.
constexpr double kUserSizeUnit = 10;
constexpr double kPlainPrintSize = 10;
// Up to this code the user's main font holds.
constexpr int kLastMainFontCode = 217;

constexpr QStringView kLeft = u"\\ql";
constexpr QStringView kRight = u"\\qr";
constexpr QStringView kLeftToRight = u"\\ltrpar\\ql";

// One row of codes that share a font; an empty family stands for the main font.
struct FontRow
{
    int first = 0;
    int last = 0;
    QStringView family;
    double factor = 1;
    int rtfFont = 0;
    QStringView paragraph;
};

constexpr std::array kFontRows{
    FontRow{-32768, kLastMainFontCode, {}, 1, 2, kLeftToRight},
    FontRow{218, 218, u"OrvaneFra", 1, 11, kLeft},
    FontRow{219, 221, u"OrvaneGrm", 1, 12, kLeft},
    FontRow{222, 222, u"OrvaneIta", 1, 13, kLeft},
    FontRow{223, 223, u"OrvaneSpa", 1, 14, kLeft},
    FontRow{224, 224, u"굴림", 1.2, 3, kLeftToRight},
    FontRow{225, 225, u"OrvaneSwe", 1, 15, kLeft},
    FontRow{226, 228, u"굴림", 1, 3, kLeftToRight},
    FontRow{301, 301, u"OrvaneHeb", 1.6, 8, kRight},
    FontRow{302, 303, u"OrvaneHebC", 1.6, 9, kRight},
    FontRow{304, 320, u"OrvaneGrk", 1.2, 10, kLeft},
    FontRow{401, 401, u"MS Song", 1.2, 16, kLeft},
};

const FontRow* rowOf(int code)
{
    for (const FontRow& row : kFontRows)
        if (code >= row.first && code <= row.last)
            return &row;
    return nullptr;
}

const UserFont& userFont(int code, const FontSettings& settings)
{
    return settings.userFonts[static_cast<std::size_t>(code - kFirstUserVersion)];
}

double userFactor(const UserFont& font)
{
    return Val(font.size) / kUserSizeUnit;
}

VersionFont screenFont(int code, const FontSettings& settings)
{
    if (isUserVersion(code)) {
        const UserFont& font = userFont(code, settings);
        return {font.font, userFactor(font)};
    }
    const FontRow* row = rowOf(code);
    if (row == nullptr)
        return {u"굴림"_s, 1};
    return {row->family.isEmpty() ? settings.mainFont : row->family.toString(), row->factor};
}

} // namespace

Script scriptOf(int code)
{
    if (isHebrewVersion(code))
        return Script::Hebrew;
    const FontRow* row = rowOf(code);
    return row != nullptr && row->family == u"OrvaneGrk" ? Script::Greek : Script::Other;
}

QString unicodeText(int code, const QString& stored)
{
    switch (scriptOf(code)) {
    case Script::Hebrew:
        return hebrewToUnicode(stored);
    case Script::Greek:
        return greekToUnicode(stored);
    case Script::Other:
        break;
    }
    return stored;
}

QString unicodeOfFont(const QString& stored, const QString& family)
{
    const auto row = std::ranges::find(kFontRows, family, &FontRow::family);
    return row == kFontRows.end() || family.isEmpty() ? stored : unicodeText(row->first, stored);
}

FontSettings defaultFontSettings()
{
    FontSettings settings{u"굴림"_s, {}};
    for (int slot = 1; slot <= kUserVersionCount; ++slot)
        settings.userFonts[static_cast<std::size_t>(slot - 1)] =
            slot <= kKoreanUserFonts ? UserFont{u"굴림"_s, u"10"_s} : UserFont{u"Arial"_s, u"9"_s};
    return settings;
}

VersionFont GetVersionFont(int code, const FontSettings& settings)
{
    VersionFont font = screenFont(code, settings);
    font.alignment = isHebrewVersion(code) ? kGridRightTop : kGridLeftTop;
    return font;
}

VersionFont GetVersionFontEx(int code, const FontSettings& settings)
{
    VersionFont font = screenFont(code, settings);
    font.alignment = isHebrewVersion(code) ? kGridRightCenter : kGridLeftCenter;
    return font;
}

std::optional<VersionRtfFont> GetVersionRtfFont(int code, const FontSettings& settings)
{
    if (isUserVersion(code))
        return VersionRtfFont{kFirstUserRtfFont + code - kFirstUserVersion,
                              userFactor(userFont(code, settings)), kLeft.toString()};
    const FontRow* row = rowOf(code);
    if (row == nullptr)
        return {};
    return VersionRtfFont{row->rtfFont, row->factor, row->paragraph.toString()};
}

VersionPrintFont GetVersionPrintFont(int code, const FontSettings& settings)
{
    if (isUserVersion(code)) {
        const UserFont& font = userFont(code, settings);
        return {font.font, Val(font.size)};
    }
    // Printing doesn't know the main font, nor any Greek code behind those of the catalogue.
    constexpr int kLastGreekVersion = 311;
    const FontRow* row = rowOf(code);
    if (row == nullptr || row->family.isEmpty() || (row->rtfFont == 10 && code > kLastGreekVersion))
        return {u"굴림"_s, kPlainPrintSize};
    return {row->family.toString(), row->factor * kPlainPrintSize};
}

int scaledSize(double factor, int size)
{
    return static_cast<int>(std::floor(factor * size));
}

} // namespace lumen
