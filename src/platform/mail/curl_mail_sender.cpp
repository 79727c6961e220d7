// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/curl_mail_sender.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {

CurlMailSender::CurlMailSender(MailHabits habits) : m_habits(std::move(habits)) {}

CurlMailSender::~CurlMailSender()
{
    cancel();
}

Result<Done> CurlMailSender::send(const MailMessage& message, const MailServer& server,
                                  MailEvents events)
{
    if (m_transfer && !m_transfer->isOver())
        return Failure{FailureKind::InUse, u"메일을 전송하는 중입니다."_s};
    auto mail = composeMail(message);
    if (!mail)
        return mail.failure();
    m_transfer = new MailTransfer({message.recipients, std::move(mail.value()), server}, m_habits,
                                  std::move(events));
    return Done{};
}

void CurlMailSender::cancel()
{
    if (m_transfer)
        m_transfer->stop();
}

} // namespace lumen
