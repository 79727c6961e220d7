// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_document_writer.h"

#include "text/rtf/rtf_writer.h"

#include <QFontInfo>
#include <QTextBlock>
#include <QTextFragment>

#include <cmath>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

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
             block.isValid() && block.position() <= end; block = block.next()) {
            addParagraphFormat(block.blockFormat());
            addFragments(block, start, end);
            if (block.position() + block.length() <= end)
                addMark();
        }
        if (m_options.lastPar == LastPar::EndsDocument)
            addMark();
        return toRtfBytes(head() + m_body + u'}', RtfCoding::SevenBit);
    }

private:
    QString head() const;
    void addParagraphFormat(const QTextBlockFormat& format);
    void addFragments(const QTextBlock& block, int start, int end);
    QString charWords(const QTextCharFormat& format);
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
};

QString Writer::head() const
{
    return u"{\\rtf1\\ansi\\ansicpg949\\deff0\\deflang1042{\\fonttbl"_s + m_tables.fontEntries() +
           u"}\r\n{\\colortbl ;"_s + m_tables.colorEntries() + u"}\r\n\\uc1"_s;
}

void Writer::addParagraphFormat(const QTextBlockFormat& format)
{
    QString words = u"\\pard"_s + alignmentWord(format.alignment()).toString();
    const auto addIndent = [&](QStringView word, double pixels) {
        const auto twips = std::lround(pixels / m_options.pixelsPerTwip);
        if (twips != 0)
            words += word.toString() + QString::number(twips);
    };
    addIndent(u"\\li", format.leftMargin());
    addIndent(u"\\fi", format.textIndent());
    addIndent(u"\\ri", format.rightMargin());
    if (words == m_paragraphWords)
        return;
    m_paragraphWords = words;
    m_body += words + u' ';
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
