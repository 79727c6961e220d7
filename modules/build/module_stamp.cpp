// SPDX-License-Identifier: GPL-2.0-or-later
#include "build/module_stamp.h"

#include "platform/jet/jet_error.h"
#include "platform/jet/store_inspection.h"
#include "platform/jet/store_layout.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

QString taskStamp(const ModuleTask& task)
{
    const QString text = u"%1\n%2\n%3\n%4\n%5\n"_s.arg(kBuilderVersion)
                             .arg(task.code)
                             .arg(task.name, task.ownMapping, task.origin) +
                         sourceStamp(task.source);
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex());
}

QString storedStamp(const QString& moduleFile)
{
    if (!QFileInfo::exists(moduleFile))
        return {};
    QString stamp;
    try {
        readColumnPair(moduleFile, StoreLayout::kOriginTable.toString(), u"key"_s, u"value"_s,
                       [&stamp](const QString& key, const QString& value) {
                           if (key == kStampKey)
                               stamp = value;
                       });
    } catch (const JetError&) {
        // A file that can't be read is made anew.
        return {};
    }
    return stamp;
}

} // namespace lumen
