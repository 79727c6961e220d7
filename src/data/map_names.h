// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>

#include <vector>

namespace lumen {

/// The text of a map's picture (a PNG text chunk) that tells what is written on it. A picture
/// without it, such as one of the user's own, is shown all the same.
inline const QString kMapNamesKey = QStringLiteral("Places");

/// A name that is written on a map, in pixels of its picture.
struct MapName
{
    QString name;
    QPoint at;   ///< what it names
    QRect label; ///< where it is written
};

/// A line a name: name, point, corner and size of the label, parted by tabs.
QString mapNamesText(const std::vector<MapName>& names);
/// Lines that are none are passed over.
std::vector<MapName> mapNamesOf(const QString& text);

} // namespace lumen
