// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/mail_message.h"

#include "text/codepage949.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <QUuid>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

// An encoded word has at most 75 characters and its line 76, "Subject: " and the frame included.
constexpr qsizetype kEncodedWordBytes = 39;
constexpr qsizetype kLineOfBase64 = 76;
constexpr qsizetype kPlainTextLimit = 60;
// Code page 949 reaches beyond the set whose name it bears in mail: pairs below 0xA1.
constexpr std::uint16_t kFirstOfStandardSet = 0xA1;

enum class MailSet { EucKr, Utf8 };

bool isInStandardSet(QChar letter)
{
    if (letter.unicode() < 0x80)
        return true;
    const auto code = code949(letter.unicode());
    return code && letter.category() != QChar::Other_PrivateUse &&
           *code >> 8 >= kFirstOfStandardSet && (*code & 0xFF) >= kFirstOfStandardSet;
}

MailSet setOf(const MailMessage& message)
{
    QString all = message.sender.name + message.subject + message.body;
    for (const MailAddress& who : message.recipients)
        all += who.name;
    return std::all_of(all.begin(), all.end(), isInStandardSet) ? MailSet::EucKr : MailSet::Utf8;
}

QByteArray nameOf(MailSet set)
{
    return set == MailSet::EucKr ? "EUC-KR" : "UTF-8";
}

QByteArray encoded(MailSet set, QStringView text)
{
    return set == MailSet::EucKr ? toCodePage949(text) : text.toUtf8();
}

/// One or more encoded words, each of whole letters, on a line of its own.
QByteArray encodedWords(MailSet set, QStringView text)
{
    QList<QByteArray> pieces{QByteArray()};
    for (qsizetype at = 0; at < text.size();) {
        const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
        const QByteArray letter = encoded(set, text.mid(at, pair ? 2 : 1));
        if (pieces.last().size() + letter.size() > kEncodedWordBytes)
            pieces.append(QByteArray());
        pieces.last() += letter;
        at += pair ? 2 : 1;
    }
    QByteArrayList words;
    for (const QByteArray& piece : pieces)
        words.append("=?" + nameOf(set) + "?B?" + piece.toBase64() + "?=");
    return words.join("\r\n ");
}

bool isPlain(QStringView text)
{
    return text.size() <= kPlainTextLimit && !text.contains(u"=?") && text == text.trimmed() &&
           std::all_of(text.begin(), text.end(), [](QChar letter) { return letter < u'\x7f'; });
}

QByteArray mailbox(MailSet set, const MailAddress& who, const QByteArray& address)
{
    QString name = who.name.trimmed();
    if (name.isEmpty())
        return address;
    if (!isPlain(name))
        return encodedWords(set, name) + "\r\n <" + address + '>';
    name.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return '"' + name.toLatin1() + "\"\r\n <" + address + '>';
}

QByteArray bodyLines(MailSet set, QString body)
{
    static const QRegularExpression lineEnd(u"\r\n|\r|\n"_s);
    const QByteArray all = encoded(set, body.replace(lineEnd, u"\r\n"_s)).toBase64();
    QByteArray lines;
    for (qsizetype at = 0; at < all.size(); at += kLineOfBase64)
        lines += all.mid(at, kLineOfBase64) + "\r\n";
    return lines;
}

QByteArray header(const MailMessage& message, const ComposedMail& mail, MailSet set)
{
    const QByteArray from = mailbox(set, message.sender, mail.sender);
    QByteArrayList to;
    for (qsizetype i = 0; i < mail.recipients.size(); ++i)
        to.append(mailbox(set, message.recipients[i], mail.recipients[i]));
    const QByteArray id = QUuid::createUuid().toByteArray(QUuid::WithoutBraces) + '@' +
                          mail.sender.mid(mail.sender.lastIndexOf('@') + 1);
    const QByteArray subject =
        isPlain(message.subject) ? message.subject.toLatin1() : encodedWords(set, message.subject);
    return "Date: " + message.date.toString(Qt::RFC2822Date).toLatin1() + "\r\nFrom: " + from +
           "\r\nReply-To: " + from + "\r\nTo: " + to.join(",\r\n ") + "\r\nSubject: " + subject +
           "\r\nMessage-ID: <" + id +
           ">\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=" + nameOf(set) +
           "\r\nContent-Transfer-Encoding: base64\r\n\r\n";
}

} // namespace

Result<ComposedMail> composeMail(const MailMessage& message)
{
    if (holdsControlCharacter(message.subject))
        return Failure{FailureKind::Invalid, u"제목에 줄 바꿈이나 제어 문자가 들어 있습니다."_s};
    if (message.recipients.isEmpty())
        return Failure{FailureKind::Invalid, u"받는 사람이 없습니다."_s};
    const auto sender = wireAddress(message.sender);
    if (!sender)
        return sender.failure();
    ComposedMail mail{sender.value(), {}, {}};
    for (const MailAddress& who : message.recipients) {
        const auto address = wireAddress(who);
        if (!address)
            return address.failure();
        mail.recipients.append(address.value());
    }
    const MailSet set = setOf(message);
    mail.text = header(message, mail, set) + bodyLines(set, message.body);
    return mail;
}

} // namespace lumen
