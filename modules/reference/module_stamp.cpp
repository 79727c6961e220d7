// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/module_stamp.h"

#include "jet/error.h"
#include "jet/store/store_inspection.h"
#include "jet/store/store_layout.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

QString stampOf(const QString& making)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(making.toUtf8(), QCryptographicHash::Sha1).toHex());
}

QString originLine(const QString& moduleFile, QStringView key)
{
    if (!QFileInfo::exists(moduleFile))
        return {};
    QString line;
    try {
        readColumnPair(moduleFile, StoreLayout::kOriginTable.toString(), u"key"_s, u"value"_s,
                       [&](const QString& stored, const QString& value) {
                           if (stored == key)
                               line = value;
                       });
    } catch (const JetError&) {
        // A file that can't be read is made anew.
        return {};
    }
    return line;
}

QString storedStamp(const QString& moduleFile)
{
    return originLine(moduleFile, kStampKey);
}

} // namespace lumen
