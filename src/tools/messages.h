// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

inline constexpr MessageText kVersesSwapped{
    u"범위 조정", u"시작 절이 끝 절보다 큽니다. 두 값을 바꾸어 처리합니다.", 48};
inline constexpr MessageText kLastVerseTaken{
    u"범위 조정", u"끝절 수가 실제 절수보다 크므로 마지막 절로 설정합니다.", 48};
inline constexpr MessageText kLastChapterTaken{
    u"범위 조정", u"입력된 장 번호가 최대 장수보다 크므로 마지막 장으로 설정합니다.", 48};

inline constexpr MessageText kNothingToExtract{
    u"추출 내용 없음",
    u"추출하고자 하는 본문이 없습니다. 구약 혹은 신약만 있는 역본이 아닌지 확인하시기 바랍니다.",
    48};
inline constexpr MessageText kNothingToInsert{
    u"삽입 내용 없음",
    u"삽입하고자 하는 본문이 없습니다. 구약 혹은 신약만 있는 역본이 아닌지 확인하시기 바랍니다.",
    48};

inline constexpr MessageText kExtractedToClipboard{
    u"추출 확인",
    u"클립보드로의 추출이 완료되었습니다. 워드프로세서에서 붙이기(Ctrl-V)를 하면 됩니다.\r\n"
    u"추출을 계속 하시겠습니까?",
    68};
inline constexpr MessageText kExtractedToFile{
    u"추출 확인", u"파일로의 추출이 완료되었습니다. 추출을 계속 하시겠습니까?", 68};
inline constexpr MessageText kInsertedToClipboard{
    u"성구 삽입 완료",
    u"클립보드로의 성구 삽입이 성공적으로 완료되었습니다. 이제 워드프로세서로 가셔서 "
    u"붙이기(Ctrl-V)를 하시면 됩니다.",
    64};
inline constexpr MessageText kExtractOverwrite{
    u"확인", u"해당 파일명의 텍스트 파일이 이미 존재합니다. 이를 겹쳐쓰기 할까요?", 52};
inline constexpr MessageText kExtractFileFailed{
    u"파일 저장 실패", u"텍스트 파일을 저장할 수 없습니다. 저장할 위치를 확인하시기 바랍니다.", 48};

inline constexpr MessageText kSettingsNotSaved{
    u"설정 저장 실패", u"설정을 저장할 수 없습니다. 저장할 디스크를 확인하시기 바랍니다.", 48};

} // namespace lumen::messages
