// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/field_types.h"

#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <vector>

struct sqlite3;

namespace lumen {

struct ColumnInfo
{
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;
    bool autonumber = false; ///< numbered for each new record and never changed
    bool isRowid = false;    ///< the key that SQLite itself hands out; always an autonumber
    bool key = false;        ///< part of the primary key in the table's definition
};

struct IndexInfo
{
    QString name; ///< without the table in front
    QStringList columns;
};

/// A table as it was found in a store.
struct TableInfo
{
    QString name;
    QString rowid; ///< the name under which the rowid is not hidden by a column
    std::vector<ColumnInfo> columns;
    std::vector<IndexInfo> indexes;

    /// Names are compared without regard to case; nullptr and -1 for unknown ones.
    int columnIndex(QStringView column) const;
    const ColumnInfo* column(QStringView name) const;
    const IndexInfo* index(QStringView name) const;
    /// True when an index begins with the column, so that a range of it is found quickly.
    bool startsIndex(const QString& column) const;
};

/// The tables of one open file, read when they are asked for.
class StoreSchema
{
public:
    explicit StoreSchema(sqlite3* handle) : m_handle(handle) {}

    /// All tables but SQLite's own, sorted without regard to case.
    const QStringList& names();
    /// nullptr for an unknown table; the case of `name` doesn't count.
    const TableInfo* find(QStringView name);
    /// find() or error 3078.
    const TableInfo& table(const QString& name);
    /// To be called when a table came into being or went with a transaction.
    void forget();

private:
    std::unique_ptr<TableInfo> read(const QString& name) const;

    sqlite3* m_handle;
    bool m_namesRead = false;
    QStringList m_names;
    std::map<QString, std::unique_ptr<TableInfo>> m_tables;
    std::vector<std::unique_ptr<TableInfo>> m_former; ///< open recordsets may still point at them
};

} // namespace lumen
