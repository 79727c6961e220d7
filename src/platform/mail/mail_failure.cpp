// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/mail_failure.h"

#include <QStringList>

#include <curl/curl.h>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

bool isRefusal(const QString& reply)
{
    return reply.startsWith(u'4') || reply.startsWith(u'5');
}

QString reasonOf(const MailEnding& ending, const MailServer& server)
{
    switch (ending.code) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return u"메일 서버 '%1'을(를) 찾을 수 없습니다."_s.arg(server.host);
    case CURLE_COULDNT_CONNECT:
        return u"메일 서버 '%1'에 연결할 수 없습니다."_s.arg(server.host);
    case CURLE_USE_SSL_FAILED:
        return u"메일 서버가 암호화 연결(STARTTLS)을 받아들이지 않습니다."_s;
    case CURLE_PEER_FAILED_VERIFICATION:
        return u"메일 서버 '%1'의 인증서를 믿을 수 없어 보내지 않았습니다."_s.arg(server.host);
    case CURLE_SSL_CONNECT_ERROR:
        return u"메일 서버와 암호화 연결을 할 수 없습니다."_s;
    case CURLE_LOGIN_DENIED:
        return u"메일 서버가 사용자 이름이나 비밀번호를 받아들이지 않았습니다. (%1)"_s.arg(
            ending.reply);
    default:
        break;
    }
    if (isRefusal(ending.reply))
        return u"메일 서버가 받아들이지 않았습니다. (%1)"_s.arg(ending.reply);
    return u"메일 서버가 연결을 끊었습니다. (%1)"_s.arg(
        QString::fromUtf8(curl_easy_strerror(static_cast<CURLcode>(ending.code))));
}

QString shown(const MailRefusal& refusal)
{
    const QString& name = refusal.recipient.name;
    return (name.isEmpty() ? refusal.recipient.address
                           : u"%1 <%2>"_s.arg(name, refusal.recipient.address)) +
           u": "_s + refusal.reply;
}

QString refusalText(const MailEnding& ending)
{
    QStringList lines{u"메일 서버가 다음 주소를 받아들이지 않았습니다."_s};
    for (const MailRefusal& refusal : ending.refused)
        lines.append(shown(refusal));
    const auto served = ending.recipients - ending.refused.size();
    if (ending.code == CURLE_OK && served > 0)
        lines.append(u"나머지 %1명에게는 전송되었습니다."_s.arg(served));
    return lines.join(u"\r\n"_s);
}

} // namespace

MailReport mailReportOf(const MailEnding& ending, const MailServer& server)
{
    MailReport report;
    report.delivered = ending.code == CURLE_OK;
    report.refused = ending.refused;
    report.loginRefused = ending.code == CURLE_LOGIN_DENIED;
    if (ending.code == CURLE_OPERATION_TIMEDOUT)
        report.failure =
            u"메일 서버가 %1초 동안 응답하지 않았습니다."_s.arg(ending.patienceSeconds);
    else if (ending.refused.size() == ending.recipients ||
             (report.delivered && !ending.refused.isEmpty()))
        report.failure = refusalText(ending);
    else if (!report.delivered)
        report.failure = reasonOf(ending, server);
    return report;
}

} // namespace lumen
