// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <span>

namespace lumen {

inline constexpr int kUserVersionCount = 15;
/// The code of user slot 1; slot i has the code 900 + i.
inline constexpr int kFirstUserVersion = 901;

enum class VersionGroup { Korean, Chinese, Western, Original, User };

/// In which letters a version is stored: Hebrew and Greek as codes of the program's fonts. Hebrew
/// is stored in display order and is divided into lines in its font.
enum class Script { Hebrew, Greek, Other };

/// How a version is written on the screen, in documents and on paper.
struct Typeface
{
    /// Empty: the font of Korean and English text that the user chose.
    QStringView family = {};
    double factor = 1; ///< multiplies the text size
    int rtfFont = 0;   ///< its number in the documents' font table; 0: none
    QStringView paragraph = {};
    /// Whether print has the font; else 굴림.
    bool printed = true;
    /// Bytes that a word processor must not take for code page 949.
    bool western = false;
};

namespace typeface {
inline constexpr QStringView kLeft = u"\\ql";
inline constexpr QStringView kRight = u"\\qr";
inline constexpr QStringView kLeftToRight = u"\\ltrpar\\ql";

inline constexpr Typeface kMain{{}, 1, 2, kLeftToRight};
inline constexpr Typeface kFrench{u"OrvaneFra", 1, 11, kLeft, true, true};
inline constexpr Typeface kGerman{u"OrvaneGrm", 1, 12, kLeft, true, true};
inline constexpr Typeface kItalian{u"OrvaneIta", 1, 13, kLeft, true, true};
inline constexpr Typeface kSpanish{u"OrvaneSpa", 1, 14, kLeft, true, true};
inline constexpr Typeface kRussian{u"굴림", 1.2, 3, kLeftToRight};
inline constexpr Typeface kSwedish{u"OrvaneSwe", 1, 15, kLeft, true, true};
inline constexpr Typeface kGulim{u"굴림", 1, 3, kLeftToRight};
inline constexpr Typeface kHebrew{u"OrvaneHeb", 1.6, 8, kRight, true, true};
inline constexpr Typeface kConsonants{u"OrvaneHebC", 1.6, 9, kRight, true, true};
inline constexpr Typeface kGreek{u"OrvaneGrk", 1.2, 10, kLeft, true, true};
/// Greek codes behind those of the catalogue.
inline constexpr Typeface kGreekOnScreen{u"OrvaneGrk", 1.2, 10, kLeft, false, true};
inline constexpr Typeface kChinese{u"MS Song", 1.2, 16, kLeft};
inline constexpr Typeface kUnknown{.family = u"굴림"};
/// Font and size are settings, a pair a slot; the factor is a tenth of the size.
inline constexpr Typeface kUserKorean{{}, 1, 0, kLeft};
inline constexpr Typeface kUserLatin{{}, 1, 0, kLeft, true, true};
} // namespace typeface

/// Whether the version is named without its module; its row is left out of the lists else.
enum class Offered { Always, WhenInstalled };
/// The disc that the program was sold with holds it, or it doesn't: what is said when it is absent.
enum class Source { Disc, Elsewhere };

/// What a version is needed for besides being read.
enum class VersionDuty {
    None,
    KoreanVerse,  ///< the verse in Korean beside an analysed one
    HebrewSearch, ///< literal conditions of the original-language search
    GreekSearch
};

/// One version that the program knows; a new one costs a row.
struct VersionRow
{
    int code = 0; ///< the module is Data\<code>.dts, its concordance Data\<code>c.dts
    /// The caption in every list and the name of the table in the version's module. Of a user slot
    /// the caption in the menus while it has no module.
    QStringView name = {};
    VersionGroup group = VersionGroup::Western;
    const Typeface* face = &typeface::kMain;
    Script script = Script::Other;
    /// The turn in which the start looks for it: the first version found is told to the user.
    int checked = 0;
    Source source = Source::Disc;
    Offered offered = Offered::Always;
    VersionDuty duty = VersionDuty::None;
};

/// All versions in the order of every list, the user slots behind the others.
std::span<const VersionRow> versionRows();
/// The row of a code. A code outside the catalogue has a row without a name.
const VersionRow& versionRow(int code);
/// The language of a version as a reader would name it; "" of a user slot that takes any.
QString versionLanguage(int code);
/// The code of the version that has a duty.
int versionFor(VersionDuty duty);

/// True for the codes 901 to 915.
inline bool isUserVersion(int code)
{
    return versionRow(code).group == VersionGroup::User;
}

inline bool isHebrewVersion(int code)
{
    return versionRow(code).script == Script::Hebrew;
}

inline Script scriptOf(int code)
{
    return versionRow(code).script;
}

} // namespace lumen
