// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/sql/sql_scope.h"

#include "jet/error.h"
#include "jet/store/sqlite_statement.h"

namespace lumen {

QString ResolvedColumn::sql() const
{
    return quotedName(table->name) + u'.' + quotedName(column->name);
}

const TableInfo* SqlScope::tableNamed(const QString& name) const
{
    for (const TableInfo* table : m_tables)
        if (table->name.compare(name, Qt::CaseInsensitive) == 0)
            return table;
    throw jetError(ErrorNumber::kUnknownTable, name);
}

ResolvedColumn SqlScope::resolve(const SqlNode& column) const
{
    if (!column.table.isEmpty()) {
        const TableInfo* table = tableNamed(column.table);
        if (const ColumnInfo* found = table->column(column.text))
            return {table, found};
        throw jetError(ErrorNumber::kUnknownColumn, column.table + u'.' + column.text);
    }
    for (const ResultColumn& name : m_names)
        if (name.name.compare(column.text, Qt::CaseInsensitive) == 0)
            return {name.table, name.column};
    for (const TableInfo* table : m_tables)
        if (const ColumnInfo* found = table->column(column.text))
            return {table, found};
    throw jetError(ErrorNumber::kUnknownColumn, column.text);
}

} // namespace lumen
