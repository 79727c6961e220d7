// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_document_writer.h"
#include "text/rtf/rtf_objects.h"
#include "text/rtf/rtf_reader.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTextBlock>
#include <QTextTable>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QByteArray redPicture(const char* format)
{
    QImage image(4, 2, QImage::Format_RGB32);
    image.fill(QColor(200, 0, 0));
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return file;
}

QTextTable* firstTable(const QTextDocument& document)
{
    const auto frames = document.rootFrame()->childFrames();
    return frames.isEmpty() ? nullptr : qobject_cast<QTextTable*>(frames.front());
}

QString cellText(const QTextTable& table, int row, int column)
{
    const QTextTableCell cell = table.cellAt(row, column);
    QTextCursor all = cell.firstCursorPosition();
    all.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
    return all.selectedText();
}

const RtfReadOptions kTenth{.pixelsPerTwip = 0.1};

const QByteArray kTable =
    "{\\rtf1 before\\par\\trowd\\clbrdrt\\brdrs\\cellx1500\\cellx3000\\intbl a\\par two\\cell "
    "b\\cell"
    "\\row\\trowd\\cellx1490\\cellx3000\\intbl{\\b c}\\cell\\qr d\\cell\\row\\pard after\\par}";

TEST(RtfTables, RowsBecomeATableAndGoBack)
{
    QTextDocument document;
    EXPECT_TRUE(
        readRtf(kTable, document, {.pixelsPerTwip = 0.1, .lastPar = LastPar::EndsDocument}));
    for (int round = 0; round < 2; ++round) {
        const QTextTable* table = firstTable(document);
        ASSERT_TRUE(table);
        ASSERT_EQ(table->rows(), 2);
        ASSERT_EQ(table->columns(), 2);
        EXPECT_EQ(cellText(*table, 0, 0), u"a\u2029two"_s);
        EXPECT_EQ(cellText(*table, 1, 1), u"d"_s);
        EXPECT_EQ(table->cellAt(1, 1).firstCursorPosition().blockFormat().alignment(),
                  Qt::AlignRight);
        EXPECT_EQ(table->cellAt(1, 0).lastCursorPosition().charFormat().fontWeight(), QFont::Bold);
        EXPECT_NEAR(table->format().columnWidthConstraints().at(1).rawValue(), 150, 2);
        EXPECT_EQ(table->format().border(), 1);
        EXPECT_EQ(document.toPlainText(), u"before\na\ntwo\nb\nc\nd\nafter"_s);
        const QByteArray rtf =
            writeRtf(document, {.pixelsPerTwip = 0.1, .lastPar = LastPar::EndsDocument});
        readRtf(rtf, document, {.pixelsPerTwip = 0.1, .lastPar = LastPar::EndsDocument});
    }
    EXPECT_EQ(rtfToPlainText(kTable), u"before\na\ntwo\tb\nc\td\nafter\n"_s);
}

TEST(RtfTables, OddTablesKeepTheirText)
{
    struct Row
    {
        const char* name;
        QByteArray rtf;
        QString text;
    };
    const Row rows[] = {
        {"opens the text", "\\trowd\\cellx900\\intbl a\\cell\\row\\pard b\\par", u"a\nb"_s},
        {"no row told", "\\intbl a\\cell b\\cell\\row\\pard c\\par", u"a\tb\nc"_s},
        {"no end of row", "\\trowd\\cellx900\\intbl a\\cell b\\par\\pard c\\par", u"a\nb\nc"_s},
        {"text before the end of row", "\\trowd\\cellx900\\intbl a\\row\\pard b\\par", u"a\nb"_s},
        {"wide below narrow",
         "\\trowd\\cellx900\\cellx1800\\intbl a\\cell b\\cell\\row\\trowd\\cellx1800\\intbl "
         "c\\cell\\row"
         "\\pard d\\par",
         u"a\tb\nc\nd"_s},
        {"one cell down two rows",
         "\\trowd\\clvmgf\\cellx900\\cellx1800\\intbl a\\cell b\\cell\\row"
         "\\trowd\\clvmrg\\cellx900\\cellx1800\\intbl\\cell c\\cell\\row\\pard d\\par",
         u"a\tb\n\tc\nd"_s},
        {"within a cell",
         "\\trowd\\cellx900\\intbl x\\itap2 a\\nestcell "
         "b\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}"
         "{\\nonesttables\\par}\\itap1 y\\cell\\row\\pard d\\par",
         u"xa\tb\ty\nd"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QByteArray rtf = "{\\rtf1 " + row.rtf + "}";
        EXPECT_EQ(rtfToPlainText(rtf, LastPar::EndsDocument), row.text);
        QTextDocument document;
        readRtf(rtf, document, {.lastPar = LastPar::EndsDocument});
        const QByteArray again = writeRtf(document, {.lastPar = LastPar::EndsDocument});
        EXPECT_EQ(rtfToPlainText(again, LastPar::EndsDocument), row.text);
    }
}

TEST(RtfPictures, AreShownAndWrittenBackInTheirGroup)
{
    // A bitmap without its file head, and one in a metafile as rich text boxes make it.
    const QByteArray dib = redPicture("BMP").mid(14);
    QByteArray record(22, '\0');
    record += dib;
    const auto words = static_cast<quint32>((record.size() + 6) / 2);
    QByteArray metafile(18, '\0');
    metafile.append(reinterpret_cast<const char*>(&words), 4).append("\x43\x0F", 2).append(record);
    struct Row
    {
        const char* name;
        QByteArray group;
        bool isRed;
    };
    const Row rows[] = {
        {"png",
         "{\\*\\shppict{\\pict{\\*\\picprop x}\\pngblip\\picwgoal600\\pichgoal300 " +
             redPicture("PNG").toHex() + "}}",
         true},
        {"jpeg",
         "{\\pict\\jpegblip\\picwgoal600\\pichgoal300\r\n" + redPicture("JPG").toHex() + "}", true},
        {"dib", "{\\pict\\dibitmap0\\picwgoal600\\pichgoal300 " + dib.toHex() + "}", true},
        {"object",
         "{\\object\\objemb{\\*\\objdata "
         "0105}{\\result{\\pict\\wmetafile8\\picwgoal600\\pichgoal300 " +
             metafile.toHex() + "}}}",
         true},
        {"drawing", "{\\pict\\emfblip\\picwgoal600\\pichgoal300 01000000}", false},
        {"damaged", "{\\pict\\pngblip\\picwgoal600\\pichgoal300 89504e}", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QTextDocument document;
        EXPECT_TRUE(
            readRtf("{\\rtf1 a" + row.group + "b{\\nonshppict{\\pict 00}}}", document, kTenth));
        ASSERT_EQ(document.toPlainText(), u"a\uFFFCb"_s);
        QTextCursor cursor(&document);
        cursor.setPosition(2);
        const QTextImageFormat format = cursor.charFormat().toImageFormat();
        EXPECT_EQ(QSizeF(format.width(), format.height()), QSizeF(60, 30));
        const auto image =
            document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
        EXPECT_EQ(qRed(image.pixel(1, 1)) > 180 && qGreen(image.pixel(1, 1)) < 40, row.isRed);
        EXPECT_TRUE(writeRtf(document).contains(row.group));
    }
}

TEST(RtfPictures, WhatNeverWasRtfIsWrittenAsPng)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertImage(QImage::fromData(redPicture("PNG")));
    QTextDocument copy;
    readRtf(writeRtf(document), copy);
    ASSERT_EQ(copy.toPlainText(), u"\uFFFC"_s);
    QTextCursor there(&copy);
    there.setPosition(1);
    const QTextImageFormat format = there.charFormat().toImageFormat();
    EXPECT_EQ(
        copy.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>().size(),
        QSize(4, 2));
}

TEST(RtfReader, TellsWhatItCantShow)
{
    for (const char* rtf : {"{\\rtf1 a{\\footnote b}}", "{\\rtf1 a{\\shp{\\*\\shpinst b}}}",
                            "{\\rtf1{\\header x}a}", "{\\rtf1 a{\\object{\\*\\objdata 01}}}"}) {
        QTextDocument document;
        EXPECT_FALSE(readRtf(rtf, document)) << rtf;
        EXPECT_EQ(document.toPlainText(), u"a"_s);
    }
}

TEST(RtfReader, SpacingGoesBothWays)
{
    const QByteArray rtf = "{\\rtf1\\sb120\\sa60\\sl360\\slmult1 a\\par\\pard\\sl-400\\slmult0 b}";
    QTextDocument document;
    readRtf(rtf, document, kTenth);
    for (int round = 0; round < 2; ++round) {
        const QTextBlockFormat first = document.firstBlock().blockFormat();
        EXPECT_DOUBLE_EQ(first.topMargin(), 12);
        EXPECT_DOUBLE_EQ(first.bottomMargin(), 6);
        EXPECT_DOUBLE_EQ(first.lineHeight(), 150);
        const QTextBlockFormat second = document.lastBlock().blockFormat();
        EXPECT_EQ(second.lineHeightType(), QTextBlockFormat::FixedHeight);
        EXPECT_DOUBLE_EQ(second.lineHeight(), 40);
        readRtf(writeRtf(document, {.pixelsPerTwip = 0.1}), document, kTenth);
    }
}

} // namespace
} // namespace lumen
