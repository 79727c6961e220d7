// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/aside_name.h"

namespace lumen {

using namespace Qt::StringLiterals;

QString freeAsideName(const QString& file, const std::function<bool(const QString& name)>& isTaken)
{
    const QString base = file + u".damaged"_s;
    QString name = base;
    for (int number = 2; isTaken(name); ++number)
        name = base + u'-' + QString::number(number);
    return name;
}

} // namespace lumen
