// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/store_schema.h"

#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/store_layout.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

bool sameName(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

std::vector<ColumnInfo> readColumns(sqlite3* handle, const QString& table)
{
    std::vector<ColumnInfo> columns;
    SqliteStatement statement(handle,
                              "SELECT name, type, pk FROM pragma_table_info(?) ORDER BY cid");
    statement.bind(1, table);
    int keys = 0;
    while (statement.step()) {
        const QString declared = statement.text(1);
        const DeclaredType type = readDeclaration(declared);
        ColumnInfo column{.name = statement.text(0),
                          .type = type.type,
                          .size = type.size,
                          .autonumber = type.counter,
                          .key = statement.integer(2) > 0};
        // SQLite makes the rowid's alias of a key that is declared so and not otherwise.
        column.isRowid = column.key && sameName(declared, u"INTEGER");
        keys += column.key ? 1 : 0;
        columns.push_back(std::move(column));
    }
    for (ColumnInfo& column : columns) {
        column.isRowid = column.isRowid && keys == 1;
        column.autonumber = column.autonumber || column.isRowid;
    }
    return columns;
}

std::vector<IndexInfo> readIndexes(sqlite3* handle, const QString& table)
{
    std::vector<IndexInfo> indexes;
    SqliteStatement list(handle, "SELECT name FROM pragma_index_list(?) WHERE partial = 0");
    list.bind(1, table);
    const QString prefix = storedIndexName(table, {});
    while (list.step()) {
        const QString stored = list.text(0);
        IndexInfo index;
        index.name =
            stored.startsWith(prefix, Qt::CaseInsensitive) ? stored.mid(prefix.size()) : stored;
        SqliteStatement columns(handle, "SELECT name FROM pragma_index_info(?) ORDER BY seqno");
        columns.bind(1, stored);
        while (columns.step())
            index.columns << columns.text(0);
        indexes.push_back(std::move(index));
    }
    return indexes;
}

QString rowidName(const TableInfo& table)
{
    for (const QString& name : {u"rowid"_s, u"_rowid_"_s})
        if (table.columnIndex(name) < 0)
            return name;
    return u"oid"_s;
}

} // namespace

int TableInfo::columnIndex(QStringView column) const
{
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (sameName(columns[i].name, column))
            return static_cast<int>(i);
    return -1;
}

const ColumnInfo* TableInfo::column(QStringView columnName) const
{
    const int found = columnIndex(columnName);
    return found < 0 ? nullptr : &columns[static_cast<std::size_t>(found)];
}

const IndexInfo* TableInfo::index(QStringView indexName) const
{
    const auto found = std::find_if(indexes.begin(), indexes.end(), [&](const IndexInfo& entry) {
        return sameName(entry.name, indexName);
    });
    return found == indexes.end() ? nullptr : &*found;
}

bool TableInfo::startsIndex(const QString& columnName) const
{
    const ColumnInfo* info = column(columnName);
    if (info != nullptr && info->isRowid)
        return true;
    return std::any_of(indexes.begin(), indexes.end(), [&](const IndexInfo& entry) {
        return !entry.columns.isEmpty() && sameName(entry.columns.first(), columnName);
    });
}

const QStringList& StoreSchema::names()
{
    if (m_namesRead)
        return m_names;
    SqliteStatement statement(m_handle, "SELECT name FROM sqlite_schema WHERE type = 'table' "
                                        "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'");
    m_names.clear();
    while (statement.step())
        m_names << statement.text(0);
    m_names.sort(Qt::CaseInsensitive);
    m_namesRead = true;
    return m_names;
}

const TableInfo* StoreSchema::find(QStringView name)
{
    for (const QString& known : names()) {
        if (!sameName(known, name))
            continue;
        std::unique_ptr<TableInfo>& entry = m_tables[known];
        if (!entry)
            entry = read(known);
        return entry.get();
    }
    return nullptr;
}

const TableInfo& StoreSchema::table(const QString& name)
{
    const TableInfo* found = find(name);
    if (found == nullptr)
        throw jetError(ErrorNumber::kUnknownTable, name);
    return *found;
}

void StoreSchema::forget()
{
    m_namesRead = false;
    for (auto& [name, table] : m_tables)
        if (table)
            m_former.push_back(std::move(table));
    m_tables.clear();
}

std::unique_ptr<TableInfo> StoreSchema::read(const QString& name) const
{
    auto table = std::make_unique<TableInfo>();
    table->name = name;
    table->columns = readColumns(m_handle, name);
    table->indexes = readIndexes(m_handle, name);
    table->rowid = rowidName(*table);
    return table;
}

} // namespace lumen
