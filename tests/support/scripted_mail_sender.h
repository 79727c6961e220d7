// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_sender.h"

#include <vector>

namespace lumen {

/// Keeps letters instead of sending them; a test ends them by `events`.
class ScriptedMailSender : public MailSender
{
public:
    Result<Done> send(const MailMessage& message, const MailServer& server,
                      MailEvents told) override
    {
        letters.push_back(message);
        servers.push_back(server);
        events = std::move(told);
        return Done{};
    }
    void cancel() override { ++cancelled; }

    std::vector<MailMessage> letters;
    std::vector<MailServer> servers;
    MailEvents events;
    int cancelled = 0;
};

} // namespace lumen
