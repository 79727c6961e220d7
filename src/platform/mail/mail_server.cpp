// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/mail_server.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

int usualPort(MailEncryption encryption)
{
    switch (encryption) {
    case MailEncryption::Tls:
        return 465;
    case MailEncryption::StartTls:
        return 587;
    case MailEncryption::None:
        break;
    }
    return 25;
}

} // namespace

Result<MailServer> mailServerOf(QStringView text)
{
    QString typed = text.trimmed().toString();
    if (!typed.contains(u"://"_s))
        typed.prepend(u"smtp://"_s);
    const QUrl url(typed, QUrl::StrictMode);
    const bool encrypted = url.scheme() == u"smtps"_s;
    const bool onlyServer = (url.path().isEmpty() || url.path() == u"/"_s) && !url.hasQuery() &&
                            !url.hasFragment() && url.userInfo().isEmpty();
    if (!url.isValid() || url.host().isEmpty() || url.port() == 0 || !onlyServer ||
        (!encrypted && url.scheme() != u"smtp"_s))
        return Failure{FailureKind::Invalid,
                       u"메일 서버 이름 '%1'이(가) 잘못되었습니다."_s.arg(text.toString())};
    MailServer server;
    server.host = url.host(QUrl::FullyEncoded);
    server.port = url.port(0);
    server.encryption = encrypted ? MailEncryption::Tls : MailEncryption::None;
    return server;
}

QByteArray serverUrl(const MailServer& server)
{
    const int port = server.port > 0 ? server.port : usualPort(server.encryption);
    const QByteArray host = server.host.toLatin1();
    return (server.encryption == MailEncryption::Tls ? "smtps://" : "smtp://") +
           (host.contains(':') && !host.startsWith('[') ? '[' + host + ']' : host) + ':' +
           QByteArray::number(port);
}

} // namespace lumen
