// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/rtf/rtf_reader.h"

#include <QByteArray>
#include <QTextCursor>
#include <QTextDocument>

namespace lumen {

struct RtfWriteOptions
{
    /// Of the screen that the document was made for: indents are kept in pixels there.
    double pixelsPerTwip = 96.0 / 1440.0;
    /// EndsDocument closes the last paragraph with a mark too, as rich text boxes do; it is read
    /// back with the same value.
    LastPar lastPar = LastPar::EndsParagraph;
};

/// The whole document as RTF of code page 949 in seven-bit form: what isn't ASCII stands as \'xx,
/// what the page lacks as \uN?. Keeps fonts, sizes, colours, bold, italic, underline, strike-out,
/// raised and lowered text, alignment and indents.
QByteArray writeRtf(const QTextDocument& document, const RtfWriteOptions& options = {});

/// The cursor's selection as an RTF document of its own; without a selection a document without
/// text.
QByteArray writeRtf(const QTextCursor& selection, const RtfWriteOptions& options = {});

} // namespace lumen
