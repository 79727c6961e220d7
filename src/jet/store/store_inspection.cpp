// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/store_inspection.h"

#include "jet/error.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/store_layout.h"

#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOpenFlags = SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;

QStringList readFaults(const SqliteHandle& handle)
{
    QStringList faults;
    SqliteStatement statement(handle.get(), "PRAGMA integrity_check(20)");
    while (statement.step())
        if (const QString line = statement.text(0); line != u"ok")
            faults << line;
    return faults;
}

qint64 readNumber(const SqliteHandle& handle, const QByteArray& sql)
{
    SqliteStatement statement(handle.get(), sql);
    return statement.step() ? statement.integer(0) : 0;
}

QStringList readTexts(const SqliteHandle& handle, const QString& sql)
{
    QStringList texts;
    SqliteStatement statement(handle.get(), sql.toUtf8());
    while (statement.step())
        texts << statement.text(0);
    return texts;
}

QList<std::pair<QString, QString>> readPairs(const SqliteHandle& handle, QStringView table)
{
    QList<std::pair<QString, QString>> pairs;
    SqliteStatement statement(handle.get(),
                              u"SELECT key, value FROM %1 ORDER BY rowid"_s.arg(table).toUtf8());
    while (statement.step())
        pairs.append({statement.text(0), statement.text(1)});
    return pairs;
}

void readTables(const SqliteHandle& handle, StoreInspection& result)
{
    const QStringList names = readTexts(
        handle, u"SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT LIKE 'sqlite|_%'"
                " ESCAPE '|' ORDER BY name"_s);
    for (const QString& name : names) {
        if (name == StoreLayout::kStoreTable || name == StoreLayout::kOriginTable)
            continue;
        StoreTable table;
        table.name = name;
        table.columns =
            readTexts(handle, u"SELECT name FROM pragma_table_info(%1)"_s.arg(quotedText(name)));
        table.rows =
            readNumber(handle, u"SELECT count(*) FROM %1"_s.arg(quotedName(name)).toUtf8());
        result.tables << table;
    }
    if (names.contains(StoreLayout::kOriginTable))
        result.originLines = readPairs(handle, StoreLayout::kOriginTable);
    if (!names.contains(StoreLayout::kStoreTable))
        return;
    for (const auto& [key, value] : readPairs(handle, StoreLayout::kStoreTable)) {
        if (key == StoreLayout::kCompareKey)
            result.compare = value;
        else if (key == StoreLayout::kOriginKey)
            result.origin = value;
        else if (key == StoreLayout::kPasswordKey)
            result.hasPassword = !value.isEmpty();
    }
}

} // namespace

StoreInspection inspectStore(const QString& nativePath)
{
    const SqliteHandle handle(nativePath, kOpenFlags);
    StoreInspection result;
    result.isOurs = readNumber(handle, "PRAGMA application_id") == StoreLayout::kApplicationId;
    result.faults = readFaults(handle);
    if (result.faults.isEmpty())
        readTables(handle, result);
    return result;
}

void readColumnPair(const QString& nativePath, const QString& table, const QString& first,
                    const QString& second,
                    const std::function<void(const QString&, const QString&)>& take)
{
    const SqliteHandle handle(nativePath, kOpenFlags);
    SqliteStatement statement(handle.get(),
                              u"SELECT %1, %2 FROM %3 ORDER BY rowid"_s
                                  .arg(quotedName(first), quotedName(second), quotedName(table))
                                  .toUtf8());
    while (statement.step())
        take(statement.text(0), statement.isNull(1) ? QString() : statement.text(1));
}

void readRows(const QString& nativePath, const QString& table,
              const std::function<void(const QVariantList&)>& take)
{
    const SqliteHandle handle(nativePath, kOpenFlags);
    SqliteStatement statement(handle.get(),
                              u"SELECT * FROM %1 ORDER BY rowid"_s.arg(quotedName(table)).toUtf8());
    while (statement.step()) {
        QVariantList row;
        for (int column = 0; column < statement.columnCount(); ++column)
            row << statement.value(column);
        take(row);
    }
}

} // namespace lumen
