// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/printing/print_page.h"

#include <QString>

#include <vector>

class QTextDocument;

namespace lumen {

/// How a plain text looks on paper.
struct PrintLook
{
    QString family = QStringLiteral("굴림");
    double points = 10;
    bool bold = false;
    QColor color = Qt::black;
    Qt::Alignment align = Qt::AlignLeft;
    bool rightToLeft = false;
    bool wraps = true; ///< else each line is as long as its text, and is cut where its room ends
};

/// What can't be parted by the end of a page: a line of text, a picture, the lines that stand side
/// by side in a table's row. Twips from the top of the flow.
struct FlowBand
{
    double top = 0;
    double bottom = 0;
    int paragraph = 0;
    std::vector<PageItem> items;
};

/// A text laid out once for a width, without pages.
struct TextFlow
{
    double height = 0;
    std::vector<FlowBand> bands; ///< from top to bottom, without overlap
    std::vector<PageFill> fills; ///< borders and grounds; they are cut where pages end

    /// The band behind the last one that fits into `room` twips when the text goes on from `first`;
    /// at least one. A paragraph's first or last line doesn't stay alone where that can be helped;
    /// `isTop` tells that nothing stands above on the page.
    std::size_t fitting(std::size_t first, double room, bool isTop) const;
    /// The items between two bands, the upper edge of the first one coming to `at`.
    std::vector<PageItem> piece(std::size_t first, std::size_t behind, const QPointF& at) const;
    /// The height of these bands.
    double heightOf(std::size_t first, std::size_t behind) const;
};

/// Lays out paragraphs parted by "\n". Letters of the program's Hebrew and Greek fonts come as
/// Unicode in a font that holds them.
TextFlow flowOfText(const QString& text, const PrintLook& look, double width);
/// Lays out a document, which is changed: what a page can't hold shrinks, and letters as above.
/// `pageHeight` is the height of the room on a page, twips.
TextFlow flowOfDocument(QTextDocument& document, double width, double pageHeight);
/// The same of an RTF text as a database keeps it. Tab stops in twips; 0: the text's own.
TextFlow flowOfRtf(const QString& rtf, double width, double pageHeight, int tabWidth = 0);

} // namespace lumen
