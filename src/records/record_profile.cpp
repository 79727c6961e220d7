// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_profile.h"

#include "records/messages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr std::array<QStringView, 6> kSermonCategories{u"주일 낮",  u"주일 밤",  u"수요예배",
                                                       u"금요철야", u"성서강해", u"기타"};
constexpr std::array<QStringView, 5> kWeathers{u"맑음", u"흐림", u"흐린 후 갬", u"맑은 후 흐림",
                                               u"천둥 번개"};
constexpr std::array<QStringView, 4> kNotInQuietTime{
    u"ID_HTML로저장", u"ID_설교문발송", u"ID_전자우편주소록편집", u"ID_전자우편환경설정"};
constexpr std::array<QStringView, 2> kSermonDates{u"설교일이", u"작성일이"};

// The address book has no window that stays open as long: the sermon manager keeps it.
constexpr std::array<const UserFile*, 2> kSermonFiles{&user_file::kSermons, &user_file::kAddresses};
constexpr std::array<const UserFile*, 1> kQuietTimeFiles{&user_file::kQuietTime};

constexpr int kShortWidth = 900;
constexpr int kTextWidth = 2000;

constexpr std::array<RecordResultColumn, 9> kSermonResult{
    RecordResultColumn{u"설교일", u"설교일", kShortWidth, true},
    {u"작성일", u"작성일", kShortWidth, true},
    {u"분류", u"분류", kShortWidth},
    {u"제목", u"제목", kTextWidth},
    {u"말씀", u"말씀", kTextWidth},
    {u"설교 본문", u"본문", kTextWidth},
    {u"기도", u"기도", kTextWidth},
    {u"요약", u"요약", kTextWidth},
    {u"일련번호", u"일련번호", 0}};
constexpr std::array<RecordResultColumn, 8> kQuietTimeResult{
    RecordResultColumn{u"작성일", u"작성일", kShortWidth, true},
    {u"분류", u"분류", kShortWidth},
    {u"제목", u"제목", kTextWidth},
    {u"말씀", u"말씀", kTextWidth},
    {u"본문", u"본문", kTextWidth},
    {u"기도", u"기도", kTextWidth},
    {u"적용", u"적용", kTextWidth},
    {u"일련번호", u"일련번호", 0}};

} // namespace

QString RecordProfile::source() const
{
    return u"select * from "_s + table.toString();
}

bool RecordProfile::lacksTool(QStringView id) const
{
    return std::ranges::find(absentTools, id) != absentTools.end();
}

const RecordProfile record_profile::kSermon{
    .caption = u"설교 매니저",
    .file = &user_file::kSermons,
    .path = u"\\Data\\설교매니저.mdb",
    .draft = u"\\Data\\설교매니저.draft",
    .table = u"설교",
    .texts = {{{u"제목", u"rtf제목", u"설교 제목"},
               {u"말씀", u"rtf말씀", u"말씀"},
               {u"본문", u"rtf본문", u"설교 본문"},
               {u"기도", u"rtf기도", u"기도"},
               {u"요약", u"rtf요약", u"설교 요약"}}},
    .category = u"분류",
    .categoryLabel = u"분류",
    .categoryAtFirst = u"",
    .categories = kSermonCategories,
    .preachedDay = u"설교일",
    .writtenDay = u"작성일",
    .printSource = u"설교 매니저",
    .helpPage = u"SerManIntro.htm",
    .geometry = geometry::kSManager,
    .names = {u"frm설교매니저",
              u"frm설교검색",
              {u"tx설교제목", u"tx말씀", u"tx설교본문", u"tx기도", u"tx요약"},
              u"sst기도와요약",
              u"fr설교정보",
              u"설교 정보"},
    .tools = {u"설교(&R)",
              {u"ID_설교목록", u"설교 목록(&L)..."},
              {u"ID_신규설교", u"새 설교(&N)"},
              {u"ID_처음설교", u"처음 설교(&F)"},
              {u"ID_이전설교", u"이전 설교(&P)"},
              {u"ID_다음설교", u"다음 설교(&X)"},
              {u"ID_마지막설교", u"마지막 설교(&E)"},
              {u"ID_설교삭제", u"설교 삭제(&D)..."},
              {u"ID_QT매니저", u"QT 매니저(&Q)..."}},
    .absentTools = {},
    .messages = {messages::kNoSermonTitle, messages::kLastSermon, messages::kDeleteSermon,
                 messages::kPrintAllSermons, messages::kNoSermonsFoundBefore,
                 messages::kNoSermonsFoundBefore},
    .maintained = kSermonFiles,
    .searchCaption = u"설교 검색",
    .searchPrintSource = u"설교검색",
    .searchHelpPage = u"SearchSer.htm",
    .searchGeometry = geometry::kSMSearch,
    .resultColumns = kSermonResult,
    .dateChoices = kSermonDates,
};

const RecordProfile record_profile::kQuietTime{
    .caption = u"QT 매니저",
    .file = &user_file::kQuietTime,
    .path = u"\\Data\\qt.mdb",
    .draft = u"\\Data\\qt.draft",
    .table = u"QT",
    .texts = {{{u"제목", u"rtf제목", u"QT 제목"},
               {u"말씀", u"rtf말씀", u"말씀"},
               {u"본문", u"rtf본문", u"QT 본문"},
               {u"기도", u"rtf기도", u"기도"},
               {u"적용", u"rtf적용", u"QT 적용"}}},
    .category = u"분류",
    .categoryLabel = u"영적 날씨",
    .categoryAtFirst = u"말씀 묵상",
    .categories = kWeathers,
    .preachedDay = {},
    .writtenDay = u"작성일",
    .printSource = u"QT 매니저",
    .helpPage = u"QTManIntro.htm",
    .geometry = geometry::kQTManager,
    .names = {u"frmQT매니저",
              u"frmQT검색",
              {u"tx제목", u"tx말씀", u"tx본문", u"tx기도", u"tx적용"},
              u"sst기도와적용",
              u"frQT정보",
              u"QT 정보"},
    .tools = {u"QT(&R)",
              {u"ID_QT목록", u"QT 목록(&L)..."},
              {u"ID_신규QT", u"새 QT(&N)"},
              {u"ID_처음QT", u"처음 QT(&F)"},
              {u"ID_이전QT", u"이전 QT(&P)"},
              {u"ID_다음QT", u"다음 QT(&X)"},
              {u"ID_마지막QT", u"마지막 QT(&E)"},
              {u"ID_QT삭제", u"QT 삭제(&D)..."},
              {u"ID_설교매니저", u"설교 매니저(&Q)..."}},
    .absentTools = kNotInQuietTime,
    .messages = {messages::kNoQuietTimeTitle, messages::kLastQuietTime, messages::kDeleteQuietTime,
                 messages::kPrintAllQuietTime, messages::kNoQuietTimeFoundBefore,
                 messages::kNoQuietTimeFoundBeforePower},
    .maintained = kQuietTimeFiles,
    .searchCaption = u"QT 검색",
    .searchPrintSource = u"QT검색",
    .searchHelpPage = u"SearchQT.htm",
    .searchGeometry = geometry::kQTSearch,
    .resultColumns = kQuietTimeResult,
    .dateChoices = {},
};

} // namespace lumen
