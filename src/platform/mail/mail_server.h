// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace lumen {

/// `None` takes encryption where the server offers it, the others refuse to go on without.
enum class MailEncryption { None, StartTls, Tls };

/// The server that takes mail, and who logs in there.
struct MailServer
{
    QString host;
    int port = 0; ///< 0: the usual one of the encryption
    MailEncryption encryption = MailEncryption::None;
    QString user; ///< empty: no login
    QString password;
};

/// A server as typed: `host`, `host:port`, `smtp://host:port` or `smtps://host`.
Result<MailServer> mailServerOf(QStringView text);

/// The address of the server for the transfer, with its port.
QByteArray serverUrl(const MailServer& server);

} // namespace lumen
