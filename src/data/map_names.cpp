// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/map_names.h"

#include <QList>
#include <QStringList>

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kNumbers = 6; // behind the name

} // namespace

QString mapNamesText(const std::vector<MapName>& names)
{
    QString text;
    for (const MapName& name : names) {
        text += name.name;
        for (const int number : {name.at.x(), name.at.y(), name.label.x(), name.label.y(),
                                 name.label.width(), name.label.height()})
            text += u'\t' + QString::number(number);
        text += u'\n';
    }
    return text;
}

std::vector<MapName> mapNamesOf(const QString& text)
{
    std::vector<MapName> names;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList fields = line.split(u'\t');
        bool isWhole = fields.size() == 1 + kNumbers && !fields[0].isEmpty();
        QList<int> numbers;
        for (qsizetype i = 1; isWhole && i <= kNumbers; ++i)
            numbers << fields[i].toInt(&isWhole);
        if (isWhole)
            names.push_back({fields[0],
                             {numbers[0], numbers[1]},
                             {numbers[2], numbers[3], numbers[4], numbers[5]}});
    }
    return names;
}

} // namespace lumen
