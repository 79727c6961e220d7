// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/mail/mail_address.h"
#include "platform/result.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

namespace lumen {

/// A letter of plain text. Answers go to the sender.
struct MailMessage
{
    MailAddress sender;
    QList<MailAddress> recipients;
    QString subject;
    QString body;
    QDateTime date;
};

/// A letter as it goes over the wire.
struct ComposedMail
{
    QByteArray sender;
    QList<QByteArray> recipients; ///< in the order of the message
    QByteArray text;              ///< header and body, ASCII in lines that end with CR LF
};

/// The message in the Korean standard set (EUC-KR), or in UTF-8 when it holds a letter that readers
/// of that set don't know. A line end in an address, a name or the subject is refused: it would let
/// the text of a title write headers. Failures are told in Korean.
Result<ComposedMail> composeMail(const MailMessage& message);

} // namespace lumen
