// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_document_writer.h"

#include "text/basic_text.h"
#include "text/codepage949.h"

#include <QFontInfo>
#include <QTextBlock>
#include <QTextFragment>

#include <cmath>

namespace lumen {
namespace {

QByteArray hexByte(int byte)
{
    constexpr char kDigits[] = "0123456789abcdef";
    return QByteArray("\\'") + kDigits[byte >> 4 & 0xF] + kDigits[byte & 0xF];
}

void appendUnit(QByteArray& out, char16_t unit)
{
    if (unit == u'\\' || unit == u'{' || unit == u'}') {
        out.append('\\').append(static_cast<char>(unit));
    } else if (unit == u'\t') {
        out.append("\\tab ");
    } else if (unit == QChar::LineSeparator) {
        out.append("\\line ");
    } else if (unit >= 0x20 && unit < 0x7F) {
        out.append(static_cast<char>(unit));
    } else if (const auto code = code949(unit); code && *code > 0xFF) {
        out.append(hexByte(*code >> 8)).append(hexByte(*code & 0xFF));
    } else if (unit >= 0x20) {
        out.append("\\u").append(QByteArray::number(static_cast<qint16>(unit))).append('?');
    }
}

QByteArray escaped(const QString& text)
{
    QByteArray out;
    out.reserve(text.size() * 4);
    for (const QChar c : text)
        appendUnit(out, c.unicode());
    return out;
}

const char* alignmentWord(Qt::Alignment alignment)
{
    if (alignment & Qt::AlignRight)
        return "\\qr";
    if (alignment & Qt::AlignHCenter)
        return "\\qc";
    if (alignment & Qt::AlignJustify)
        return "\\qj";
    return "\\ql";
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
             block.isValid() && block.position() <= end; block = block.next()) {
            addParagraphFormat(block.blockFormat());
            addFragments(block, start, end);
            if (block.position() + block.length() <= end)
                addMark();
        }
        if (m_options.lastPar == LastPar::EndsDocument)
            addMark();
        return head() + m_body + "}";
    }

private:
    QByteArray head() const;
    void addParagraphFormat(const QTextBlockFormat& format);
    void addFragments(const QTextBlock& block, int start, int end);
    QByteArray charWords(const QTextCharFormat& format);
    void addMark() { m_body += "\\par\r\n"; }

    // A name may not hold what ends it in the table.
    int fontNumber(QString family)
    {
        family.remove(u';');
        if (!m_fonts.contains(family))
            m_fonts.append(family);
        return static_cast<int>(m_fonts.indexOf(family));
    }

    // Counts from 1: entry 0 is the automatic colour.
    int colorNumber(const QColor& color)
    {
        if (!m_colors.contains(color.rgb()))
            m_colors.append(color.rgb());
        return static_cast<int>(m_colors.indexOf(color.rgb())) + 1;
    }

    const QTextDocument& m_document;
    const RtfWriteOptions& m_options;
    QList<QString> m_fonts;
    QList<QRgb> m_colors;
    QByteArray m_body;
    QByteArray m_paragraphWords;
    QByteArray m_charWords;
};

QByteArray Writer::head() const
{
    // The Korean charset for every font: any of them may be given Korean text, and other programs
    // read the escapes by the charset.
    QByteArray head = "{\\rtf1\\ansi\\ansicpg949\\deff0\\deflang1042{\\fonttbl";
    for (qsizetype i = 0; i < m_fonts.size(); ++i)
        head +=
            "{\\f" + QByteArray::number(i) + "\\fnil\\fcharset129 " + escaped(m_fonts[i]) + ";}";
    head += "}\r\n{\\colortbl ;";
    for (const QRgb color : m_colors)
        head += "\\red" + QByteArray::number(qRed(color)) + "\\green" +
                QByteArray::number(qGreen(color)) + "\\blue" + QByteArray::number(qBlue(color)) +
                ";";
    return head + "}\r\n\\uc1";
}

void Writer::addParagraphFormat(const QTextBlockFormat& format)
{
    QByteArray words = QByteArray("\\pard") + alignmentWord(format.alignment());
    const auto addIndent = [&](const char* word, double pixels) {
        const auto twips = std::lround(pixels / m_options.pixelsPerTwip);
        if (twips != 0)
            words += word + QByteArray::number(static_cast<int>(twips));
    };
    addIndent("\\li", format.leftMargin());
    addIndent("\\fi", format.textIndent());
    addIndent("\\ri", format.rightMargin());
    if (words == m_paragraphWords)
        return;
    m_paragraphWords = words;
    m_body += words + " ";
}

void Writer::addFragments(const QTextBlock& block, int start, int end)
{
    const auto useFormat = [this](const QTextCharFormat& format) {
        const QByteArray words = charWords(format);
        if (words != m_charWords)
            m_body += words + " ";
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
        m_body += escaped(fragment.text().mid(from - fragment.position(), to - from));
    }
}

QByteArray Writer::charWords(const QTextCharFormat& format)
{
    const QStringList families = format.fontFamilies().toStringList();
    const QFont& standard = m_document.defaultFont();
    const double points =
        format.fontPointSize() > 0 ? format.fontPointSize() : QFontInfo(standard).pointSizeF();
    const int font = fontNumber(families.isEmpty() ? standard.family() : families.first());
    QByteArray words = "\\plain\\f" + QByteArray::number(font) + "\\fs" +
                       QByteArray::number(static_cast<int>(std::lround(points * 2)));
    if (format.foreground().style() != Qt::NoBrush)
        words += "\\cf" + QByteArray::number(colorNumber(format.foreground().color()));
    if (format.background().style() != Qt::NoBrush)
        words += "\\highlight" + QByteArray::number(colorNumber(format.background().color()));
    if (format.fontWeight() >= QFont::DemiBold)
        words += "\\b";
    if (format.fontItalic())
        words += "\\i";
    if (format.fontUnderline())
        words += "\\ul";
    if (format.fontStrikeOut())
        words += "\\strike";
    if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript)
        words += "\\super";
    else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript)
        words += "\\sub";
    return words;
}

} // namespace

QByteArray writeRtf(const QTextDocument& document, const RtfWriteOptions& options)
{
    return Writer(document, options).write(0, document.characterCount() - 1);
}

QByteArray writeRtf(const QTextCursor& selection, const RtfWriteOptions& options)
{
    if (!selection.document())
        return {};
    return Writer(*selection.document(), options)
        .write(selection.selectionStart(), selection.selectionEnd());
}

} // namespace lumen
