// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

namespace lumen {

/// One entry of a font table.
struct RtfFont
{
    int number = 0;
    int charset = -1; ///< -1 when the entry tells none
    QString name;
};

/// Character properties of a run of text.
struct RtfCharStyle
{
    enum Flag : quint8 {
        Bold = 1,
        Italic = 2,
        Underline = 4,
        StrikeOut = 8,
        Superscript = 16,
        Subscript = 32,
        Hidden = 64
    };

    int font = 0;        ///< number of the font, as \f gives it
    int halfPoints = 24; ///< the size that the format has where none is told
    int color = 0;       ///< index into the colour table
    int background = -1; ///< index into the colour table, -1 for none
    quint8 flags = 0;

    friend bool operator==(const RtfCharStyle&, const RtfCharStyle&) = default;
};

enum class RtfAlignment : quint8 { Left, Right, Center, Justify };

/// Paragraph properties; lengths are twips.
struct RtfParagraphStyle
{
    RtfAlignment alignment = RtfAlignment::Left;
    int leftIndent = 0;
    int firstLineIndent = 0;
    int rightIndent = 0;
    int spaceBefore = 0;
    int spaceAfter = 0;
    /// As \sl gives it: 0 for single lines, else by `lineMultiple` 240ths of a line, or twips,
    /// which are a least height, below zero an exact one.
    int lineSpacing = 0;
    bool lineMultiple = false;

    friend bool operator==(const RtfParagraphStyle&, const RtfParagraphStyle&) = default;
};

/// Text of one style, by position in the content's text.
struct RtfRun
{
    qsizetype start = 0;
    qsizetype length = 0;
    int style = 0; ///< index into styles
};

/// A cell of a table's row.
struct RtfCell
{
    int right = 0;               ///< twips from the left margin
    bool continuesAbove = false; ///< the lower part of a cell that reaches over rows
    bool bordered = false;
};

/// A row of a table. Its cells' texts are the paragraphs that bear its number.
struct RtfRow
{
    int left = 0; ///< twips
    std::vector<RtfCell> cells;
};

/// A picture; U+FFFC stands for it in the text.
struct RtfPicture
{
    enum class Kind : quint8 { Unknown, Png, Jpeg, Dib, Metafile };

    Kind kind = Kind::Unknown;
    QByteArray data;  ///< the file, a bitmap without its file head
    QSize size;       ///< shown, twips; empty where nothing tells it
    QByteArray group; ///< the whole RTF group that it came in, "" where it can't be written back
};

/// One paragraph. Its end is the position of its line feed, or of the text's end for the last one.
struct RtfParagraph
{
    qsizetype end = 0;
    std::size_t firstRun = 0;
    std::size_t runCount = 0;
    int endStyle = 0; ///< character style of the paragraph's end, index into styles
    int row = -1;     ///< of the table that it stands in, index into rows
    bool endsCell = false;
    RtfParagraphStyle style;
};

/// A document read from RTF, as plain values. A paragraph end, that of a cell too, is one line feed
/// in the text, a line break within a paragraph U+2028, so that positions are those of a display.
struct RtfContent
{
    QString text;
    std::vector<RtfParagraph> paragraphs; ///< at least one
    std::vector<RtfRun> runs;
    std::vector<RtfCharStyle> styles;
    std::vector<RtfRow> rows;
    std::vector<RtfPicture> pictures; ///< in the order in which they stand in the text
    std::vector<RtfFont> fonts;
    /// Nothing stands for the automatic colour, an entry without parts.
    std::vector<std::optional<RgbLong>> colors;
    std::optional<int> tabWidth; ///< twips
    /// Something that can't be shown was passed over: a note, a drawing, an embedded object.
    bool isIncomplete = false;

    /// The entry of a font number, nullptr when the table has none.
    const RtfFont* font(int number) const;
    /// The colour of an index, nothing for the automatic one and outside the table.
    std::optional<RgbLong> color(int index) const;
};

/// Bytes of code page 949 that are no RTF, as a document of one style.
RtfContent plainTextContent(QByteArrayView bytes);

} // namespace lumen
