// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>

namespace lumen {

/// Someone who sends or gets mail, as the user typed it.
struct MailAddress
{
    QString name; ///< may be empty
    QString address;
};

/// The address as a server takes it: no blanks around, a local part with odd characters quoted, the
/// host in ASCII. Control characters, angle brackets, a second "@", a local part that isn't ASCII
/// and a host that can't be one are refused; the failure tells the reason in Korean.
Result<QByteArray> wireAddress(const MailAddress& who);

/// The addresses of a list parted by ";", empty pieces left out.
QList<MailAddress> mailAddressesOf(QStringView list);

/// True for a line end or another control character, which would open a header of its own.
bool holdsControlCharacter(QStringView text);

} // namespace lumen
