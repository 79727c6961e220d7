// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/connect_string.h"

#include <QStringList>

namespace lumen {

std::optional<QString> passwordOf(const QString& connect)
{
    for (const QString& term : connect.split(u';')) {
        const qsizetype equals = term.indexOf(u'=');
        if (equals >= 0 && term.first(equals).trimmed().compare(u"pwd", Qt::CaseInsensitive) == 0)
            return term.sliced(equals + 1);
    }
    return std::nullopt;
}

} // namespace lumen
