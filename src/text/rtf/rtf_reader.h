// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QTextCursor>
#include <QTextDocument>

#include <functional>

namespace lumen {

/// What the mark of the last paragraph stands for. Rich text boxes close each text with a mark
/// that is no line of its own; in composed chapters each mark ends a paragraph.
enum class LastPar { EndsParagraph, EndsDocument };

/// How a document is shown that RTF doesn't tell.
struct RtfReadOptions
{
    /// Of the single line height.
    int lineSpacingPercent = 100;
    /// Twips; 0 takes the document's own width, where it tells one.
    int tabWidth = 0;
    /// Space below each paragraph, twips.
    int paragraphSpacing = 0;
    /// Of the screen that shows the document.
    double pixelsPerTwip = 96.0 / 1440.0;
    LastPar lastPar = LastPar::EndsParagraph;
    /// The family to take for a name of the font table; without it the name itself.
    std::function<QString(const QString& name)> fontResolver = {};
};

/// Replaces what the document holds by an RTF text (bytes of code page 949). A paragraph end is one
/// position, a line break within a paragraph one too. Broken RTF gives what could be read; bytes
/// that are no RTF come in as plain text. The undo history is emptied. False when the text has
/// something that a document can't show, and that would be lost by writing it.
bool readRtf(QByteArrayView rtf, QTextDocument& document, const RtfReadOptions& options = {});

/// Puts an RTF text in place of the cursor's selection, as one step of undo. Text before its first
/// paragraph end joins the paragraph that it comes into.
void insertRtf(QByteArrayView rtf, QTextCursor& cursor, const RtfReadOptions& options = {});

/// The plain text alone; paragraphs are parted by "\n", the cells of a row by tabs. Pictures are
/// blanks.
QString rtfToPlainText(QByteArrayView rtf, LastPar lastPar = LastPar::EndsParagraph);

} // namespace lumen
