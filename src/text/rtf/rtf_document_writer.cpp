// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_document_writer.h"

#include "text/rtf/rtf_objects.h"
#include "text/rtf/rtf_writer.h"

#include <QBuffer>
#include <QFontInfo>
#include <QImage>
#include <QTextBlock>
#include <QTextFragment>
#include <QTextTable>
#include <QUrl>

#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Of a table that tells no widths, twips; about what a page has between its margins.
constexpr int kTableWidth = 9000;
constexpr int kLineUnit = 240; // of \sl, for a single line

QStringView alignmentWord(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignRight)
        return u"\\qr";
    if (alignment & Qt::AlignHCenter)
        return u"\\qc";
    if (alignment & Qt::AlignJustify)
        return u"\\qj";
    return u"\\ql";
}

class Writer
{
public:
    Writer(const QTextDocument& document, const RtfWriteOptions& options)
        : m_document(document), m_options(options)
    {
        fontNumber(document.defaultFont().family());
    }

    QByteArray write(int start, int end)
    {
        for (QTextBlock block = m_document.findBlock(start);
             block.isValid() && block.position() <= end;) {
            if (const QTextTable* table = tableOf(block)) {
                addTable(*table, start, end);
                block = m_document.findBlock(table->lastPosition() + 1);
                continue;
            }
            const bool isLine = block.length() > 1 || !tableOf(block.next()) ||
                                !block.blockFormat().boolProperty(kBeforeTable);
            if (isLine)
                addParagraph(block, start, end);
            block = block.next();
        }
        if (m_options.lastPar == LastPar::EndsDocument)
            addMark();
        return toRtfBytes(head() + m_body + u'}', RtfCoding::SevenBit);
    }

private:
    QString head() const;
    const QTextTable* tableOf(const QTextBlock& block) const;
    void addTable(const QTextTable& table, int start, int end);
    void addRowHead(const QTextTable& table, int row);
    void addCell(const QTextTableCell& cell);
    void addParagraph(const QTextBlock& block, int start, int end);
    void addPicture(const QTextImageFormat& format);
    void addParagraphFormat(const QTextBlockFormat& format);
    void addFragments(const QTextBlock& block, int start, int end);
    QString charWords(const QTextCharFormat& format);
    QString lineSpacingWords(const QTextBlockFormat& format) const;
    void addMark() { m_body += u"\\par\r\n"_s; }

    // Every font is told to be Korean: any of them may be given Korean text, and other programs
    // read the escapes by the charset.
    int fontNumber(const QString& family) { return m_tables.fontNumber(family, RtfFace::Korean); }

    int colorNumber(const QColor& color)
    {
        return m_tables.colorNumber(RGB(color.red(), color.green(), color.blue()));
    }

    const QTextDocument& m_document;
    const RtfWriteOptions& m_options;
    RtfTables m_tables{0};
    QString m_body;
    QString m_paragraphWords;
    QString m_charWords;
    bool m_isInTable = false;
};

QString Writer::head() const
{
    return u"{\\rtf1\\ansi\\ansicpg949\\deff0\\deflang1042{\\fonttbl"_s + m_tables.fontEntries() +
           u"}\r\n{\\colortbl ;"_s + m_tables.colorEntries() + u"}\r\n\\uc1"_s;
}

// The outermost one: what tables hold within their cells is written as paragraphs.
const QTextTable* Writer::tableOf(const QTextBlock& block) const
{
    const QTextTable* outermost = nullptr;
    if (!block.isValid())
        return nullptr;
    for (const QTextFrame* frame = m_document.frameAt(block.position()); frame;
         frame = frame->parentFrame())
        if (const auto* table = qobject_cast<const QTextTable*>(frame))
            outermost = table;
    return outermost;
}

void Writer::addTable(const QTextTable& table, int start, int end)
{
    m_isInTable = true;
    for (int row = 0; row < table.rows(); ++row) {
        const int first = table.cellAt(row, 0).firstPosition();
        const int last = table.cellAt(row, table.columns() - 1).lastPosition();
        if (last < start || first > end)
            continue;
        addRowHead(table, row);
        for (int column = 0; column < table.columns();) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() == row)
                addCell(cell);
            m_body += u"\\cell\r\n"_s;
            column = std::max(column + 1, cell.column() + cell.columnSpan());
        }
        m_body += u"\\row\r\n"_s;
    }
    m_isInTable = false;
    m_paragraphWords.clear();
}

void Writer::addRowHead(const QTextTable& table, int row)
{
    const QList<QTextLength> widths = table.format().columnWidthConstraints();
    std::vector<int> edges;
    double edge = 0;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextLength width = widths.value(column);
        if (width.type() == QTextLength::FixedLength)
            edge += width.rawValue() / m_options.pixelsPerTwip;
        else if (width.type() == QTextLength::PercentageLength)
            edge += width.rawValue() * kTableWidth / 100;
        else
            edge += double(kTableWidth) / table.columns();
        edges.push_back(static_cast<int>(std::lround(edge)));
    }
    m_body += u"\\trowd\\trgaph60"_s;
    const bool bordered = table.format().border() > 0;
    for (int column = 0; column < table.columns();) {
        const QTextTableCell cell = table.cellAt(row, column);
        if (cell.rowSpan() > 1)
            m_body += cell.row() == row ? u"\\clvmgf"_s : u"\\clvmrg"_s;
        if (bordered)
            for (const char16_t side : {u't', u'l', u'b', u'r'})
                m_body += u"\\clbrdr"_s + QChar(side) + u"\\brdrs\\brdrw10"_s;
        column = std::max(column + 1, cell.column() + cell.columnSpan());
        m_body += u"\\cellx"_s + QString::number(edges[static_cast<std::size_t>(column - 1)]);
    }
    m_body += u"\r\n"_s;
    m_paragraphWords.clear();
}

void Writer::addCell(const QTextTableCell& cell)
{
    const int end = cell.lastPosition();
    for (QTextBlock block = m_document.findBlock(cell.firstPosition());
         block.isValid() && block.position() <= end; block = block.next()) {
        addParagraphFormat(block.blockFormat());
        addFragments(block, block.position(), block.position() + block.length() - 1);
        if (block.position() + block.length() <= end)
            addMark();
    }
}

void Writer::addParagraph(const QTextBlock& block, int start, int end)
{
    addParagraphFormat(block.blockFormat());
    addFragments(block, start, end);
    if (block.position() + block.length() <= end)
        addMark();
}

// One that was read is written as it was; others as PNG.
void Writer::addPicture(const QTextImageFormat& format)
{
    const QByteArray group = format.property(kPictureGroup).toByteArray();
    if (!group.isEmpty()) {
        m_body += QString::fromLatin1(group);
        return;
    }
    const QVariant resource =
        m_document.resource(QTextDocument::ImageResource, QUrl(format.name()));
    const auto image = resource.value<QImage>();
    if (image.isNull())
        return;
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    const auto twips = [this](double pixels, int natural) {
        return QString::number(
            std::lround((pixels > 0 ? pixels : natural) / m_options.pixelsPerTwip));
    };
    m_body += u"{\\pict\\pngblip\\picw%1\\pich%2\\picwgoal%3\\pichgoal%4\r\n"_s.arg(
                  QString::number(image.width()), QString::number(image.height()),
                  twips(format.width(), image.width()), twips(format.height(), image.height())) +
              QString::fromLatin1(file.toHex()) + u'}';
}

void Writer::addParagraphFormat(const QTextBlockFormat& format)
{
    QString words = u"\\pard"_s + (m_isInTable ? u"\\intbl"_s : QString()) +
                    alignmentWord(format.alignment()).toString();
    const auto addIndent = [&](QStringView word, double pixels) {
        const auto twips = std::lround(pixels / m_options.pixelsPerTwip);
        if (twips != 0)
            words += word.toString() + QString::number(twips);
    };
    addIndent(u"\\li", format.leftMargin());
    addIndent(u"\\fi", format.textIndent());
    addIndent(u"\\ri", format.rightMargin());
    addIndent(u"\\sb", format.topMargin());
    addIndent(u"\\sa", format.bottomMargin());
    words += lineSpacingWords(format);
    if (words == m_paragraphWords)
        return;
    m_paragraphWords = words;
    m_body += words + u' ';
}

QString Writer::lineSpacingWords(const QTextBlockFormat& format) const
{
    const auto words = [](double spacing, bool isMultiple) {
        return u"\\sl%1\\slmult%2"_s.arg(std::lround(spacing)).arg(isMultiple ? 1 : 0);
    };
    switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
        return words(format.lineHeight() * kLineUnit / 100, true);
    case QTextBlockFormat::MinimumHeight:
        return words(format.lineHeight() / m_options.pixelsPerTwip, false);
    case QTextBlockFormat::FixedHeight:
        return words(-format.lineHeight() / m_options.pixelsPerTwip, false);
    default:
        return {};
    }
}

void Writer::addFragments(const QTextBlock& block, int start, int end)
{
    const auto useFormat = [this](const QTextCharFormat& format) {
        const QString words = charWords(format);
        if (words != m_charWords)
            m_body += words + u' ';
        m_charWords = words;
    };
    if (block.length() == 1)
        useFormat(block.charFormat());
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int from = std::max(start, fragment.position());
        const int to = std::min(end, fragment.position() + fragment.length());
        if (from >= to)
            continue;
        useFormat(fragment.charFormat());
        if (fragment.charFormat().isImageFormat()) {
            // Like pictures that stand side by side are one fragment.
            for (int i = from; i < to; ++i)
                addPicture(fragment.charFormat().toImageFormat());
            continue;
        }
        const QString text = fragment.text();
        m_body += rtfText(QStringView(text).mid(from - fragment.position(), to - from));
    }
}

QString Writer::charWords(const QTextCharFormat& format)
{
    const QStringList families = format.fontFamilies().toStringList();
    const QFont& standard = m_document.defaultFont();
    const double points =
        format.fontPointSize() > 0 ? format.fontPointSize() : QFontInfo(standard).pointSizeF();
    std::optional<int> color;
    if (format.foreground().style() != Qt::NoBrush)
        color = colorNumber(format.foreground().color());
    QString words = u"\\plain"_s + rtfRunWords(fontNumber(families.value(0, standard.family())),
                                               static_cast<int>(std::lround(points * 2)), color);
    if (format.background().style() != Qt::NoBrush)
        words += u"\\highlight"_s + QString::number(colorNumber(format.background().color()));
    if (format.fontWeight() >= QFont::DemiBold)
        words += u"\\b"_s;
    if (format.fontItalic())
        words += u"\\i"_s;
    if (format.fontUnderline())
        words += u"\\ul"_s;
    if (format.fontStrikeOut())
        words += u"\\strike"_s;
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        words += u"\\super"_s;
    else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        words += u"\\sub"_s;
    return words;
}

} // namespace

QByteArray writeRtf(const QTextDocument& document, const RtfWriteOptions& options)
{
    return Writer(document, options).write(0, document.characterCount() - 1);
}

QByteArray writeRtf(const QTextCursor& selection, const RtfWriteOptions& options)
{
    if (selection.isNull())
        return {};
    return Writer(*selection.document(), options)
        .write(selection.selectionStart(), selection.selectionEnd());
}

} // namespace lumen
