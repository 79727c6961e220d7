// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/versions.h"

#include "text/rtf/rtf_tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

static_assert(kUserVersionCount == kUserFontCount);

constexpr std::array kRows{
    VersionRow{101, u"개역한글", VersionGroup::Korean, &typeface::kMain, Script::Other, 1,
               Source::Disc, Offered::Always, VersionDuty::KoreanVerse},
    VersionRow{102, u"개역한자", VersionGroup::Korean, &typeface::kMain, Script::Other, 2},
    VersionRow{103, u"개역한글침례표기", VersionGroup::Korean, &typeface::kMain, Script::Other, 4},
    VersionRow{104, u"공동번역", VersionGroup::Korean, &typeface::kMain, Script::Other, 3},
    VersionRow{105, u"표준새번역", VersionGroup::Korean, &typeface::kMain, Script::Other, 5},
    VersionRow{106, u"개역개정판", VersionGroup::Korean, &typeface::kMain, Script::Other, 6,
               Source::Disc, Offered::WhenInstalled},
    VersionRow{107, u"현대어성경", VersionGroup::Korean, &typeface::kMain, Script::Other, 7,
               Source::Disc, Offered::WhenInstalled},
    VersionRow{108, u"현대인의 성경", VersionGroup::Korean, &typeface::kMain, Script::Other, 8},
    VersionRow{109, u"킹제임스 흠정역", VersionGroup::Korean, &typeface::kMain, Script::Other, 9,
               Source::Disc, Offered::WhenInstalled},
    VersionRow{401, u"중국어 간체", VersionGroup::Chinese, &typeface::kChinese, Script::Other, 38},
    VersionRow{201, u"KJV", VersionGroup::Western, &typeface::kMain, Script::Other, 10},
    VersionRow{202, u"KJV Strong", VersionGroup::Western, &typeface::kMain, Script::Other, 11},
    VersionRow{203, u"NKJV", VersionGroup::Western, &typeface::kMain, Script::Other, 21,
               Source::Elsewhere},
    VersionRow{204, u"NIV", VersionGroup::Western, &typeface::kMain, Script::Other, 12},
    VersionRow{205, u"ASV", VersionGroup::Western, &typeface::kMain, Script::Other, 13},
    VersionRow{206, u"NASB", VersionGroup::Western, &typeface::kMain, Script::Other, 22,
               Source::Elsewhere},
    VersionRow{207, u"RSV", VersionGroup::Western, &typeface::kMain, Script::Other, 23,
               Source::Elsewhere},
    VersionRow{208, u"NRSV", VersionGroup::Western, &typeface::kMain, Script::Other, 24,
               Source::Elsewhere},
    VersionRow{209, u"YLT", VersionGroup::Western, &typeface::kMain, Script::Other, 14},
    VersionRow{210, u"Darby", VersionGroup::Western, &typeface::kMain, Script::Other, 15},
    VersionRow{211, u"BBE", VersionGroup::Western, &typeface::kMain, Script::Other, 16},
    VersionRow{212, u"Webster", VersionGroup::Western, &typeface::kMain, Script::Other, 17},
    VersionRow{213, u"WEB", VersionGroup::Western, &typeface::kMain, Script::Other, 18},
    VersionRow{215, u"ISV 신약", VersionGroup::Western, &typeface::kMain, Script::Other, 19},
    VersionRow{214, u"Latin Vulgate", VersionGroup::Western, &typeface::kMain, Script::Other, 20},
    VersionRow{216, u"Douay", VersionGroup::Western, &typeface::kMain, Script::Other, 25},
    VersionRow{217, u"Weimouth 신약", VersionGroup::Western, &typeface::kMain, Script::Other, 26},
    VersionRow{218, u"프랑스어 LSG", VersionGroup::Western, &typeface::kFrench, Script::Other, 27},
    VersionRow{219, u"독일어 SCH", VersionGroup::Western, &typeface::kGerman, Script::Other, 28},
    VersionRow{220, u"독일어 LUT", VersionGroup::Western, &typeface::kGerman, Script::Other, 29},
    VersionRow{221, u"독일어 ELB", VersionGroup::Western, &typeface::kGerman, Script::Other, 30},
    VersionRow{222, u"이태리어 LND", VersionGroup::Western, &typeface::kItalian, Script::Other, 31},
    VersionRow{223, u"스페인어 SRV", VersionGroup::Western, &typeface::kSpanish, Script::Other, 32},
    VersionRow{224, u"러시아어 RST", VersionGroup::Western, &typeface::kRussian, Script::Other, 33},
    VersionRow{225, u"스웨덴어 SWE", VersionGroup::Western, &typeface::kSwedish, Script::Other, 34},
    VersionRow{226, u"인도네시아어 ITB", VersionGroup::Western, &typeface::kGulim, Script::Other,
               35},
    VersionRow{227, u"인도네시아어 BIS", VersionGroup::Western, &typeface::kGulim, Script::Other,
               36},
    VersionRow{228, u"LXX 영문 구약", VersionGroup::Western, &typeface::kGulim, Script::Other, 37},
    VersionRow{301, u"BHS", VersionGroup::Original, &typeface::kHebrew, Script::Hebrew, 39,
               Source::Disc, Offered::Always, VersionDuty::HebrewSearch},
    VersionRow{302, u"BHS 자음", VersionGroup::Original, &typeface::kConsonants, Script::Hebrew,
               45},
    VersionRow{303, u"BHS 자음M", VersionGroup::Original, &typeface::kConsonants, Script::Hebrew,
               46},
    VersionRow{304, u"LXX", VersionGroup::Original, &typeface::kGreek, Script::Greek, 40},
    VersionRow{305, u"Nestle Aland 27", VersionGroup::Original, &typeface::kGreek, Script::Greek,
               41, Source::Elsewhere},
    VersionRow{306, u"TR Stephanus", VersionGroup::Original, &typeface::kGreek, Script::Greek, 42},
    VersionRow{307, u"TR Scrivener", VersionGroup::Original, &typeface::kGreek, Script::Greek, 47},
    VersionRow{308, u"TR Strong", VersionGroup::Original, &typeface::kGreek, Script::Greek, 48},
    VersionRow{309, u"Westcott Hort", VersionGroup::Original, &typeface::kGreek, Script::Greek, 49},
    VersionRow{310, u"Byzantine", VersionGroup::Original, &typeface::kGreek, Script::Greek, 43,
               Source::Disc, Offered::Always, VersionDuty::GreekSearch},
    VersionRow{311, u"Tischendorf", VersionGroup::Original, &typeface::kGreek, Script::Greek, 50},
    VersionRow{901, u"사용자역본1 한글용", VersionGroup::User, &typeface::kUserKorean,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{902, u"사용자역본2 한글용", VersionGroup::User, &typeface::kUserKorean,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{903, u"사용자역본3 한글용", VersionGroup::User, &typeface::kUserKorean,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{904, u"사용자역본4 한글용", VersionGroup::User, &typeface::kUserKorean,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{905, u"사용자역본5 한글용", VersionGroup::User, &typeface::kUserKorean,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{906, u"사용자역본6 영문용", VersionGroup::User, &typeface::kUserLatin, Script::Other,
               44, Source::Elsewhere},
    VersionRow{907, u"사용자역본7 영문용", VersionGroup::User, &typeface::kUserLatin, Script::Other,
               44, Source::Elsewhere},
    VersionRow{908, u"사용자역본8 영문용", VersionGroup::User, &typeface::kUserLatin, Script::Other,
               44, Source::Elsewhere},
    VersionRow{909, u"사용자역본9 영문용", VersionGroup::User, &typeface::kUserLatin, Script::Other,
               44, Source::Elsewhere},
    VersionRow{910, u"사용자역본10 영문용", VersionGroup::User, &typeface::kUserLatin,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{911, u"사용자역본11 영문용", VersionGroup::User, &typeface::kUserLatin,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{912, u"사용자역본12 영문용", VersionGroup::User, &typeface::kUserLatin,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{913, u"사용자역본13 영문용", VersionGroup::User, &typeface::kUserLatin,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{914, u"사용자역본14 영문용", VersionGroup::User, &typeface::kUserLatin,
               Script::Other, 44, Source::Elsewhere},
    VersionRow{915, u"사용자역본15 영문용", VersionGroup::User, &typeface::kUserLatin,
               Script::Other, 44, Source::Elsewhere},
};

static_assert([] {
    for (std::size_t i = 0; i < kRows.size(); ++i)
        for (std::size_t k = 0; k < i; ++k)
            if (kRows[i].code == kRows[k].code)
                return false;
    return true;
}());
static_assert(std::ranges::count(kRows, VersionGroup::User, &VersionRow::group) ==
              kUserVersionCount);

// Codes that no row has take their font from the codes beside them.
constexpr VersionRow kUnknownPlain{};
constexpr VersionRow kUnknownGreek{
    .group = VersionGroup::Original, .face = &typeface::kGreekOnScreen, .script = Script::Greek};
constexpr VersionRow kUnknown{.face = &typeface::kUnknown, .source = Source::Elsewhere};

const VersionRow& unknownRow(int code)
{
    constexpr int kLastPlain = 217;
    constexpr int kFirstGreek = 312;
    constexpr int kLastGreek = 320;
    if (code <= kLastPlain)
        return kUnknownPlain;
    return code >= kFirstGreek && code <= kLastGreek ? kUnknownGreek : kUnknown;
}

} // namespace

std::span<const VersionRow> versionRows()
{
    return kRows;
}

const VersionRow& versionRow(int code)
{
    const auto row = std::ranges::find(kRows, code, &VersionRow::code);
    return row == kRows.end() ? unknownRow(code) : *row;
}

QString versionLanguage(int code)
{
    constexpr int kVulgate = 214;
    const VersionRow& row = versionRow(code);
    if (row.script == Script::Hebrew)
        return u"히브리어"_s;
    if (row.script == Script::Greek)
        return u"헬라어"_s;
    if (row.group == VersionGroup::Korean || row.face == &typeface::kUserKorean)
        return u"한국어"_s;
    if (row.group == VersionGroup::User || row.name.isEmpty())
        return {};
    if (code == kVulgate)
        return u"라틴어"_s;
    // The names of versions in other languages than English begin with theirs.
    const QString first = row.name.toString().section(u' ', 0, 0);
    return first.endsWith(u'어') ? first : u"영어"_s;
}

int versionFor(VersionDuty duty)
{
    return std::ranges::find(kRows, duty, &VersionRow::duty)->code;
}

} // namespace lumen
