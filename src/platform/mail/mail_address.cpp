// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/mail/mail_address.h"

#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

bool isAtomText(QChar letter)
{
    return letter.unicode() < 0x80 &&
           (letter.isLetterOrNumber() || u"!#$%&'*+-/=?^_`{|}~"_s.contains(letter));
}

bool isDotAtom(QStringView local)
{
    const auto pieces = local.split(u'.');
    return std::all_of(pieces.begin(), pieces.end(), [](QStringView piece) {
        return !piece.isEmpty() && std::all_of(piece.begin(), piece.end(), isAtomText);
    });
}

QString quoted(QString local)
{
    if (local.size() > 1 && local.startsWith(u'"') && local.endsWith(u'"'))
        local = local.mid(1, local.size() - 2);
    return u'"' + local.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

Failure refused(const MailAddress& who, const QString& reason)
{
    QString shown = who.address;
    std::replace_if(
        shown.begin(), shown.end(), [](QChar letter) { return letter < u' '; }, QChar(u' '));
    return {FailureKind::Invalid, u"전자우편 주소 '%1': %2"_s.arg(shown, reason)};
}

} // namespace

bool holdsControlCharacter(QStringView text)
{
    // The two separators are line ends of Unicode, which some programs obey.
    return std::any_of(text.begin(), text.end(), [](QChar letter) {
        return letter.category() == QChar::Other_Control || letter == QChar::LineSeparator ||
               letter == QChar::ParagraphSeparator;
    });
}

Result<QByteArray> wireAddress(const MailAddress& who)
{
    if (holdsControlCharacter(who.address) || holdsControlCharacter(who.name))
        return refused(who, u"줄 바꿈이나 제어 문자가 들어 있습니다."_s);
    const QString address = who.address.trimmed();
    const auto at = address.indexOf(u'@');
    if (at < 1 || address.count(u'@') != 1)
        return refused(who, u"'@' 앞에 이름이, 뒤에 서버가 하나씩 있어야 합니다."_s);
    const QString local = address.left(at);
    const bool ascii = std::all_of(local.begin(), local.end(),
                                   [](QChar letter) { return letter.unicode() < 0x80; });
    if (!ascii || local.contains(u'<') || local.contains(u'>'))
        return refused(who, u"'@' 앞에 쓸 수 없는 글자가 있습니다."_s);
    const QByteArray host = QUrl::toAce(address.mid(at + 1));
    const bool plain = !host.isEmpty() && std::all_of(host.begin(), host.end(), [](char letter) {
        return QChar::fromLatin1(letter).isLetterOrNumber() || letter == '-' || letter == '.';
    });
    if (!plain)
        return refused(who, u"'@' 뒤의 서버 이름이 잘못되었습니다."_s);
    return (isDotAtom(local) ? local : quoted(local)).toLatin1() + '@' + host;
}

QList<MailAddress> mailAddressesOf(QStringView list)
{
    QList<MailAddress> found;
    for (const QStringView piece : list.split(u';')) {
        if (!piece.trimmed().isEmpty())
            found.append({{}, piece.trimmed().toString()});
    }
    return found;
}

} // namespace lumen
