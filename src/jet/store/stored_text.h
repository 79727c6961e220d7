// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <string_view>

namespace lumen {

// Texts of a store are data from their first character on. QString's own converters take a leading
// U+FEFF for a byte order mark and drop it, so that a pattern of it alone would fit every text.

/// UTF-8 as a text; a broken sequence becomes U+FFFD.
inline QString fromUtf8(std::string_view bytes)
{
    const QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return bytes.starts_with("\xEF\xBB\xBF") ? QChar(0xFEFF) + text : text;
}

/// Code points as a text.
inline QString fromCodePoints(std::u32string_view points)
{
    const QString text = QString::fromUcs4(points.data(), static_cast<qsizetype>(points.size()));
    return points.starts_with(U'\uFEFF') ? QChar(0xFEFF) + text : text;
}

} // namespace lumen
