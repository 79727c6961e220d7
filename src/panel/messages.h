// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

/// %1 is the word.
inline constexpr MessageText kLongBibleSearch{
    u"확인",
    u"'%1'에 대한 '내용 중' 검색 옵션은 시스템에 따라 수분 이상의 시간이 소요될 수 있습니다. \r\n"
    u"계속하시겠습니까?\r\n"
    u"(참고: 한글 검색 시 사전 선택을 '오르베인 한글'로 설정하시면 시간이 절약됩니다.)",
    52};
inline constexpr MessageText kLongEnglishSearch{
    u"확인",
    u"'내용 중' 검색 옵션은 시스템에 따라 수분 이상의 시간이 소요될 수 있습니다. \r\n"
    u"계속하시겠습니까?",
    52};

/// %1 is the file.
inline constexpr MessageText kTuneMissing{u"곡 파일 없음", u"이 찬송가의 곡 파일이 없습니다.\r\n%1",
                                          48};
inline constexpr MessageText kNoPlayer{u"연주 프로그램 없음",
                                       u"MIDI 파일을 연주할 프로그램이 없습니다.\r\n"
                                       u"연주 프로그램을 설치한 후 다시 실행하십시오.\r\n%1",
                                       48};

/// %1 is the version's name.
inline constexpr MessageText kNoConcordance{
    u"성구 사전 모듈 미설치",
    u"'%1'에 대한 성구 사전 모듈이 하드 디스크에 설치되어 있지 않습니다. ORVANE Lumen Script "
    u"CD-ROM을 넣어 주십시요.",
    48};
inline constexpr MessageText kNotSearchable{
    u"검색할 수 없는 검색어", u"선택 또는 입력한 단어나 어구를 검색할 수 없습니다.", 16};

inline constexpr MessageText kNotePlaceTaken{
    u"추가 불능", u"동일한 장절에 대한 개인 주석이 이미 존재합니다.", 48};
inline constexpr MessageText kNotesAbsent{u"추가 불능",
                                          u"개인 주석 파일 Data\\myc.mdb가 없어 주석을 저장할 수 "
                                          u"없습니다. Data 폴더에 쓸 수 있는지 확인한 뒤 "
                                          u"프로그램을 다시 시작하시기 바랍니다.",
                                          48};
inline constexpr MessageText kNotesReadOnly{
    u"추가 불능",
    u"개인 주석 파일 Data\\myc.mdb가 읽기 전용으로 열려 있어 "
    u"주석을 고치거나 추가할 수 없습니다.",
    48};
inline constexpr MessageText kDeleteNote{u"삭제 확인", u"현재의 개인 주석을 삭제하시겠습니까?", 49};

} // namespace lumen::messages
