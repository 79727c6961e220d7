// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/rtf/rtf_content.h"

#include <QTextCursor>

#include <functional>

class QTextTable;

namespace lumen {

/// Puts consecutive rows of a content into a document as one table. Rows whose cells end at other
/// places than those of their neighbours become cells that reach over columns.
class RtfTableFiller
{
public:
    RtfTableFiller(const RtfContent& content, double pixelsPerTwip)
        : m_content(content), m_pixelsPerTwip(pixelsPerTwip)
    {
    }

    /// Fills a paragraph's block at the cursor.
    using FillParagraph =
        std::function<void(QTextCursor& cursor, const RtfParagraph& paragraph, bool isFirst)>;

    /// From paragraph `first`, which stands in a row; returns the first one behind the table. The
    /// cursor ends in the block behind it.
    std::size_t fill(QTextCursor& cursor, std::size_t first, const FillParagraph& fillParagraph);

private:
    QTextTable* makeTable(QTextCursor& cursor, int firstRow, int lastRow);
    int columnOf(int edge) const;

    const RtfContent& m_content;
    double m_pixelsPerTwip;
    std::vector<int> m_edges; ///< right edges of the columns, twips, rising
    int m_left = 0;
};

} // namespace lumen
