// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace lumen {

inline constexpr int kUserVersionCount = 15;
/// The code of user slot 1; slot i has the code 900 + i.
inline constexpr int kFirstUserVersion = 901;

/// True for the codes 901 to 915.
constexpr bool isUserVersion(int code)
{
    return code >= kFirstUserVersion && code < kFirstUserVersion + kUserVersionCount;
}

/// True for the Hebrew versions, which hold a verse in display order: it is divided into lines in
/// the font of the version.
constexpr bool isHebrewVersion(int code)
{
    return code >= 301 && code <= 303;
}

/// In which letters a version is stored: Hebrew and Greek as codes of the program's fonts.
enum class Script { Hebrew, Greek, Other };
Script scriptOf(int code);
/// A stored text (unscrambled) as any other program reads it: Hebrew and Greek as Unicode in
/// reading order.
QString unicodeText(int code, const QString& stored);
/// The same for a text that is drawn in a font: other fonts than those of Hebrew and Greek leave
/// it.
QString unicodeOfFont(const QString& stored, const QString& family);

/// The font of one user slot; the size is kept as the text that the settings hold.
struct UserFont
{
    QString font;
    QString size;
};

/// What the font routines take from the settings: the font of Korean and English text and those of
/// the user slots (slot i at index i - 1).
struct FontSettings
{
    QString mainFont;
    std::array<UserFont, kUserVersionCount> userFonts;
};

/// The settings of a program that has stored none.
FontSettings defaultFontSettings();

/// A font for the screen. The factor multiplies the text size, the result is cut to an integer.
struct VersionFont
{
    QString font;
    double factor = 1;
    /// The place of the text in a grid cell: 0 left top, 1 left centre, 6 right top, 7 right
    /// centre.
    int alignment = 0;
};

/// A font as the documents name it: its number in their font table and the paragraph's controls.
struct VersionRtfFont
{
    int font = 0;
    double factor = 1;
    QString paragraph;
};

/// A font for the printer; the size is in points.
struct VersionPrintFont
{
    QString font;
    double size = 10;
};

/// The font of a version; the alignment is 6 for Hebrew, 0 otherwise.
VersionFont GetVersionFont(int code, const FontSettings& settings);
/// The same with the alignment 7 for Hebrew and 1 otherwise.
VersionFont GetVersionFontEx(int code, const FontSettings& settings);
/// Nothing for a code outside the catalogue's ranges.
std::optional<VersionRtfFont> GetVersionRtfFont(int code, const FontSettings& settings);
VersionPrintFont GetVersionPrintFont(int code, const FontSettings& settings);

/// Int(factor * size), in the unit of `size`.
int scaledSize(double factor, int size);

} // namespace lumen
