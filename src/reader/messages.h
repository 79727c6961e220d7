// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

inline constexpr MessageText kBadReference{
    u"입력 오류",
    u"입력이 잘못되었습니다. '요 3:16' 또는 '요한복음 3:16'과 같은 방식으로 입력하시기 바랍니다.",
    48};
// Both limits have the verse's title.
inline constexpr MessageText kChapterTooLarge{
    u"절 입력 오류", u"입력하신 장이 실제 장 수보다 큽니다. 마지막 장을 선택합니다.", 48};
inline constexpr MessageText kVerseTooLarge{
    u"절 입력 오류", u"입력하신 절이 실제 절 수보다 큽니다. 마지막 절을 선택합니다.", 48};
inline constexpr MessageText kVerseAbsent{
    u"절 입력 오류", u"기본 역본에는 입력하신 절이 없습니다. 그 앞의 절을 선택합니다.", 48};

inline constexpr MessageText kBookmarksNotSaved{
    u"책갈피 저장 실패", u"책갈피를 저장할 수 없습니다. 저장할 디스크를 확인하시기 바랍니다.", 48};

/// %1 are the versions with the reason, a line each.
inline constexpr MessageText kVersionUnread{
    u"역본 읽기 실패",
    u"다음 역본은 읽을 수 없어 비워 둡니다. 모듈 파일을 다시 만들거나 설치하시기 "
    u"바랍니다.\r\n%1",
    48};

/// %1 is the file.
inline constexpr MessageText kPageMissing{u"파일 없음", u"파일을 열 수 없습니다.\r\n%1", 48};

} // namespace lumen::messages
