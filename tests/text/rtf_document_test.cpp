// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_composer.h"
#include "text/rtf/rtf_document_writer.h"
#include "text/rtf/rtf_parser.h"
#include "text/rtf/rtf_reader.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QTextBlock>
#include <QTextFragment>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QTextCharFormat formatAt(const QTextDocument& document, int position)
{
    QTextCursor cursor(const_cast<QTextDocument*>(&document));
    cursor.setPosition(position + 1);
    return cursor.charFormat();
}

// A composed chapter in small: a heading, a Korean verse, a Hebrew one in two lines.
QByteArray sampleChapter()
{
    RtfSettings settings;
    settings.mainFont = u"바탕"_s;
    settings.defVerColor = RGB(200, 0, 0);
    settings.ver1Color = RGB(0, 100, 0);
    return toRtfBytes(rtfDocumentHeader(settings) +
                      u"\\ltrpar\\ql\t{\\f2\\cf1\\b\\fs20『제목』}\\par\\par"
                      "\\ltrpar\\ql{\\f5\\fs16\\cf5 1}\t\\f2\\cf0\\fs20 첫째 절\\par "
                      "\\qr{\\f5\\fs16\\cf5 1}   \\f8\\cf2\\fs32 jih gfe\\par dc ba\\par }"_s);
}

TEST(RtfReader, AComposedChapterBecomesADocument)
{
    QTextDocument document;
    document.setPlainText(u"before"_s);
    readRtf(sampleChapter(), document);
    EXPECT_EQ(document.toPlainText(), u"\t『제목』\n\n1\t첫째 절\n1   jih gfe\ndc ba\n"_s);
    EXPECT_EQ(document.blockCount(), 6);
    EXPECT_FALSE(document.isUndoAvailable());

    const QTextCharFormat heading = formatAt(document, 2);
    EXPECT_EQ(heading.fontFamilies().toStringList(), QStringList{u"바탕"_s});
    EXPECT_EQ(heading.fontWeight(), QFont::Bold);
    EXPECT_EQ(heading.foreground().color(), QColor(37, 21, 102));
    const QTextCharFormat number = formatAt(document, 7);
    EXPECT_EQ(number.fontPointSize(), 8);
    EXPECT_EQ(number.foreground().color(), QColor(0, 0, 255));
    const QTextCharFormat verse = formatAt(document, 9);
    EXPECT_EQ(verse.fontPointSize(), 10);
    EXPECT_EQ(verse.foreground().color(), QColor(200, 0, 0));
    const QTextBlock hebrew = document.findBlockByNumber(3);
    EXPECT_EQ(formatAt(document, hebrew.position() + 5).fontFamilies().toStringList(),
              QStringList{u"OrvaneHeb"_s});
    EXPECT_EQ(hebrew.blockFormat().alignment(), Qt::AlignRight);
    EXPECT_EQ(document.findBlockByNumber(4).blockFormat().alignment(), Qt::AlignRight);
    EXPECT_EQ(document.findBlockByNumber(2).blockFormat().alignment(), Qt::AlignLeft);
}

TEST(RtfReader, PositionsAreThoseOfTheParsedText)
{
    QTextDocument document;
    readRtf("{\\rtf1 a\\line b\\u-10179?\\u-8704?\\par\\par \\'b0\\'a1{\\b x}\\par}", document);
    const QString text = parseRtf("{\\rtf1 a\\line b\\u-10179?\\u-8704?\\par\\par "
                                  "\\'b0\\'a1{\\b x}\\par}")
                             .text;
    ASSERT_EQ(document.characterCount() - 1, text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar shown = document.characterAt(i);
        EXPECT_EQ(shown == QChar::ParagraphSeparator ? QChar(u'\n') : shown, text[i]) << i;
    }
}

TEST(RtfReader, OptionsReachBlocksFontsAndTabs)
{
    RtfReadOptions options;
    options.lineSpacingPercent = 150;
    options.tabWidth = 350;
    options.paragraphSpacing = 144;
    options.pixelsPerTwip = 0.1;
    options.fontResolver = [](const QString& name) { return u"My "_s + name; };
    QTextDocument document;
    readRtf("{\\rtf1{\\fonttbl{\\f0 F;}}\\deftab720\\li300\\fi-300 a\\par b}", document, options);
    EXPECT_DOUBLE_EQ(document.defaultTextOption().tabStopDistance(), 35);
    const QTextBlockFormat block = document.firstBlock().blockFormat();
    EXPECT_EQ(block.lineHeightType(), QTextBlockFormat::ProportionalHeight);
    EXPECT_DOUBLE_EQ(block.lineHeight(), 150);
    EXPECT_DOUBLE_EQ(block.leftMargin(), 30);
    EXPECT_DOUBLE_EQ(block.textIndent(), -30);
    EXPECT_DOUBLE_EQ(block.bottomMargin(), 14.4);
    EXPECT_EQ(formatAt(document, 0).fontFamilies().toStringList(), QStringList{u"My F"_s});
    options.tabWidth = 0;
    readRtf("{\\rtf1\\deftab720 a}", document, options);
    EXPECT_DOUBLE_EQ(document.defaultTextOption().tabStopDistance(), 72);
}

TEST(RtfReader, InsertedTextJoinsItsParagraphAndIsOneStepOfUndo)
{
    QTextDocument document;
    readRtf("{\\rtf1\\qr abcd\\par\\ql e}", document);
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    cursor.setPosition(3, QTextCursor::KeepAnchor);
    insertRtf("{\\rtf1\\qc{\\b X}\\par Y}", cursor);
    EXPECT_EQ(document.toPlainText(), u"aX\nYd\ne"_s);
    EXPECT_EQ(document.firstBlock().blockFormat().alignment(), Qt::AlignRight);
    EXPECT_EQ(formatAt(document, 1).fontWeight(), QFont::Bold);
    EXPECT_EQ(cursor.position(), 4);
    document.undo();
    EXPECT_EQ(document.toPlainText(), u"abcd\ne"_s);
}

TEST(RtfReader, TheClosingMarkIsALineOrNoneByOption)
{
    const QByteArray rtf = "{\\rtf1 a\\par\\par }";
    EXPECT_EQ(rtfToPlainText(rtf), u"a\n\n"_s);
    EXPECT_EQ(rtfToPlainText(rtf, LastPar::EndsDocument), u"a\n"_s);
    EXPECT_EQ(rtfToPlainText("{\\rtf1 a}", LastPar::EndsDocument), u"a"_s);
    EXPECT_EQ(rtfToPlainText("{\\rtf1}", LastPar::EndsDocument), u""_s);
    EXPECT_EQ(rtfToPlainText("a\r\n", LastPar::EndsDocument), u"a\n"_s);
}

// A document with everything that the writer keeps, in blocks that differ.
void fillRich(QTextDocument& document)
{
    QTextCursor cursor(&document);
    QTextCharFormat format;
    format.setFontFamilies({u"굴림체"_s});
    format.setFontPointSize(10.5);
    cursor.insertText(u"한글 {a}\\b; é\u05D0\U0001F600 "_s, format);
    format.setFontWeight(QFont::Bold);
    format.setForeground(QColor(1, 2, 3));
    cursor.insertText(u"굵게"_s, format);
    QTextBlockFormat block;
    block.setAlignment(Qt::AlignRight);
    block.setLeftMargin(20);
    block.setTextIndent(-20);
    cursor.insertBlock(block, format);
    format.setFontItalic(true);
    format.setFontUnderline(true);
    format.setFontStrikeOut(true);
    format.setBackground(QColor(255, 255, 0));
    cursor.insertText(u"a\tb\u2028c"_s, format);
    cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    format = QTextCharFormat();
    format.setFontFamilies({u"Odd;Name"_s});
    format.setFontPointSize(8);
    format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    cursor.insertBlock(QTextBlockFormat(), format);
    cursor.insertText(u"7\u00A0 "_s, format);
    cursor.insertBlock();
}

TEST(RtfWriter, WhatIsWrittenIsReadBackAlike)
{
    QTextDocument document;
    fillRich(document);
    for (const LastPar lastPar : {LastPar::EndsParagraph, LastPar::EndsDocument}) {
        RtfWriteOptions writing;
        writing.lastPar = lastPar;
        RtfReadOptions reading;
        reading.lastPar = lastPar;
        const QByteArray rtf = writeRtf(document, writing);
        QTextDocument copy;
        readRtf(rtf, copy, reading);
        EXPECT_EQ(copy.toRawText(), document.toRawText());
        EXPECT_EQ(writeRtf(copy, writing), rtf);
        EXPECT_EQ(formatAt(copy, 0).fontPointSize(), 10.5);
        EXPECT_EQ(formatAt(copy, 0).fontFamilies().toStringList(), QStringList{u"굴림체"_s});
        const QTextBlock second = copy.findBlockByNumber(1);
        EXPECT_EQ(second.blockFormat().alignment(), Qt::AlignRight);
        EXPECT_NEAR(second.blockFormat().leftMargin(), 20, 0.05);
        EXPECT_NEAR(second.blockFormat().textIndent(), -20, 0.05);
        const QTextCharFormat rich = formatAt(copy, second.position());
        EXPECT_TRUE(rich.fontItalic() && rich.fontUnderline() && rich.fontStrikeOut());
        EXPECT_EQ(rich.foreground().color(), QColor(1, 2, 3));
        EXPECT_EQ(rich.background().color(), QColor(255, 255, 0));
    }
}

TEST(RtfWriter, ASelectionIsADocumentOfItsOwn)
{
    QTextDocument document;
    readRtf("{\\rtf1{\\fonttbl{\\f0 A;}}\\fs20 ab{\\b cd}\\par\\qr ef\\par gh}", document);
    struct Row
    {
        int start;
        int end;
        QString text;
    };
    const Row rows[] = {{1, 3, u"bc"_s}, {3, 6, u"d\ne"_s}, {0, 5, u"abcd\n"_s},
                        {4, 5, u"\n"_s}, {5, 5, u""_s},     {0, 10, u"abcd\nef\ngh"_s}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        QTextCursor cursor(&document);
        cursor.setPosition(row.end);
        cursor.setPosition(row.start, QTextCursor::KeepAnchor);
        EXPECT_EQ(rtfToPlainText(writeRtf(cursor)), row.text);
    }
}

} // namespace
} // namespace lumen
