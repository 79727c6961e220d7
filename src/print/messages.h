// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"

namespace lumen::messages {

inline constexpr MessageText kNoPrinter{u"프린터 미설치", u"시스템에 설치된 프린터가 없읍니다.",
                                        16};
inline constexpr MessageText kMarginTooHigh{
    u"Lumenscript", u"Sorry! The margin value cannot exceed paper height * 1/3.", 0};
inline constexpr MessageText kMarginTooWide{
    u"Lumenscript", u"Sorry! The margin value cannot exceed paper width * 1/3.", 0};
inline constexpr MessageText kPrinterGone{
    u"인쇄", u"프린터 \"%1\"을(를) 찾을 수 없습니다.", 48,
    u"프린터가 켜져 있는지 확인하거나 다른 프린터를 고르십시오."};
inline constexpr MessageText kNotPrinted{u"인쇄", u"인쇄하지 못했습니다.\n%1", 48};
inline constexpr MessageText kPdfExists{u"PDF 파일로 저장",
                                        u"%1\n파일이 이미 있습니다. 바꾸시겠습니까?", 52};

} // namespace lumen::messages
