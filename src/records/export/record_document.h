// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "records/record_values.h"

#include <QTextDocument>

#include <memory>

namespace lumen {

/// Whether a document names the fonts of its texts, or those that are here and draw them.
enum class RecordFonts { AsWritten, Installed };

/// A record laid out to be read: its title, its days and category, then each text under its
/// heading, with fonts, tables and pictures as they were written.
std::unique_ptr<QTextDocument> recordDocument(const RecordProfile& profile,
                                              const RecordBoxes& boxes, RecordFonts fonts);

/// The document as an ODT file, as a PDF file of A4 pages with its fonts in it; "" when it could
/// not be made.
QByteArray odtBytes(const QTextDocument& document);
QByteArray pdfBytes(QTextDocument& document, const QString& title);

} // namespace lumen
