// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/sql/sql_tree.h"
#include "jet/store/store_schema.h"

#include <QString>

#include <optional>
#include <vector>

namespace lumen {

/// A column that a query gives: its name in the recordset and where it comes from.
struct ResultColumn
{
    QString name;
    const TableInfo* table = nullptr;
    const ColumnInfo* column = nullptr;
};

/// What a name of a query stands for.
struct ResolvedColumn
{
    const TableInfo* table = nullptr;
    const ColumnInfo* column = nullptr;

    /// As SQLite wants it: table and column in quotes.
    QString sql() const;
};

/// The tables and, for filters, the result columns that the names of an expression are looked up
/// in, without regard to case.
class SqlScope
{
public:
    explicit SqlScope(std::vector<const TableInfo*> tables, std::vector<ResultColumn> names = {})
        : m_tables(std::move(tables)), m_names(std::move(names))
    {
    }

    /// Error 3061 for an unknown column, 3078 for a table that the query doesn't name.
    ResolvedColumn resolve(const SqlNode& column) const;
    const std::vector<const TableInfo*>& tables() const { return m_tables; }

private:
    const TableInfo* tableNamed(const QString& name) const;

    std::vector<const TableInfo*> m_tables;
    std::vector<ResultColumn> m_names;
};

} // namespace lumen
