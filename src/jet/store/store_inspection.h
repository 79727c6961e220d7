// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <utility>

namespace lumen {

struct StoreTable
{
    QString name;
    QStringList columns;
    qint64 rows = 0;
};

/// What a store tells about itself without a password.
struct StoreInspection
{
    QStringList faults;  ///< what the integrity check found; empty when the file is sound
    bool isOurs = false; ///< the file carries the mark of a store
    QString compare;
    QString origin;
    bool hasPassword = false;
    QList<StoreTable> tables; ///< without those of the engine, by name
    QList<std::pair<QString, QString>> originLines;
};

/// Opens a store read-only and looks it through. Throws JetError: 3024, 3343, 3049.
StoreInspection inspectStore(const QString& nativePath);

/// Calls `take` with the values of two columns of each row in stored order, as texts; the second
/// is null for a database Null.
void readColumnPair(const QString& nativePath, const QString& table, const QString& first,
                    const QString& second,
                    const std::function<void(const QString&, const QString&)>& take);

/// Calls `take` with each row of a table in stored order, its columns in theirs.
void readRows(const QString& nativePath, const QString& table,
              const std::function<void(const QVariantList&)>& take);

} // namespace lumen
