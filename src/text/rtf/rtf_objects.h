// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTextFormat>

namespace lumen {

// What documents made from RTF keep with their formats, beyond what the toolkit knows.

/// Of an image's format: the RTF group that it came in, to be written back as it is (QByteArray).
inline constexpr int kPictureGroup = QTextFormat::UserProperty + 1;
/// Of a block's format: the toolkit's empty line before a table that opens a text; no line of it.
inline constexpr int kBeforeTable = QTextFormat::UserProperty + 2;

} // namespace lumen
