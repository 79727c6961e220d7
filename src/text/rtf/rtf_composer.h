// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"
#include "text/rtf/rtf_tables.h"
#include "text/rtf/rtf_writer.h"

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace lumen {

/// What the head of a composed chapter takes from the user's settings.
struct RtfSettings
{
    QString mainFont;
    RgbLong defVerColor = 0;
    RgbLong ver1Color = 0;
    RgbLong ver2Color = 0;
    RgbLong ver3Color = 0;
    /// The text size step, 1 to 5.
    int fontSize = 3;
    std::array<QString, kUserFontCount> userFonts;
};

/// Database text as RTF: the three signs of the format are quoted, the fullwidth brackets become
/// escapes, and six symbols that Western fonts lack are put into the Korean font f2.
QString RtfEscape(QStringView value);
inline QString RtfEscape(const QString& value)
{
    return RtfEscape(QStringView(value));
}
/// The same for a field that may be Null, which gives "".
QString RtfEscape(const std::optional<QString>& value);

/// The head of a composed chapter, from the opening brace to the end of the font table. The caller
/// adds the text and the closing brace.
QString rtfDocumentHeader(const RtfSettings& settings);

} // namespace lumen
