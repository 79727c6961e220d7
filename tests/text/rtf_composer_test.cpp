// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf_composer.h"
#include "text/rtf_parser.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

RtfSettings sampleSettings()
{
    RtfSettings settings;
    settings.mainFont = u"바탕"_s;
    settings.defVerColor = RGB(1, 2, 3);
    settings.ver1Color = RGB(255, 0, 0);
    settings.ver2Color = RGB(0, 128, 0);
    settings.ver3Color = RGB(0, 0, 250);
    settings.fontSize = 4;
    for (std::size_t i = 0; i < settings.userFonts.size(); ++i)
        settings.userFonts[i] = u"U%1"_s.arg(i + 1);
    return settings;
}

TEST(RtfComposer, EscapesWhatTheFormatAndTheFontsCannotTake)
{
    struct Row
    {
        QString text;
        QString rtf;
    };
    const Row rows[] = {
        {u"a\\b"_s, u"a\\\\b"_s},
        {u"{x}"_s, u"\\{x\\}"_s},
        {u"\\{"_s, u"\\\\\\{"_s},
        {u"［가］"_s, u"\\'a3\\'db가\\'a3\\'dd"_s},
        {u"\u00B6\u00DF"_s, u"{\\f2\\'a2\\'d2}{\\f2\\'a9\\'ac}"_s},
        {u"\u226B\u226A"_s, u"{\\f2\\'a1\\'ed}{\\f2\\'a1\\'ec}"_s},
        {u"\u00BF\u00A1"_s, u"{\\f2\\'a2\\'af}{\\f2\\'a2\\'ae}"_s},
        {u"é [~]"_s, u"é [~]"_s},
    };
    for (const Row& row : rows)
        EXPECT_EQ(RtfEscape(row.text), row.rtf);
    EXPECT_EQ(RtfEscape(std::optional<QString>()), u""_s);
    EXPECT_EQ(RtfEscape(std::optional<QString>(u"}"_s)), u"\\}"_s);
}

TEST(RtfComposer, HeadIsBuiltFromTheSettings)
{
    const QString expected =
        u"{\\rtf1\\ansi\\ansicpg949\\deff0\\fs26"
        "{\\colortbl\\red1\\green2\\blue3;\\red37\\green21\\blue102;\\red255\\green0\\blue0;"
        "\\red0\\green128\\blue0;\\red0\\green0\\blue250;\\red0\\green0\\blue255;}"
        "{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 Symbol;}"
        "{\\f2\\fmodern\\fcharset129 바탕;}{\\f3\\fmodern\\fcharset129 \\'b1\\'bc\\'b8\\'b2;}"_s;
    const QString head = rtfDocumentHeader(sampleSettings());
    EXPECT_EQ(head.left(expected.size()), expected);
    EXPECT_TRUE(head.contains(u"{\\f16\\fmodern\\fcharset134 MS Song;}"
                              "{\\f17\\fmodern\\fcharset129 U1;}"_s));
    EXPECT_TRUE(head.contains(u"{\\f21\\fmodern\\fcharset129 U5;}{\\f22\\fnil\\fcharset0 U6;}"_s));
    EXPECT_TRUE(head.endsWith(u"{\\f31\\fnil\\fcharset0 U15;}}"_s));
}

TEST(RtfComposer, ReadBackTheTablesHaveTheirNumbers)
{
    const RtfContent content = parseRtf(toRtfBytes(rtfDocumentHeader(sampleSettings()) + u"}"_s));
    const QString names[] = {u"MS Sans Serif"_s, u"Symbol"_s,     u"바탕"_s,      u"굴림"_s,
                             u"돋움체"_s,        u"굴림체"_s,     u"굴림체"_s,    u"돋움체"_s,
                             u"OrvaneHeb"_s,     u"OrvaneHebC"_s, u"OrvaneGrk"_s, u"OrvaneFra"_s,
                             u"OrvaneGrm"_s,     u"OrvaneIta"_s,  u"OrvaneSpa"_s, u"OrvaneSwe"_s,
                             u"MS Song"_s,       u"U1"_s};
    int number = 0;
    for (const QString& name : names) {
        SCOPED_TRACE(number);
        ASSERT_NE(content.font(number), nullptr);
        EXPECT_EQ(content.font(number++)->name, name);
    }
    EXPECT_EQ(content.fonts.size(), 32U);
    EXPECT_EQ(content.color(kRtfBaseColor), RGB(1, 2, 3));
    EXPECT_EQ(content.color(kRtfPara3Color), RGB(0, 0, 250));
    EXPECT_EQ(content.color(kRtfNumberColor), RGB(0, 0, 255));
    EXPECT_EQ(content.text, u""_s);
}

TEST(RtfComposer, AFontNameCannotBreakTheTable)
{
    RtfSettings settings = sampleSettings();
    settings.mainFont = u"}\\par;{Bad"_s;
    const RtfContent content = parseRtf(toRtfBytes(rtfDocumentHeader(settings) + u"text}"_s));
    EXPECT_EQ(content.text, u"text"_s);
    EXPECT_EQ(content.fonts.size(), 32U);
    EXPECT_EQ(content.font(2)->name, u"parBad"_s);
}

TEST(RtfComposer, SizesFollowTheStepAndFallToTheMiddle)
{
    const RtfSizes expected[] = {{20, 16}, {16, 12}, {18, 14}, {20, 16},
                                 {26, 20}, {32, 26}, {20, 16}};
    for (int step = 0; step <= 6; ++step) {
        EXPECT_EQ(rtfSizes(step).text, expected[step].text) << step;
        EXPECT_EQ(rtfSizes(step).verseNumber, expected[step].verseNumber) << step;
    }
}

TEST(RtfComposer, BytesWriteWhatThePageLacksAsNumbers)
{
    EXPECT_EQ(toRtfBytes(u"가é"), QByteArray("\xB0\xA1\\u233?"));
    EXPECT_EQ(toRtfBytes(u"\uFB2A"), QByteArray("\\u-1238?"));
    EXPECT_EQ(toRtfBytes(u"\U0001F600"), QByteArray("\\u-10179?\\u-8704?"));
    EXPECT_EQ(parseRtf("{\\rtf1 " + toRtfBytes(u"가é\uFB2A\U0001F600힝") + "}").text,
              u"가é\uFB2A\U0001F600힝"_s);
}

} // namespace
} // namespace lumen
