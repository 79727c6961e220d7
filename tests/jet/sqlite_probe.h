// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/sqlite_statement.h"

#include <QString>
#include <QStringList>

#include <sqlite3.h>

namespace lumen {

/// Looks into a store past the engine: the rows of a query, columns joined by "|", Null as "NULL".
inline QStringList rawRows(const QString& nativePath, const QByteArray& sql)
{
    const SqliteHandle handle(nativePath, SQLITE_OPEN_READONLY);
    SqliteStatement statement(handle.get(), sql);
    QStringList rows;
    while (statement.step()) {
        QStringList columns;
        for (int i = 0; i < statement.columnCount(); ++i)
            columns << (statement.isNull(i) ? QStringLiteral("NULL") : statement.text(i));
        rows << columns.join(u'|');
    }
    return rows;
}

} // namespace lumen
