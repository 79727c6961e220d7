// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace lumen {

/// Text as the Korean code page 949: one byte for ASCII, two for all else. What the page lacks
/// becomes "?", one for a surrogate pair.
QByteArray toCodePage949(QStringView text);

/// Bytes of code page 949 as text. A bad or cut pair becomes U+FFFD; the byte behind a bad lead
/// byte is read anew when it is no trail byte, so that a line end is never swallowed.
QString fromCodePage949(QByteArrayView bytes);

/// The content of a text file: of the code page, or UTF-8 with a byte order mark when the page
/// lacks a character of the text.
QByteArray textFileContent(const QString& text);

/// The code of one UTF-16 unit, lead byte times 256 plus trail byte; nothing for a unit that the
/// page lacks.
std::optional<std::uint16_t> code949(char16_t unit);
/// The UTF-16 unit of a code, nothing for a code that is not assigned.
std::optional<char16_t> unit949(std::uint16_t code);

/// True for the bytes that open a pair, 0x81 to 0xFE.
bool isLeadByte949(unsigned char byte);
/// True for the bytes that may stand second in a pair.
bool isTrailByte949(unsigned char byte);

} // namespace lumen
