// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_reader.h"

#include "text/rtf/rtf_objects.h"
#include "text/rtf/rtf_parser.h"
#include "text/rtf/rtf_picture_reader.h"
#include "text/rtf/rtf_table_filler.h"

#include <QCryptographicHash>
#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QUrl>

#include <cstdlib>
#include <vector>

namespace lumen {
namespace {

constexpr int kSingleSpacing = 100;
constexpr int kLineUnit = 240; // of \sl, for a single line

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
        bool opensBlock = true; // the cursor stands in a block that the paragraph may have
        for (std::size_t i = 0; i < m_content.paragraphs.size();) {
            const RtfParagraph& paragraph = m_content.paragraphs[i];
            if (paragraph.row >= 0) {
                if (i == 0 && cursor.atStart())
                    markBeforeTable(cursor);
                i = RtfTableFiller(m_content, m_options.pixelsPerTwip)
                        .fill(cursor, i,
                              [this](QTextCursor& inside, const RtfParagraph& inCell, bool first) {
                                  fillParagraph(inside, inCell, first, false);
                              });
                opensBlock = true;
                keepFirstBlock = false;
                continue;
            }
            fillParagraph(cursor, paragraph, opensBlock, keepFirstBlock && i == 0);
            opensBlock = false;
            ++i;
        }
    }

private:
    static void markBeforeTable(QTextCursor& cursor)
    {
        QTextBlockFormat format;
        format.setProperty(kBeforeTable, true);
        cursor.mergeBlockFormat(format);
    }

    void fillParagraph(QTextCursor& cursor, const RtfParagraph& paragraph, bool opensBlock,
                       bool keepBlock)
    {
        const QTextCharFormat& end = formatOf(paragraph.endStyle);
        if (!opensBlock) {
            cursor.insertBlock(blockFormat(paragraph.style), end);
        } else if (!keepBlock) {
            cursor.setBlockFormat(blockFormat(paragraph.style));
            // Merged, as the format of a cell's first block tells how far the cell reaches.
            if (paragraph.row >= 0)
                cursor.mergeBlockCharFormat(end);
            else
                cursor.setBlockCharFormat(end);
        }
        for (std::size_t r = 0; r < paragraph.runCount; ++r)
            insertRun(cursor, m_content.runs[paragraph.firstRun + r]);
    }

    const QTextCharFormat& formatOf(int style) const
    {
        return m_formats[static_cast<std::size_t>(style)];
    }

    void insertRun(QTextCursor& cursor, const RtfRun& run)
    {
        const QTextCharFormat& format = formatOf(run.style);
        const qsizetype end = run.start + run.length;
        for (qsizetype at = run.start; at < end;) {
            qsizetype picture = m_content.pictures.empty()
                                    ? -1
                                    : m_content.text.indexOf(QChar::ObjectReplacementCharacter, at);
            if (picture < 0 || picture > end)
                picture = end;
            if (picture > at)
                cursor.insertText(
                    QString::fromRawData(m_content.text.constData() + at, picture - at), format);
            if (picture < end)
                insertPicture(cursor);
            at = picture + 1;
        }
    }

    // Pictures come in the order of the text.
    void insertPicture(QTextCursor& cursor)
    {
        const RtfPicture& picture = m_content.pictures[m_nextPicture++];
        const QImage image = toImage(picture);
        const QByteArray sum =
            QCryptographicHash::hash(picture.data, QCryptographicHash::Sha1).toHex();
        const QString name = QStringLiteral("picture:") + QString::fromLatin1(sum);
        cursor.document()->addResource(QTextDocument::ImageResource, QUrl(name), image);
        QTextImageFormat format;
        format.setName(name);
        const bool isSized = !picture.size.isEmpty();
        format.setWidth(isSized ? picture.size.width() * m_options.pixelsPerTwip : image.width());
        format.setHeight(isSized ? picture.size.height() * m_options.pixelsPerTwip
                                 : image.height());
        if (!picture.group.isEmpty())
            format.setProperty(kPictureGroup, picture.group);
        cursor.insertImage(format);
    }

    void setLineSpacing(const RtfParagraphStyle& style)
    {
        const int spacing = style.lineSpacing;
        if (m_options.lineSpacingPercent != kSingleSpacing)
            m_blockFormat.setLineHeight(m_options.lineSpacingPercent,
                                        QTextBlockFormat::ProportionalHeight);
        else if (spacing != 0 && style.lineMultiple)
            m_blockFormat.setLineHeight(spacing * 100.0 / kLineUnit,
                                        QTextBlockFormat::ProportionalHeight);
        else if (spacing != 0)
            m_blockFormat.setLineHeight(std::abs(spacing) * m_options.pixelsPerTwip,
                                        spacing > 0 ? QTextBlockFormat::MinimumHeight
                                                    : QTextBlockFormat::FixedHeight);
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
        const int below =
            m_options.paragraphSpacing != 0 ? m_options.paragraphSpacing : style.spaceAfter;
        if (below != 0)
            m_blockFormat.setBottomMargin(pixels(below));
        if (style.spaceBefore != 0)
            m_blockFormat.setTopMargin(pixels(style.spaceBefore));
        setLineSpacing(style);
        return m_blockFormat;
    }

    const RtfContent& m_content;
    const RtfReadOptions& m_options;
    std::vector<QTextCharFormat> m_formats;
    QTextBlockFormat m_blockFormat;
    RtfParagraphStyle m_blockStyle;
    bool m_hasBlockFormat = false;
    std::size_t m_nextPicture = 0;
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

bool readRtf(QByteArrayView rtf, QTextDocument& document, const RtfReadOptions& options)
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
    return !content.isIncomplete;
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
    RtfContent content = parse(rtf, lastPar);
    for (std::size_t i = 0; i + 1 < content.paragraphs.size(); ++i)
        if (content.paragraphs[i].endsCell &&
            content.paragraphs[i].row == content.paragraphs[i + 1].row)
            content.text[content.paragraphs[i].end] = u'\t';
    return content.text.replace(QChar::ObjectReplacementCharacter, u' ');
}

} // namespace lumen
