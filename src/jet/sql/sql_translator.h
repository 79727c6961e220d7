// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/sql/sql_scope.h"
#include "jet/sql/sql_tree.h"
#include "jet/store/file_policy.h"

#include <QByteArray>
#include <QVariantList>

#include <vector>

namespace lumen {

/// A statement for SQLite with the values of its numbered parameters.
struct TranslatedSql
{
    QByteArray sql;
    QVariantList parameters;
};

/// A query over one table: it gives the rowids of its records, whose columns are read by rowid.
struct KeyQuery
{
    const TableInfo* table = nullptr;
    std::vector<ResultColumn> columns;
    TranslatedSql keys; ///< rowids in the query's order
    /// Rowids and the sort column in stored order, when that may well be the query's order: rows of
    /// modules are stored in canon order, and telling so while scanning is cheaper than sorting.
    /// "" when it is no use.
    QByteArray scanSql;
    QString sortColumn;
};

/// A query whose records are no rows of a table: DISTINCT, UNION, INNER JOIN.
struct FixedQuery
{
    std::vector<ResultColumn> columns;
    TranslatedSql rows;
};

/// SELECT ... INTO: a new table and what fills it.
struct IntoQuery
{
    QString table;
    TranslatedSql create;
    TranslatedSql insert;
};

/// Translates statements into the SQL of SQLite. Errors: 93, 3061, 3075, 3078.
class SqlTranslator
{
public:
    SqlTranslator(StoreSchema& schema, StoreCompare compare) : m_schema(schema), m_compare(compare)
    {
    }

    /// One table, no DISTINCT, no UNION: such a recordset can be changed.
    static bool isKeyed(const SelectStatement& statement);

    KeyQuery keyQuery(const SelectStatement& statement);
    KeyQuery wholeTable(const TableInfo& table);
    FixedQuery fixedQuery(const SelectStatement& statement);
    IntoQuery intoQuery(const SelectStatement& statement);
    TranslatedSql deletion(const DeleteStatement& statement);

    /// The condition of a filter over the rows of a table; `columns` are the recordset's.
    TranslatedSql condition(const SqlNode& criterion, const TableInfo& table,
                            const std::vector<ResultColumn>& columns);
    /// True when the condition is found without looking at each row.
    bool isQuick(const SqlNode& criterion, const TableInfo& table,
                 const std::vector<ResultColumn>& columns) const;

private:
    SqlScope scopeOf(const SelectCore& core);
    static std::vector<ResultColumn> resultColumns(const SelectCore& core, const SqlScope& scope);
    QString collation(const ColumnInfo& column) const;
    QString selectText(const SelectCore& core, const SqlScope& scope,
                       const std::vector<ResultColumn>& columns, QVariantList& parameters);
    QString positionOrder(const SelectStatement& statement,
                          const std::vector<ResultColumn>& columns) const;
    QString columnOrder(const std::vector<OrderItem>& order, const SqlScope& scope) const;
    void hopeForStoredOrder(KeyQuery& query, const SelectStatement& statement,
                            const SqlScope& scope, const QString& where) const;

    StoreSchema& m_schema;
    StoreCompare m_compare;
};

} // namespace lumen
