// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

inline constexpr MessageText kNoSermonTitle{
    u"설교 제목 공란", u"설교 제목란이 비어있습니다.내용을 입력하여 주십시요.", 16};
inline constexpr MessageText kNoQuietTimeTitle{
    u"QT 제목 공란", u"QT 제목란이 비어있습니다.내용을 입력하여 주십시요.", 16};
inline constexpr MessageText kLastSermon{u"설교 레코드 삭제",
                                         u"마지막 레코드는 삭제할 수 없습니다.", 64};
inline constexpr MessageText kLastQuietTime{u"QT 레코드 삭제",
                                            u"마지막 레코드는 삭제할 수 없습니다.", 64};
inline constexpr MessageText kDeleteSermon{u"설교 레코드 삭제 확인",
                                           u"현재의 설교를 삭제하시겠습니까?", 20};
inline constexpr MessageText kDeleteQuietTime{u"QT 레코드 삭제 확인",
                                              u"현재의 QT를 삭제하시겠습니까?", 20};
inline constexpr MessageText kPrintAllSermons{
    u"전체 자료 인쇄",
    u"설교 매니저 데이터 베이스에 수록되어 있는 모든 자료를 인쇄합니다.계속하시겠습니까?", 49};
inline constexpr MessageText kPrintAllQuietTime{
    u"전체 자료 인쇄",
    u"QT 매니저 데이터 베이스에 수록되어 있는 모든 자료를 인쇄합니다.계속하시겠습니까?", 49};

inline constexpr MessageText kNoSermonsFoundBefore{
    u"기존 검색 결과 없음",
    u"앞서 검색된 내용이 없으므로, 전체 설교 항목에 대한 검색을 시행합니다.", 48};
inline constexpr MessageText kNoQuietTimeFoundBefore{
    u"기존 검색 결과 없음", u"앞서 검색된 내용이 없으므로, 전체 QT 항목에 대한 검색을 시행합니다.",
    48};
inline constexpr MessageText kNoQuietTimeFoundBeforePower{
    u"기존 검색 결과 없음",
    u"앞서 검색된 내용이 없으므로, 전체 큐티 항목에 대한 검색을 시행합니다.", 48};
inline constexpr MessageText kNoFirstTerm{
    u"검색 문자열이 없음",
    u"첫번째 검색 대상은 반드시 입력되어야 합니다. 검색하고자 하는 문자열을 입력한 후 [검색] "
    u"단추를 누르시기 바랍니다.",
    64};

} // namespace lumen::messages
