// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_sender.h"
#include "platform/mail/mail_transfer.h"

#include <QPointer>

namespace lumen {

/// Sends by libcurl in the event loop, one letter at a time. The last answer, to the letter itself,
/// is waited for within libcurl: windows stand still for as long as the server takes over it, at
/// most as long as the patience.
class CurlMailSender : public MailSender
{
public:
    explicit CurlMailSender(MailHabits habits = {});
    ~CurlMailSender() override;
    CurlMailSender(const CurlMailSender&) = delete;
    CurlMailSender& operator=(const CurlMailSender&) = delete;

    Result<Done> send(const MailMessage& message, const MailServer& server,
                      MailEvents events) override;
    void cancel() override;

private:
    MailHabits m_habits;
    QPointer<MailTransfer> m_transfer; ///< deletes itself when it is over
};

} // namespace lumen
