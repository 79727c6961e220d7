// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_font.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class VersionFontTest : public testing::Test
{
protected:
    void SetUp() override
    {
        settings.mainFont = u"바탕체"_s;
        settings.userFonts[1] = {u"돋움"_s, u"14"_s};
        settings.userFonts[14] = {u"Times"_s, u"9"_s};
    }

    FontSettings settings = defaultFontSettings();
};

TEST_F(VersionFontTest, EachRangeOfCodesHasItsFonts)
{
    struct Row
    {
        int code;
        QString font;
        double factor;
        int rtfFont; // 0 for none
        QString paragraph;
        QString printFont;
        double printSize;
    };
    const QString both = u"\\ltrpar\\ql"_s;
    const QString left = u"\\ql"_s;
    const Row rows[] = {
        {101, u"바탕체"_s, 1, 2, both, u"굴림"_s, 10},
        {218, u"OrvaneFra"_s, 1, 11, left, u"OrvaneFra"_s, 10},
        {219, u"OrvaneGrm"_s, 1, 12, left, u"OrvaneGrm"_s, 10},
        {224, u"굴림"_s, 1.2, 3, both, u"굴림"_s, 12},
        {228, u"굴림"_s, 1, 3, both, u"굴림"_s, 10},
        {229, u"굴림"_s, 1, 0, {}, u"굴림"_s, 10},
        {301, u"OrvaneHeb"_s, 1.6, 8, u"\\qr"_s, u"OrvaneHeb"_s, 16},
        {302, u"OrvaneHebC"_s, 1.6, 9, u"\\qr"_s, u"OrvaneHebC"_s, 16},
        {304, u"OrvaneGrk"_s, 1.2, 10, left, u"OrvaneGrk"_s, 12},
        {311, u"OrvaneGrk"_s, 1.2, 10, left, u"OrvaneGrk"_s, 12},
        {312, u"OrvaneGrk"_s, 1.2, 10, left, u"굴림"_s, 10},
        {401, u"MS Song"_s, 1.2, 16, left, u"MS Song"_s, 12},
        {901, u"굴림"_s, 1, 17, left, u"굴림"_s, 10},
        {902, u"돋움"_s, 1.4, 18, left, u"돋움"_s, 14},
        {915, u"Times"_s, 0.9, 31, left, u"Times"_s, 9},
        {916, u"굴림"_s, 1, 0, {}, u"굴림"_s, 10},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.code);
        const bool hebrew = row.code >= 301 && row.code <= 303;
        const VersionFont font = GetVersionFont(row.code, settings);
        EXPECT_EQ(font.font, row.font);
        EXPECT_DOUBLE_EQ(font.factor, row.factor);
        EXPECT_EQ(font.alignment == 6, hebrew);
        const VersionFont extended = GetVersionFontEx(row.code, settings);
        EXPECT_EQ(extended.font, row.font);
        EXPECT_EQ(extended.alignment, hebrew ? 7 : 1);

        const auto rtf = GetVersionRtfFont(row.code, settings);
        ASSERT_EQ(rtf.has_value(), row.rtfFont != 0);
        if (rtf) {
            EXPECT_EQ(rtf->font, row.rtfFont);
            EXPECT_DOUBLE_EQ(rtf->factor, row.factor);
            EXPECT_EQ(rtf->paragraph, row.paragraph);
        }
        const VersionPrintFont print = GetVersionPrintFont(row.code, settings);
        EXPECT_EQ(print.font, row.printFont);
        EXPECT_DOUBLE_EQ(print.size, row.printSize);
    }
}

TEST_F(VersionFontTest, ScaledSizesAreCut)
{
    EXPECT_EQ(scaledSize(1.2, 20), 24);
    EXPECT_EQ(scaledSize(1.6, 26), 41);
}

} // namespace
} // namespace lumen
