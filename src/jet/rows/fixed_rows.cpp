// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/rows/fixed_rows.h"

#include "jet/sql/sql_parser.h"
#include "jet/store/field_types.h"
#include "jet/store/functions.h"
#include "jet/store/store_writer.h"

#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMemoryFlags =
    SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY | SQLITE_OPEN_NOMUTEX;

/// The result as a table of its own; names that come twice are told apart by their place.
TableInfo tableOf(const std::vector<ResultColumn>& columns)
{
    TableInfo table;
    table.name = u"result"_s;
    table.rowid = u"rowid"_s;
    for (const ResultColumn& column : columns) {
        ColumnInfo copy = *column.column;
        copy.autonumber = false;
        copy.name = column.name;
        if (table.columnIndex(copy.name) >= 0 ||
            copy.name.compare(u"rowid", Qt::CaseInsensitive) == 0)
            copy.name += u".%1"_s.arg(table.columns.size());
        table.columns.push_back(std::move(copy));
    }
    return table;
}

void fillTable(const SqliteHandle& handle, const TableInfo& table, const std::vector<Row>& rows)
{
    QStringList columns;
    QStringList marks;
    for (const ColumnInfo& column : table.columns) {
        columns << quotedName(column.name) + u' ' +
                       declaration({.name = column.name, .type = column.type, .size = column.size});
        marks << u"?"_s;
    }
    const QString name = quotedName(table.name);
    handle.run(u"CREATE TABLE %1 (%2); BEGIN"_s.arg(name, columns.join(u", "_s)).toUtf8());
    SqliteStatement insert(handle.get(),
                           u"INSERT INTO %1 VALUES (%2)"_s.arg(name, marks.join(u", "_s)).toUtf8());
    for (const Row& row : rows) {
        insert.bindAll(QVariantList(row.begin(), row.end()));
        insert.execute();
    }
    handle.run("COMMIT");
}

} // namespace

std::vector<Row> FixedRows::readRows(Connection& connection, const TranslatedSql& query)
{
    std::vector<Row> rows;
    const auto statement = connection.statement(query.sql);
    statement->bindAll(query.parameters);
    const int columns = statement->columnCount();
    while (statement->step()) {
        Row& row = rows.emplace_back();
        for (int i = 0; i < columns; ++i)
            row.push_back(statement->value(i));
    }
    return rows;
}

std::vector<int> FixedRows::matching(Connection& connection,
                                     const std::vector<ResultColumn>& columns,
                                     const QString& criterion) const
{
    // The rows go into a table in memory, where a criterion means the same as anywhere else.
    const TableInfo table = tableOf(columns);
    SqlTranslator translator(connection.schema(), connection.compare());
    const TranslatedSql condition = translator.condition(parseCriterion(criterion), table, {});
    const SqliteHandle handle(u":memory:"_s, kMemoryFlags);
    registerJetFunctions(handle.get());
    fillTable(handle, table, m_rows);
    SqliteStatement statement(handle.get(), "SELECT rowid FROM " + quotedName(table.name).toUtf8() +
                                                " WHERE " + condition.sql + " ORDER BY rowid");
    statement.bindAll(condition.parameters);
    std::vector<int> found;
    while (statement.step())
        found.push_back(static_cast<int>(statement.integer(0)) - 1);
    return found;
}

} // namespace lumen
