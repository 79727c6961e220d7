// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/rtf/rtf_content.h"

#include <QByteArrayView>

namespace lumen {

/// True for bytes that begin as an RTF document does.
bool isRtf(QByteArrayView bytes);

/// Reads a document. Text bytes are of code page 949, unless the head names another page. Broken
/// input gives what could be read up to the break; bytes that are no RTF at all are plain text of
/// code page 949.
RtfContent parseRtf(QByteArrayView bytes);

} // namespace lumen
