// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/companion_folder.h"

#include <QFileInfo>

namespace lumen {

using namespace Qt::StringLiterals;

QString companionFolder(const QString& moduleFolder, const QString& name)
{
    const QFileInfo folder(moduleFolder);
    const bool isData = folder.fileName().compare(u"Data"_s, Qt::CaseInsensitive) == 0;
    return (isData ? folder.path() : moduleFolder) + u'/' + name;
}

} // namespace lumen
