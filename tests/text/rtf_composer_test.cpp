// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_composer.h"
#include "text/rtf/rtf_parser.h"

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

} // namespace
} // namespace lumen
