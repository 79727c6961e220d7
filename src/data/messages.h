// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

// On a machine without a disc drive the builder is the way to modules.
inline constexpr char16_t kWithoutDisc[] =
    u"CD가 없으면 터미널에서 \"lumen-modules build\"를 실행하십시오. 공개 자료와 직접 가진 "
    u"파일로 모듈을 만듭니다. 만들 수 있는 모듈은 \"lumen-modules list\"가 보여 줍니다.";
inline constexpr char16_t kOfYourOwn[] =
    u"직접 가진 파일이 있으면 터미널에서 \"lumen-modules build --help\"를 보십시오.";

inline constexpr MessageText kNoModules{
    u"성경 데이터 모듈 없음",
    u"설치된 성경 및 사전 데이터 모듈이 없습니다.\r\nLumenscript을 종료합니다.", 48, kWithoutDisc};

inline constexpr MessageText kVersionNotInstalled{
    u"역본 미설치", u"해당 역본이 설치되어 있지 않습니다.", 48, kOfYourOwn};

// The two titles below differ by one syllable; both are meant.
inline constexpr MessageText kInsertCd{u"CD 삽입 후 재실행 요망",
                                       u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요.",
                                       48, kWithoutDisc};
inline constexpr MessageText kInsertCdBase{
    u"CD 삽입 후 재시행 요망", u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요.", 48,
    kWithoutDisc};

/// What an end could not write or back up; %1 are the files with the reason.
inline constexpr MessageText kNotStored{
    u"저장 실패", u"다음 파일을 쓰지 못했습니다. 전에 저장된 것은 그대로 있습니다.\r\n%1", 48};

} // namespace lumen::messages
