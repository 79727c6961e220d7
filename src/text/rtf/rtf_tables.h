// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

#include <array>

namespace lumen {

// Tables of the RTF documents that the program composes. Font and colour numbers in composed text
// rest on their order.

/// The font table behind the user's main font, which is f2, up to f16. Korean names stand as
/// escapes of code page 949. f5 is the font of the verse numbers, f8 and f9 the Hebrew ones, f10
/// the Greek one.
inline constexpr QStringView kRtfFixedFonts =
    u"{\\f3\\fmodern\\fcharset129 \\'b1\\'bc\\'b8\\'b2;}"
    u"{\\f4\\fmodern\\fcharset129 \\'b5\\'b8\\'bf\\'f2\\'c3\\'bc;}"
    u"{\\f5\\fmodern\\fcharset129 \\'b1\\'bc\\'b8\\'b2\\'c3\\'bc;}"
    u"{\\f6\\fmodern\\fcharset129 \\'b1\\'bc\\'b8\\'b2\\'c3\\'bc;}"
    u"{\\f7\\fmodern\\fcharset129 \\'b5\\'b8\\'bf\\'f2\\'c3\\'bc;}"
    u"{\\f8\\fnil\\fcharset0 OrvaneHeb;}"
    u"{\\f9\\fnil\\fcharset0 OrvaneHebC;}"
    u"{\\f10\\fnil\\fcharset0 OrvaneGrk;}"
    u"{\\f11\\froman\\fcharset0 OrvaneFra;}"
    u"{\\f12\\froman\\fcharset0 OrvaneGrm;}"
    u"{\\f13\\froman\\fcharset0 OrvaneIta;}"
    u"{\\f14\\froman\\fcharset0 OrvaneSpa;}"
    u"{\\f15\\froman\\fcharset0 OrvaneSwe;}"
    u"{\\f16\\fmodern\\fcharset134 MS Song;}";

/// Slots for the fonts of the user's own versions, and the number of the first one in the table.
inline constexpr int kUserFontCount = 15;
inline constexpr int kFirstUserRtfFont = 17;
/// The first slots are meant for Korean texts, the others for Western ones.
inline constexpr int kKoreanUserFonts = 5;

/// Colour numbers of a composed chapter.
enum RtfColor : int {
    kRtfBaseColor = 0,
    kRtfTitleColor = 1,
    kRtfPara1Color = 2,
    kRtfPara2Color = 3,
    kRtfPara3Color = 4,
    kRtfNumberColor = 5,
};

/// The head of the texts beside the word analysis: font table with f8 Hebrew and f9 Greek, colours
/// black, blue, red, brown. Taken by the letter, with its unknown control word in f5.
inline constexpr QStringView kWordPanelRtfHead =
    u"{\\rtf1\\ansi\\ansicpg949\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}"
    u"{\\f1\\froman\\fcharset2Symbol;}{\\f2\\fmodern\\fcharset129\\'b1\\'bc\\'b8\\'b2;}"
    u"{\\f3\\fmodern\\fcharset129\\'b5\\'b8\\'bf\\'f2\\'c3\\'bc;}"
    u"{\\f4\\fmodern\\fcharset129\\'b5\\'b8\\'bf\\'f2\\'c3\\'bc;}"
    u"{\\f5\\modern\\fcharset129\\'b1\\'bc\\'b8\\'b2\\'c3\\'bc;}"
    u"{\\f6\\fmodern\\fcharset129\\'b1\\'bc\\'b8\\'b2\\'c3\\'bc;}"
    u"{\\f7\\froman\\fcharset129 \\'b1\\'bc\\'b8\\'b2\\'c3\\'bc;}"
    u"{\\f8\\fmodern\\fcharset0 OrvaneHeb;}{\\f9\\fmodern\\fcharset0 OrvaneGrk;}}"
    u"{\\colortbl\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red255\\green0\\blue0;"
    u"\\red128\\green0\\blue0;}";

/// Sizes in half points, as \fs takes them.
struct RtfSizes
{
    int text = 0;
    int verseNumber = 0;
};

/// By the text size step, 1 to 5; any other step counts as the middle one.
constexpr RtfSizes rtfSizes(int fontSizeStep)
{
    constexpr std::array<RtfSizes, 5> kSizes{
        RtfSizes{16, 12}, {18, 14}, {20, 16}, {26, 20}, {32, 26},
    };
    constexpr int kDefaultStep = 3;
    const bool known = fontSizeStep >= 1 && fontSizeStep <= static_cast<int>(kSizes.size());
    return kSizes[static_cast<std::size_t>((known ? fontSizeStep : kDefaultStep) - 1)];
}

} // namespace lumen
