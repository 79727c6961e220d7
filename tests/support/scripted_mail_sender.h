// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_sender.h"
#include "platform/mail/secret_store.h"

#include <QMap>

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

/// A safe that is open.
class MemorySecretStore : public SecretStore
{
public:
    void read(const QString& account,
              std::function<void(const std::optional<QString>&)> answer) override
    {
        answer(passwords.contains(account) ? std::optional(passwords.value(account))
                                           : std::nullopt);
    }
    void write(const QString& account, const QString& password) override
    {
        passwords.insert(account, password);
    }
    void remove(const QString& account) override { passwords.remove(account); }

    QMap<QString, QString> passwords;
};

} // namespace lumen
