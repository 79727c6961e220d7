// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

inline constexpr MessageText kNoSearchText{
    u"검색 문자열이 없음", u"검색하고자 하는 문자열을 입력한 후 [검색] 단추를 누르시기 바랍니다.",
    64};
inline constexpr MessageText kNoFirstSearchText{u"검색 문자열이 없음",
                                                u"첫번째 검색 대상은 반드시 입력되어야 합니다. "
                                                u"검색하고자 하는 문자열을 입력한 후 [검색] 단추를 "
                                                u"누르시기 바랍니다.",
                                                64};
inline constexpr MessageText kNoEarlierResult{
    u"안내", u"앞서 검색된 내용이 없으므로 전체 범위에 대하여 검색합니다.", 48};
inline constexpr MessageText kNoBookChosen{u"선택된 책 없음",
                                           u"선택된 책이 없습니다. 그대로 문서창을 닫을까요?", 52};
/// %1 is the number of the condition, from 1.
inline constexpr MessageText kConditionMissing{u"중간 항목이 비었음",
                                               u"단어 %1 항목이 비었습니다.\r\n"
                                               u"중간에 빈 검색 항목이 들어갈 수 없습니다. ",
                                               16};
inline constexpr MessageText kAnalysisLost{
    u"파일 손실", u"z101.dts 파일을 찾을 수 없습니다. 루멘 스크립트를 재설치하시기 바랍니다.", 48};
inline constexpr MessageText kScratchLost{u"파일 손실",
                                          u"Data 디렉토리내의 z199.dts 파일이 손실되었습니다. "
                                          u"검색 작업이 불가능하므로 재설치 하십시요.",
                                          16};
inline constexpr MessageText kNoStrongList{u"결과 없음", u"해당하는 스트롱 코드 관주가 없습니다.",
                                           64};
inline constexpr MessageText kShiftKeyOnly{u"안내",
                                           u"쉬프트(Shift)키는 마우스로 사용할 수 없습니다.\r\n"
                                           u"직접 키보드로 누르시기 바랍니다.",
                                           64};

inline constexpr MessageText kPrintMany{u"확인",
                                        u"현재 검색된 내용이 많아 이를 미리보기 및 인쇄하는데는 "
                                        u"많은 시간이 소요됩니다. 시스템에 따라 수분 "
                                        u"이상이 소요될 수도 있습니다. 인쇄를 하시겠습니까?",
                                        52};

} // namespace lumen::messages
