// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_sender.h"

#include <QString>

namespace lumen {

/// What is known when a transfer has ended.
struct MailEnding
{
    int code = 0; ///< of libcurl
    int patienceSeconds = 0;
    QString reply; ///< the server's last words
    QList<MailRefusal> refused;
    qsizetype recipients = 0;
};

/// The report of an ending in words for the user.
MailReport mailReportOf(const MailEnding& ending, const MailServer& server);

} // namespace lumen
