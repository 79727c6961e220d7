// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/versions.h"

#include <QString>

#include <array>
#include <optional>

namespace lumen {

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
/// Nothing for a code that no version can have.
std::optional<VersionRtfFont> GetVersionRtfFont(int code, const FontSettings& settings);
VersionPrintFont GetVersionPrintFont(int code, const FontSettings& settings);

/// Int(factor * size), in the unit of `size`.
int scaledSize(double factor, int size);

} // namespace lumen
