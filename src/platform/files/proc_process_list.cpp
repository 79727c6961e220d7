// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/proc_process_list.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace lumen {

QStringList ProcProcessList::names() const
{
    QStringList result;
    const QStringList entries = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (!entry.front().isDigit())
            continue;
        // A process may have ended since the listing.
        QFile file(u"/proc/"_s + entry + u"/comm"_s);
        if (file.open(QIODevice::ReadOnly))
            result << QString::fromUtf8(file.readAll()).trimmed();
    }
    return result;
}

} // namespace lumen
