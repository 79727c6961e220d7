// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_parser.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// What must hold for any content, whatever came in.
void expectConsistent(const RtfContent& content)
{
    ASSERT_FALSE(content.paragraphs.empty());
    qsizetype at = 0;
    std::size_t run = 0;
    for (const RtfParagraph& paragraph : content.paragraphs) {
        ASSERT_EQ(paragraph.firstRun, run);
        for (; run < paragraph.firstRun + paragraph.runCount; ++run) {
            ASSERT_EQ(content.runs[run].start, at);
            ASSERT_GT(content.runs[run].length, 0);
            ASSERT_LT(static_cast<std::size_t>(content.runs[run].style), content.styles.size());
            at += content.runs[run].length;
        }
        ASSERT_EQ(paragraph.end, at);
        ASSERT_LT(static_cast<std::size_t>(paragraph.endStyle), content.styles.size());
        ++at;
    }
    ASSERT_EQ(at, content.text.size() + 1);
    ASSERT_EQ(run, content.runs.size());
}

RtfContent body(const QByteArray& rtf)
{
    return parseRtf("{\\rtf1\\ansi\\ansicpg949\\deff0{\\fonttbl{\\f0\\fnil\\fcharset129 K;}"
                    "{\\f1\\fnil\\fcharset0 W;}}{\\colortbl\\red9\\green0\\blue0;}" +
                    rtf + "}");
}

TEST(RtfParser, TextComesOutAsItIsRead)
{
    struct Row
    {
        const char* name;
        QByteArray rtf;
        QString text;
    };
    const Row rows[] = {
        {"escaped signs", "a\\\\b\\{c\\}d", u"a\\b{c}d"_s},
        {"raw pair", "\xB0\xA1z", u"가z"_s},
        {"escaped pair", "\\'b0\\'a1z", u"가z"_s},
        {"escape, then raw", "\\'b0\xA1", u"가"_s},
        {"raw, then escape", "\xB0\\'a1", u"가"_s},
        {"pair with an ASCII trail", "\\'81A", u"갂"_s},
        {"pair parted by a line end", "\\'b0\r\n\\'a1", u"가"_s},
        {"pair cut by a control word", "\\'b0\\b \\'a1 x", u"\uFFFD\uFFFD x"_s},
        {"pair cut by a group", "\\'b0{A}", u"\uFFFDA"_s},
        {"line ends are no text", "a\r\nb\nc", u"abc"_s},
        {"paragraphs", "a\\par b\\par", u"a\nb\n"_s},
        {"paragraph as a quoted line end", "a\\\nb", u"a\nb"_s},
        {"line break and tab", "a\\line b\\tab c\td", u"a\u2028b\tc\td"_s},
        {"one blank ends a word", "\\b  x\\b0 y", u" xy"_s},
        {"number, then letters", "\\fs20Text", u"Text"_s},
        {"unknown words", "\\keepn\\widctlpar\\zz-5 x", u"x"_s},
        {"unicode with its substitute", "\\u233?x\\u-10179?\\u-8704?", u"éx\U0001F600"_s},
        {"unicode, blank and substitute", "\\u233 ?x", u"éx"_s},
        {"no substitute", "{\\uc0\\u233 x}", u"éx"_s},
        {"two-byte substitute", "\\uc2\\u44032\\'b0\\'a1x", u"가x"_s},
        {"uc belongs to the group", "{\\uc0\\u233}\\u233?x", u"ééx"_s},
        {"a word ends a substitute", "\\u233\\par x", u"é\nx"_s},
        {"number beyond 16 bits", "\\u128512?", u"\U0001F600"_s},
        {"typographic words", "\\lquote a\\rquote\\~\\_\\emdash", u"‘a’\u00A0\u2011—"_s},
        {"hidden text", "a{\\v b}c", u"ac"_s},
        {"starred destination", "a{\\*\\generator x{y};}b", u"ab"_s},
        {"known destinations", "a{\\info{\\title t}}{\\stylesheet{s;}}b", u"ab"_s},
        {"field shows its result", "{\\field{\\*\\fldinst LINK}{\\fldrslt {r}}}", u"r"_s},
        {"binary data", "a{\\pict\\bin3 }}}}b", u"a\uFFFCb"_s},
        {"binary data of no length", "a\\bin-9 b", u"ab"_s},
        {"groups without end", QByteArray(3000, '{') + 'a' + QByteArray(3000, '}') + 'b', u"ab"_s},
        {"marks of frames", "\\u-560?\\u-559?\\u-4?", u"\uFFFD\uFFFD\uFFFD"_s},
        {"paragraph separator", "a\\u8233?b", u"a\nb"_s},
        {"control bytes",
         QByteArray("a\x01\x00\\'07"
                    "b",
                    8),
         u"ab"_s},
        {"accents in a Western font", "\\f1 caf\\'e9 \\'e9t\\'e9", u"café été"_s},
        {"Korean in a Western font", "\\f1\\'b0\\'a1", u"가"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const RtfContent content = body(row.rtf);
        EXPECT_EQ(content.text, row.text);
        expectConsistent(content);
    }
}

TEST(RtfParser, OtherPagesFollowTheHeadAndTheFont)
{
    const RtfContent content = parseRtf("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl"
                                        "{\\f0\\fcharset0 A;}{\\f1\\fcharset129 B;}}"
                                        "\\'e9\\'93{\\f1\\'b0\\'a1}\\'e9}");
    EXPECT_EQ(content.text, u"é\u201C가é"_s);
    EXPECT_EQ(parseRtf("{\\rtf1\\ansicpg1251 \\'c0}").text, u"\u0410"_s);
}

TEST(RtfParser, StylesEndWithTheirGroup)
{
    const RtfContent content =
        body("\\f1\\fs40\\cf0{\\f0\\fs20\\i\\ul\\strike\\super x}y\\plain z");
    ASSERT_EQ(content.runs.size(), 3U);
    const auto style = [&](std::size_t run) {
        return content.styles[static_cast<std::size_t>(content.runs[run].style)];
    };
    EXPECT_EQ(style(0).font, 0);
    EXPECT_EQ(style(0).halfPoints, 20);
    EXPECT_EQ(style(0).flags, RtfCharStyle::Italic | RtfCharStyle::Underline |
                                  RtfCharStyle::StrikeOut | RtfCharStyle::Superscript);
    EXPECT_EQ(style(1), (RtfCharStyle{1, 40, 0, -1, 0}));
    EXPECT_EQ(style(2), (RtfCharStyle{0, 24, 0, -1, 0}));
}

TEST(RtfParser, ParagraphPropertiesHoldForTheMarkTheyStandBefore)
{
    const RtfContent content =
        body("\\ql a\\par\\qr b\\par c\\par\\pard d\\par\\li300\\fi-300\\ri60\\qc e");
    ASSERT_EQ(content.paragraphs.size(), 5U);
    EXPECT_EQ(content.paragraphs[0].style.alignment, RtfAlignment::Left);
    EXPECT_EQ(content.paragraphs[1].style.alignment, RtfAlignment::Right);
    EXPECT_EQ(content.paragraphs[2].style.alignment, RtfAlignment::Right);
    EXPECT_EQ(content.paragraphs[3].style, RtfParagraphStyle());
    EXPECT_EQ(content.paragraphs[4].style,
              (RtfParagraphStyle{RtfAlignment::Center, 300, -300, 60}));
}

TEST(RtfParser, TablesAreReadInEveryWriting)
{
    const RtfContent content = parseRtf(
        "{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green300\\blue-1;}"
        "{\\fonttbl\\f0\\fswiss First;\\f3\\fcharset2Symbol;"
        "{\\f4\\fcharset129\\'b1\\'bc\\'b8\\'b2{\\*\\falt Gulim};}{\\f5 No end}}\\deftab720 x}");
    EXPECT_EQ(content.text, u"x"_s);
    EXPECT_EQ(content.tabWidth, 720);
    ASSERT_EQ(content.colors.size(), 3U);
    EXPECT_EQ(content.color(0), std::nullopt);
    EXPECT_EQ(content.color(1), RGB(255, 0, 0));
    EXPECT_EQ(content.color(2), RGB(0, 255, 0));
    EXPECT_EQ(content.color(3), std::nullopt);
    ASSERT_EQ(content.fonts.size(), 4U);
    EXPECT_EQ(content.font(0)->name, u"First"_s);
    EXPECT_EQ(content.font(3)->name, u"Symbol"_s);
    EXPECT_EQ(content.font(4)->name, u"굴림"_s);
    EXPECT_EQ(content.font(5)->name, u"No end"_s);
    EXPECT_EQ(content.font(6), nullptr);
}

TEST(RtfParser, BytesThatAreNoRtfArePlainText)
{
    const RtfContent content = parseRtf("{a}\r\n\xB0\xA1\\b\n\nc");
    EXPECT_EQ(content.text, u"{a}\n가\\b\n\nc"_s);
    EXPECT_EQ(content.paragraphs.size(), 4U);
    expectConsistent(content);
    expectConsistent(parseRtf(""));
}

TEST(RtfParser, RandomBytesCutAnywhereAreSurvived)
{
    const QByteArray pieces[] = {"{",        "}",          "\\par ",   "\\'b0", "\\u-5?", "\\b",
                                 "\xB0\xA1", "\\fs20",     "\\*",      "a b",   "\\bin9", "\\f1",
                                 ";",        "\\colortbl", "\\'",      "\\uc",  "\\pict", "\\",
                                 "\r\n",     "\\qr ",      "\\fonttbl"};
    QRandomGenerator random(949);
    for (int round = 0; round < 3000; ++round) {
        QByteArray rtf = "{\\rtf1";
        for (int i = 0; i < 40; ++i)
            rtf += pieces[random.bounded(static_cast<int>(std::size(pieces)))];
        rtf.chop(random.bounded(8));
        SCOPED_TRACE(rtf.toStdString());
        ASSERT_NO_FATAL_FAILURE(expectConsistent(parseRtf(rtf)));
    }
}

} // namespace
} // namespace lumen
