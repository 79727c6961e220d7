// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/rich_text_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class RichTextBoxTest : public testing::Test
{
protected:
    RichTextBoxTest()
    {
        box.resize(400, 200);
        box.show();
        box.onChange = [this] { ++changes; };
        box.onSelectionChange = [this] { ++selections; };
    }

    void compose(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    }

    static void offer(const char* type, const QByteArray& data, const QString& text = {})
    {
        auto content = std::make_unique<QMimeData>();
        content->setData(QLatin1StringView(type), data);
        if (!text.isEmpty())
            content->setText(text);
        QApplication::clipboard()->setMimeData(content.release());
    }

    RichTextBox box;
    int changes = 0;
    int selections = 0;
};

TEST_F(RichTextBoxTest, WhatWasNotEditedIsGivenBackToTheLetter)
{
    // Eight-bit letters, an unknown word, odd blanks: nothing that the writer would make.
    const QString rtf =
        u"{\\rtf1\\ansi\\ansicpg949 {\\fonttbl{\\f0 굴림;}}\\zz9  본문 \\'b0\\'a1\\par\r\n}"_s;
    box.setTextRTF(rtf);
    EXPECT_EQ(box.Text(), u" 본문 가"_s);
    box.select(0, 2);
    box.setSelFontName(box.SelFontName().value()); // looked at, and set to what it is
    box.undo();
    EXPECT_EQ(box.TextRTF(), rtf);

    box.select(1, 0);
    QTest::keyClick(&box, Qt::Key_X);
    EXPECT_GT(changes, 0);
    EXPECT_NE(box.TextRTF(), rtf);
    EXPECT_EQ(box.Text(), u" x본문 가"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.TextRTF(), rtf) << "taken back to what it was";

    box.setTextRTF(u"{\\rtf1 next}"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"next"_s) << "undo goes no further than the record";
}

TEST_F(RichTextBoxTest, ShowingATextIsNoChange)
{
    box.setTextRTF(u"{\\rtf1 a}"_s);
    box.setText(u"b\nc"_s);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(box.SelFontName(), u"굴림체"_s);
    EXPECT_EQ(box.SelFontSize(), 10);
    box.setText(u"{\\rtf1 as RTF}"_s);
    EXPECT_EQ(box.Text(), u"as RTF"_s);
    box.setTextRTF(u"no RTF"_s);
    EXPECT_EQ(box.Text(), u"no RTF"_s);
    EXPECT_FALSE(box.isEdited());
}

TEST_F(RichTextBoxTest, PropertiesOfAMixedSelectionHaveNoValue)
{
    box.setTextRTF(u"{\\rtf1{\\fonttbl{\\f0 A;}{\\f1 B;}}{\\colortbl;\\red255\\green0\\blue0;}"
                   u"\\f0\\fs20 ab\\f1\\b\\i\\ul\\fs30\\cf1 cd\\par\\qc ef}"_s);
    box.select(0, 2);
    EXPECT_EQ(box.SelBold(), false);
    EXPECT_EQ(box.SelFontName(), u"A"_s);
    EXPECT_EQ(box.selColor(), RgbLong(0));
    box.select(2, 2);
    EXPECT_EQ(box.SelBold(), true);
    EXPECT_EQ(box.SelItalic(), true);
    EXPECT_EQ(box.SelUnderline(), true);
    EXPECT_EQ(box.SelFontSize(), 15);
    EXPECT_EQ(box.selColor(), RGB(255, 0, 0));
    EXPECT_EQ(box.SelAlignment(), 0);
    box.select(1, 5);
    EXPECT_EQ(box.SelBold(), std::nullopt);
    EXPECT_EQ(box.SelFontName(), std::nullopt);
    EXPECT_EQ(box.SelFontSize(), std::nullopt);
    EXPECT_EQ(box.selColor(), std::nullopt);
    EXPECT_EQ(box.SelAlignment(), std::nullopt);
    EXPECT_EQ(box.SelText(), u"bcd\ne"_s);

    box.setSelBold(false);
    box.setSelAlignment(1);
    EXPECT_EQ(box.SelBold(), false);
    EXPECT_EQ(box.SelAlignment(), 1);
    EXPECT_EQ(box.SelFontSize(), std::nullopt) << "only what was set has become one";
}

TEST_F(RichTextBoxTest, AFaceChosenAtTheCaretHoldsForWhatIsTypedNext)
{
    box.setTextRTF(u"{\\rtf1{\\fonttbl{\\f0 A;}}\\f0\\fs20 ab}"_s);
    box.select(2, 0);
    box.setSelFontName(u"바탕"_s);
    box.setSelFontSize(14);
    box.setSelColor(RGB(0, 0, 255));
    EXPECT_EQ(changes, 0);
    compose(u"가"_s);
    box.select(2, 1);
    EXPECT_EQ(box.SelText(), u"가"_s);
    EXPECT_EQ(box.SelFontName(), u"바탕"_s);
    EXPECT_EQ(box.SelFontSize(), 14);
    EXPECT_EQ(box.selColor(), RGB(0, 0, 255));
    box.select(0, 2);
    EXPECT_EQ(box.SelFontName(), u"A"_s);
}

TEST_F(RichTextBoxTest, PasteTakesRtfThenHtmlThenText)
{
    box.setTextRTF(u"{\\rtf1 ab}"_s);
    box.select(1, 0);
    offer("text/rtf", "{\\rtf1{\\b X\\par Y}}", u"plain"_s);
    box.paste();
    EXPECT_EQ(box.Text(), u"aX\nYb"_s);
    box.select(1, 1);
    EXPECT_EQ(box.SelBold(), true);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"ab"_s) << "one step";

    box.select(2, 0);
    offer("text/html", "<p>H <b>I</b></p><table><tr><td>1</td><td>2</td></tr></table>", u"plain"_s);
    box.paste();
    EXPECT_TRUE(box.Text().startsWith(u"abH I\n1\n2"_s)) << box.Text().toStdString();

    box.setText(u""_s);
    offer("text/plain", "one\ntwo");
    box.paste();
    EXPECT_EQ(box.Text(), u"one\ntwo"_s);
    offer("text/rtf", "{\\rtf1{\\b X}}", u"X"_s);
    box.pastePlain();
    EXPECT_EQ(box.Text(), u"one\ntwoX"_s);
    box.select(7, 1);
    EXPECT_EQ(box.SelBold(), false);
}

TEST_F(RichTextBoxTest, ACopyGoesRoundThroughTheClipboard)
{
    box.setTextRTF(u"{\\rtf1{\\fonttbl{\\f0 A;}}\\f0\\fs24 한글 {\\b bold}\\par end}"_s);
    box.select(0, 7);
    box.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), u"한글 bold"_s);
    RichTextBox other;
    other.paste();
    EXPECT_EQ(other.Text(), u"한글 bold"_s);
    other.select(3, 4);
    EXPECT_EQ(other.SelBold(), true);
    box.cut();
    EXPECT_EQ(box.Text(), u"\nend"_s);
}

TEST_F(RichTextBoxTest, APictureFromTheClipboardStaysInTheText)
{
    QImage picture(3, 3, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QApplication::clipboard()->setImage(picture);
    box.paste();
    EXPECT_EQ(box.Text(), u" "_s);
    EXPECT_TRUE(box.TextRTF().contains(u"\\pngblip"_s));
}

TEST_F(RichTextBoxTest, AsksOnceBeforeAnEditLosesSomething)
{
    const QString rtf = u"{\\rtf1 ab{\\footnote hidden}}"_s;
    int asked = 0;
    bool agrees = false;
    box.onFirstLoss = [&] {
        ++asked;
        return agrees;
    };
    box.setTextRTF(rtf);
    EXPECT_TRUE(box.wouldLose());
    box.select(0, 1);
    QTest::keyClick(&box, Qt::Key_Right);
    EXPECT_EQ(asked, 0);
    QTest::keyClick(&box, Qt::Key_X);
    compose(u"가"_s);
    box.select(0, 1);
    QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    box.setSelBold(true);
    EXPECT_EQ(asked, 5);
    EXPECT_EQ(box.TextRTF(), rtf);
    agrees = true;
    QTest::keyClick(&box, Qt::Key_X);
    QTest::keyClick(&box, Qt::Key_Y);
    EXPECT_EQ(asked, 6);
    EXPECT_EQ(box.Text(), u"xyb"_s);
}

} // namespace
} // namespace lumen
