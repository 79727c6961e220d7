// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace lumen {

/// What the tables of the engine itself are called and how a file shows that it is a store.
namespace StoreLayout {
inline constexpr int kApplicationId = 0x4C554D53; // "LUMS", at byte 68 of the file
inline constexpr int kVersion = 1;                // PRAGMA user_version
inline constexpr QStringView kStoreTable = u"MSysStore";
inline constexpr QStringView kOriginTable = u"MSysOrigin";
inline constexpr QStringView kCompareKey = u"compare";
inline constexpr QStringView kPasswordKey = u"password";
inline constexpr QStringView kOriginKey = u"origin";
/// The line that keeps the last number of a table whose autonumber isn't its key.
inline QString counterKey(const QString& table)
{
    return QStringLiteral("counter ") + table;
}
} // namespace StoreLayout

/// Index names belong to a table here and to the whole file in SQLite; the table stands before.
inline QString storedIndexName(const QString& table, const QString& index)
{
    return table + QLatin1Char('.') + index;
}

} // namespace lumen
