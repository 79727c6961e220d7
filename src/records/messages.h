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

/// Unsaved text of a former run; %1 is its title, %2 the moment of its last word.
inline constexpr MessageText kDraftFound{
    u"저장되지 않은 내용",
    u"\"%1\"에 %2까지 쓰고 저장하지 못한 내용이 남아 있습니다. 불러올까요?\r\n('아니오'를 누르면 "
    u"지우고, '취소'를 누르면 다음에 다시 묻습니다.)",
    35};
inline constexpr MessageText kDraftFails{
    u"임시 저장 실패",
    u"쓰고 있는 내용을 임시로 저장하지 못하고 있습니다. 디스크를 확인하고 [저장]을 눌러 "
    u"주십시오.\r\n%1",
    48};
inline constexpr MessageText kRecordGone{
    u"지워진 자료",
    u"이 자료는 다른 프로그램에서 지워졌습니다. 화면에 있는 내용을 새 자료로 저장할까요?", 36};
inline constexpr MessageText kNotClosed{u"저장하지 못한 내용",
                                        u"저장하지 못한 내용이 있습니다. 그래도 창을 닫을까요? "
                                        u"닫아도 쓰던 내용은 임시 파일에 남아 다음에 "
                                        u"열 때 다시 불러올 수 있습니다.",
                                        276};
inline constexpr MessageText kLosesOnEdit{
    u"보이지 않는 내용",
    u"이 글에는 각주나 그리기 개체처럼 여기서 보여 줄 수 없는 것이 들어 있습니다. 고치면 그것은 "
    u"없어집니다. 계속할까요?",
    308};

inline constexpr MessageText kNoWordProcessor{u"MS 워드 미설치",
                                              u"MS 워드가 설치되어 있지 않습니다.", 16};
inline constexpr MessageText kExportSelection{u"선택 부분 추출 확인",
                                              u"현재 선택된 내용이 있습니다. 선택된 내용만 "
                                              u"추출하시겠습니까?\r\n(전체를 추출하려면 '아니오'를 "
                                              u"클릭!)",
                                              51};
inline constexpr MessageText kExportOverwrite{
    u"확인", u"해당 이름의 파일이 이미 존재합니다. 이를 겹쳐쓰기 할까요?", 52};
inline constexpr MessageText kPageSaved{u"HTML로 저장 완료", u"HTML 파일로 저장이 완료되었습니다.",
                                        48};

inline constexpr MessageText kNoIllustrationTitle{u"예화 저장",
                                                  u"제목이 없습니다. 제목을 입력하여 주십시요", 48};
inline constexpr MessageText kNoIllustrationCategory{
    u"예화 저장", u"분류 항목이 없습니다. 분류 항목을 입력하여 주십시요", 48};
inline constexpr MessageText kNoIllustrationBody{
    u"예화 저장", u"본문이 없습니다. 본문 내용을 입력하여 주십시요", 48};
inline constexpr MessageText kCancelIllustration{u"편집 취소", u"편집 작업을 취소하시겠습니까?",
                                                 36};
inline constexpr MessageText kDeleteIllustration{u"삭제 확인",
                                                 u"현재의 예화 자료를 삭제하시겠습니까?", 52};
inline constexpr MessageText kLeaveIllustration{u"예화 저장", u"고치던 예화를 저장하고 닫을까요?",
                                                35};

inline constexpr MessageText kNoName{u"성명 누락", u"성명이 입력되지 않았습니다.", 48};
inline constexpr MessageText kNoAddress{u"전자우편 주소 누락",
                                        u"전자우편 주소가 입력되지 않았습니다.", 48};
inline constexpr MessageText kWrongAddress{u"전자우편 주소 오류",
                                           u"전자우편 주소가 잘못 입력되었습니다.", 48};
inline constexpr MessageText kLastAddress{
    u"삭제 불가", u"마지막 항목은 삭제할 수 없습니다. 수정을 이용하시기 바랍니다.", 64};
/// %1 is the name.
inline constexpr MessageText kDeleteAddress{u"삭제 확인", u"주소록에서 '%1'을 삭제하시겠습니까?",
                                            36};
inline constexpr MessageText kNoOwnAddress{u"전자우편 주소 누락",
                                           u"귀하의 전자 우편 주소가 누락되었습니다.", 48};
inline constexpr MessageText kNoServer{u"SMTP 주소 누락",
                                       u"귀하의 전자우편(SMTP) 서버 이름이 누락되었습니다.", 48};
/// %1 is the reason.
inline constexpr MessageText kMailSettingsNotStored{
    u"저장 실패", u"전자우편 환경 설정을 저장하지 못했습니다.\r\n%1", 48};
inline constexpr MessageText kNoRecipient{u"수신자 없음", u"메일을 보낼 곳을 선택하시기 바랍니다.",
                                          48};
inline constexpr MessageText kNoServerSet{
    u"SMTP 설정 오류", u"메일 서버 설정이 되어 있지 않습니다. 전자우편 환경 설정을 하십시요.", 16};
inline constexpr MessageText kNoOwnAddressSet{
    u"SMTP 설정 오류",
    u"귀하의 전자우편 주소 설정이 되어 있지 않습니다. 전자우편 환경 설정을 하십시요.", 16};
/// %1 is the reason.
inline constexpr MessageText kSendingFailed{u"전송 에러", u"전송 실패: %1", 48};
inline constexpr MessageText kSent{u"전송 완료", u"전송이 모두 성공적으로 완료되었습니다.", 0};

} // namespace lumen::messages
