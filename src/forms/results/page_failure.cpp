// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/page_failure.h"

#include "forms/services.h"
#include "platform/dialogs/message_boxes.h"

namespace lumen {
namespace {

/// %1 is the page.
constexpr MessageText kNoBrowser{u"웹 브라우저 없음",
                                 u"페이지를 보여 줄 웹 브라우저가 없습니다.\r\n"
                                 u"웹 브라우저를 설치한 후 다시 실행하십시오.\r\n%1",
                                 48};

} // namespace

void tellPageFailure(Services& services, QWidget* parent, const MessageText& missing,
                     const Failure& failure)
{
    const MessageText& message = failure.kind == FailureKind::System ? kNoBrowser : missing;
    services.messages.show(parent, message, {failure.detail});
}

} // namespace lumen
