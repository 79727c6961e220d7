// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_reader.h"

#include "text/rtf/rtf_parser.h"

#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCharFormat>

#include <vector>

namespace lumen {
namespace {

constexpr int kSingleSpacing = 100;

QColor toColor(RgbLong color)
{
    return {redPart(color), greenPart(color), bluePart(color)};
}

Qt::Alignment toAlignment(RtfAlignment alignment)
{
    switch (alignment) {
    case RtfAlignment::Right:
        return Qt::AlignRight;
    case RtfAlignment::Center:
        return Qt::AlignHCenter;
    case RtfAlignment::Justify:
        return Qt::AlignJustify;
    case RtfAlignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

QTextCharFormat toCharFormat(const RtfCharStyle& style, const RtfContent& content,
                             const RtfReadOptions& options)
{
    QTextCharFormat format;
    const RtfFont* font = content.font(style.font);
    if (font && !font->name.isEmpty())
        format.setFontFamilies(
            {options.fontResolver ? options.fontResolver(font->name) : font->name});
    format.setFontPointSize(style.halfPoints / 2.0);
    if (const auto color = content.color(style.color))
        format.setForeground(toColor(*color));
    if (const auto color = content.color(style.background))
        format.setBackground(toColor(*color));
    const auto has = [&style](RtfCharStyle::Flag flag) { return (style.flags & flag) != 0; };
    if (has(RtfCharStyle::Bold))
        format.setFontWeight(QFont::Bold);
    if (has(RtfCharStyle::Italic))
        format.setFontItalic(true);
    if (has(RtfCharStyle::Underline))
        format.setFontUnderline(true);
    if (has(RtfCharStyle::StrikeOut))
        format.setFontStrikeOut(true);
    if (has(RtfCharStyle::Superscript))
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    if (has(RtfCharStyle::Subscript))
        format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    return format;
}

// Puts a content into a document; formats are made once for each style, since a chapter has
// thousands of runs and hardly ten styles.
class Filler
{
public:
    Filler(const RtfContent& content, const RtfReadOptions& options)
        : m_content(content), m_options(options)
    {
        m_formats.reserve(content.styles.size());
        for (const RtfCharStyle& style : content.styles)
            m_formats.push_back(toCharFormat(style, content, options));
    }

    void fill(QTextCursor& cursor, bool keepFirstBlock)
    {
        for (std::size_t i = 0; i < m_content.paragraphs.size(); ++i) {
            const RtfParagraph& paragraph = m_content.paragraphs[i];
            const QTextCharFormat& end = formatOf(paragraph.endStyle);
            if (i > 0) {
                cursor.insertBlock(blockFormat(paragraph.style), end);
            } else if (!keepFirstBlock) {
                cursor.setBlockFormat(blockFormat(paragraph.style));
                cursor.setBlockCharFormat(end);
            }
            for (std::size_t r = 0; r < paragraph.runCount; ++r)
                insertRun(cursor, m_content.runs[paragraph.firstRun + r]);
        }
    }

private:
    const QTextCharFormat& formatOf(int style) const
    {
        return m_formats[static_cast<std::size_t>(style)];
    }

    void insertRun(QTextCursor& cursor, const RtfRun& run) const
    {
        const QChar* text = m_content.text.constData() + run.start;
        cursor.insertText(QString::fromRawData(text, run.length), formatOf(run.style));
    }

    // Neighbours mostly share their format.
    const QTextBlockFormat& blockFormat(const RtfParagraphStyle& style)
    {
        if (m_hasBlockFormat && style == m_blockStyle)
            return m_blockFormat;
        m_hasBlockFormat = true;
        m_blockStyle = style;
        const auto pixels = [this](int twips) { return twips * m_options.pixelsPerTwip; };
        m_blockFormat = QTextBlockFormat();
        m_blockFormat.setAlignment(toAlignment(style.alignment));
        // The modules hold right-to-left text in display order: nothing is left to be turned.
        m_blockFormat.setLayoutDirection(Qt::LeftToRight);
        if (style.leftIndent != 0)
            m_blockFormat.setLeftMargin(pixels(style.leftIndent));
        if (style.firstLineIndent != 0)
            m_blockFormat.setTextIndent(pixels(style.firstLineIndent));
        if (style.rightIndent != 0)
            m_blockFormat.setRightMargin(pixels(style.rightIndent));
        if (m_options.paragraphSpacing != 0)
            m_blockFormat.setBottomMargin(pixels(m_options.paragraphSpacing));
        if (m_options.lineSpacingPercent != kSingleSpacing)
            m_blockFormat.setLineHeight(m_options.lineSpacingPercent,
                                        QTextBlockFormat::ProportionalHeight);
        return m_blockFormat;
    }

    const RtfContent& m_content;
    const RtfReadOptions& m_options;
    std::vector<QTextCharFormat> m_formats;
    QTextBlockFormat m_blockFormat;
    RtfParagraphStyle m_blockStyle;
    bool m_hasBlockFormat = false;
};

RtfContent parse(QByteArrayView rtf, LastPar lastPar)
{
    RtfContent content = parseRtf(rtf);
    const std::size_t count = content.paragraphs.size();
    const bool isClosed = count > 1 && content.paragraphs[count - 2].end + 1 == content.text.size();
    if (lastPar == LastPar::EndsDocument && isClosed && isRtf(rtf)) {
        content.paragraphs.pop_back();
        content.text.chop(1);
    }
    return content;
}

void setTabWidth(QTextDocument& document, const RtfContent& content, const RtfReadOptions& options)
{
    const int twips = options.tabWidth > 0 ? options.tabWidth : content.tabWidth.value_or(0);
    if (twips <= 0)
        return;
    QTextOption option = document.defaultTextOption();
    option.setTabStopDistance(twips * options.pixelsPerTwip);
    document.setDefaultTextOption(option);
}

} // namespace

void readRtf(QByteArrayView rtf, QTextDocument& document, const RtfReadOptions& options)
{
    const RtfContent content = parse(rtf, options.lastPar);
    const bool hadUndo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    document.clear();
    setTabWidth(document, content, options);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    Filler(content, options).fill(cursor, false);
    cursor.endEditBlock();
    document.setUndoRedoEnabled(hadUndo);
}

void insertRtf(QByteArrayView rtf, QTextCursor& cursor, const RtfReadOptions& options)
{
    const RtfContent content = parse(rtf, options.lastPar);
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const bool isWithinText = cursor.block().length() > 1;
    Filler(content, options).fill(cursor, isWithinText);
    cursor.endEditBlock();
}

QString rtfToPlainText(QByteArrayView rtf, LastPar lastPar)
{
    return parse(rtf, lastPar).text;
}

} // namespace lumen
