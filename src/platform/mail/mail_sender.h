// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_message.h"
#include "platform/mail/mail_server.h"
#include "platform/result.h"

#include <QList>
#include <QString>

#include <functional>

namespace lumen {

/// A recipient whom the server did not take, with its words.
struct MailRefusal
{
    MailAddress recipient;
    QString reply;
};

/// How a sending ended.
struct MailReport
{
    bool delivered = false; ///< the server took the letter, for those whom it did not refuse
    QString failure;        ///< in Korean; empty when everyone is served
    QList<MailRefusal> refused;
    bool loginRefused = false; ///< the user name or the password
};

struct MailEvents
{
    std::function<void(int percent)> progress;
    std::function<void(const MailReport& report)> finished; ///< once, and last
};

/// Sends a letter while the windows stay alive.
class MailSender
{
public:
    virtual ~MailSender() = default;

    /// Begins to send; the events come from the event loop. A failure says that nothing was begun.
    virtual Result<Done> send(const MailMessage& message, const MailServer& server,
                              MailEvents events) = 0;
    /// Breaks the sending off; no event comes any more.
    virtual void cancel() = 0;
};

} // namespace lumen
