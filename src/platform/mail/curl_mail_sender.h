// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_sender.h"
#include "platform/mail/mail_transfer.h"

#include <memory>
#include <vector>

namespace lumen {

/// Sends by libcurl in a thread of its own, one letter at a time, as libcurl waits for some of the
/// server's answers within its calls. Events come in the thread of the caller.
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
    struct Told;
    struct Run;
    void forgetEnded();

    MailHabits m_habits;
    std::vector<std::unique_ptr<Run>> m_runs; ///< the last one, and those whose threads still end
};

} // namespace lumen
