// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

class QString;
class QTextDocument;

namespace lumen {

/// A document as a file of the Hangul word processor (HWPX): letters, paragraphs and tables with
/// their forms on A4 pages; "[그림]" stands for a picture. "" when it could not be made.
QByteArray hwpxBytes(const QTextDocument& document, const QString& title);

} // namespace lumen
