// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

inline constexpr MessageText kNoModules{
    u"성경 데이터 모듈 없음",
    u"설치된 성경 및 사전 데이터 모듈이 없습니다.\r\nLumenscript을 종료합니다.", 48};

inline constexpr MessageText kVersionNotInstalled{u"역본 미설치",
                                                  u"해당 역본이 설치되어 있지 않습니다.", 48};

// The two titles below differ by one syllable; both are meant.
inline constexpr MessageText kInsertCd{
    u"CD 삽입 후 재실행 요망", u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요.", 48};
inline constexpr MessageText kInsertCdBase{
    u"CD 삽입 후 재시행 요망", u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요.", 48};

} // namespace lumen::messages
