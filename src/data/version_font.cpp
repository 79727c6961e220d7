// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_font.h"

#include "text/basic_text.h"
#include "text/original/original_unicode.h"
#include "text/rtf/rtf_tables.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kGridLeftTop = 0;
constexpr int kGridLeftCenter = 1;
constexpr int kGridRightTop = 6;
constexpr int kGridRightCenter = 7;
// The size at which a user font has the factor 1.
constexpr double kUserSizeUnit = 10;
constexpr double kPlainPrintSize = 10;

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
    const Typeface& face = *versionRow(code).face;
    return {face.family.isEmpty() ? settings.mainFont : face.family.toString(), face.factor};
}

} // namespace

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
    for (const VersionRow& row : versionRows())
        if (row.script != Script::Other && row.face->family == family)
            return unicodeText(row.code, stored);
    return stored;
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
                              userFactor(userFont(code, settings)),
                              versionRow(code).face->paragraph.toString()};
    const Typeface& face = *versionRow(code).face;
    if (face.rtfFont == 0)
        return {};
    return VersionRtfFont{face.rtfFont, face.factor, face.paragraph.toString()};
}

VersionPrintFont GetVersionPrintFont(int code, const FontSettings& settings)
{
    if (isUserVersion(code)) {
        const UserFont& font = userFont(code, settings);
        return {font.font, Val(font.size)};
    }
    // Printing doesn't know the main font.
    const Typeface& face = *versionRow(code).face;
    if (face.family.isEmpty() || !face.printed)
        return {u"굴림"_s, kPlainPrintSize};
    return {face.family.toString(), face.factor * kPlainPrintSize};
}

int scaledSize(double factor, int size)
{
    return static_cast<int>(std::floor(factor * size));
}

} // namespace lumen
