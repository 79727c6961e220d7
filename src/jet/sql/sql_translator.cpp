// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/sql/sql_translator.h"

#include "jet/error.h"
#include "jet/sql/sql_expression.h"
#include "jet/store/field_types.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/store_writer.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString rowidOf(const TableInfo& table)
{
    return quotedName(table.name) + u'.' + table.rowid;
}

ResolvedColumn resolved(const ResultColumn& column)
{
    return {column.table, column.column};
}

QString direction(const OrderItem& item)
{
    return item.descending ? u" DESC"_s : QString();
}

} // namespace

bool SqlTranslator::isKeyed(const SelectStatement& statement)
{
    return statement.cores.size() == 1 && !statement.cores[0].distinct &&
           statement.cores[0].joined.isEmpty();
}

SqlScope SqlTranslator::scopeOf(const SelectCore& core)
{
    std::vector<const TableInfo*> tables{&m_schema.table(core.table)};
    if (!core.joined.isEmpty())
        tables.push_back(&m_schema.table(core.joined));
    return SqlScope(std::move(tables));
}

std::vector<ResultColumn> SqlTranslator::resultColumns(const SelectCore& core,
                                                       const SqlScope& scope)
{
    std::vector<ResultColumn> columns;
    for (const SelectItem& item : core.items) {
        const ResolvedColumn found = scope.resolve(item.column);
        columns.push_back(
            {item.alias.isEmpty() ? found.column->name : item.alias, found.table, found.column});
    }
    if (core.items.empty())
        for (const TableInfo* table : scope.tables())
            for (const ColumnInfo& column : table->columns)
                columns.push_back({column.name, table, &column});
    return columns;
}

/// Modules compare by code point, which is SQLite's own way.
QString SqlTranslator::collation(const ColumnInfo& column) const
{
    return m_compare == StoreCompare::Text && isTextType(column.type) ? u" COLLATE JETTEXT"_s
                                                                      : QString();
}

QString SqlTranslator::columnOrder(const std::vector<OrderItem>& order, const SqlScope& scope) const
{
    QStringList terms;
    for (const OrderItem& item : order) {
        const ResolvedColumn found = scope.resolve(item.column);
        terms << found.sql() + collation(*found.column) + direction(item);
    }
    // Ties come in stored order.
    terms << rowidOf(*scope.tables().front());
    return u" ORDER BY "_s + terms.join(u", "_s);
}

KeyQuery SqlTranslator::wholeTable(const TableInfo& table)
{
    SelectStatement all;
    all.cores.emplace_back().table = table.name;
    return keyQuery(all);
}

KeyQuery SqlTranslator::keyQuery(const SelectStatement& statement)
{
    const SelectCore& core = statement.cores[0];
    const SqlScope scope = scopeOf(core);
    KeyQuery query;
    query.table = scope.tables().front();
    query.columns = resultColumns(core, scope);
    QString where;
    bool quick = false;
    if (core.where) {
        where = u" WHERE "_s +
                SqlExpression(scope, m_compare, query.keys.parameters).condition(*core.where);
        quick = isServedByIndex(*core.where, scope, m_compare);
    }
    // Left to itself SQLite may walk an index to save the sorting and look up each row from there,
    // which is slower than one scan in stored order.
    const QString from =
        u" FROM "_s + quotedName(query.table->name) + (quick ? QString() : u" NOT INDEXED"_s);
    query.keys.sql =
        (u"SELECT "_s + rowidOf(*query.table) + from + where + columnOrder(statement.order, scope))
            .toUtf8();
    if (!quick)
        hopeForStoredOrder(query, statement, scope, from + where);
    return query;
}

void SqlTranslator::hopeForStoredOrder(KeyQuery& query, const SelectStatement& statement,
                                       const SqlScope& scope, const QString& where) const
{
    if (statement.order.size() != 1 || statement.order[0].descending)
        return;
    const ResolvedColumn sort = scope.resolve(statement.order[0].column);
    if (!collation(*sort.column).isEmpty() || sort.column->type == FieldType::Binary)
        return;
    query.sortColumn = sort.column->name;
    query.scanSql =
        u"SELECT %1, %2%3 ORDER BY %1"_s.arg(rowidOf(*query.table), sort.sql(), where).toUtf8();
}

QString SqlTranslator::selectText(const SelectCore& core, const SqlScope& scope,
                                  const std::vector<ResultColumn>& columns,
                                  QVariantList& parameters)
{
    SqlExpression expression(scope, m_compare, parameters);
    QStringList items;
    for (const ResultColumn& column : columns)
        items << u"%1%2 AS %3"_s.arg(resolved(column).sql(), collation(*column.column),
                                     quotedName(column.name));
    QString text = (core.distinct ? u"SELECT DISTINCT "_s : u"SELECT "_s) + items.join(u", "_s) +
                   u" FROM "_s + quotedName(scope.tables()[0]->name);
    if (core.on)
        text += u" JOIN %1 ON %2"_s.arg(quotedName(scope.tables()[1]->name),
                                        expression.condition(*core.on));
    if (core.where)
        text += u" WHERE "_s + expression.condition(*core.where);
    return text;
}

/// The order of results that have no rowid to break ties: the ORDER BY columns by their position,
/// then all columns.
QString SqlTranslator::positionOrder(const SelectStatement& statement,
                                     const std::vector<ResultColumn>& columns) const
{
    QStringList terms;
    for (const OrderItem& item : statement.order) {
        std::size_t at = 0;
        while (at < columns.size() &&
               columns[at].name.compare(item.column.text, Qt::CaseInsensitive) != 0)
            ++at;
        if (at == columns.size())
            throw jetError(ErrorNumber::kUnknownColumn, item.column.text);
        terms << QString::number(at + 1) + collation(*columns[at].column) + direction(item);
    }
    for (std::size_t at = 0; at < columns.size(); ++at)
        terms << QString::number(at + 1) + collation(*columns[at].column);
    return u" ORDER BY "_s + terms.join(u", "_s);
}

FixedQuery SqlTranslator::fixedQuery(const SelectStatement& statement)
{
    FixedQuery query;
    QStringList parts;
    for (const SelectCore& core : statement.cores) {
        const SqlScope scope = scopeOf(core);
        const auto columns = resultColumns(core, scope);
        if (query.columns.empty())
            query.columns = columns;
        if (columns.size() != query.columns.size())
            throw jetError(ErrorNumber::kCriterionSyntax, u"UNION"_s);
        parts << selectText(core, scope, columns, query.rows.parameters);
    }
    const SelectCore& first = statement.cores[0];
    const bool isJoin = statement.cores.size() == 1 && !first.distinct;
    QString order;
    if (isJoin)
        order = columnOrder(statement.order, scopeOf(first));
    else if (!statement.unionAll || !statement.order.empty())
        order = positionOrder(statement, query.columns);
    const QString word = statement.unionAll ? u" UNION ALL "_s : u" UNION "_s;
    query.rows.sql = (parts.join(word) + order).toUtf8();
    return query;
}

IntoQuery SqlTranslator::intoQuery(const SelectStatement& statement)
{
    IntoQuery query;
    query.table = statement.cores[0].into;
    if (m_schema.find(query.table) != nullptr)
        throw jetError(ErrorNumber::kTableExists, query.table);
    const FixedQuery source = fixedQuery(statement);
    QStringList columns;
    for (const ResultColumn& column : source.columns)
        columns << quotedName(column.name) + u' ' +
                       declaration({.name = column.name,
                                    .type = column.column->type,
                                    .size = column.column->size});
    query.create.sql =
        u"CREATE TABLE %1 (%2)"_s.arg(quotedName(query.table), columns.join(u", "_s)).toUtf8();
    query.insert.sql = u"INSERT INTO %1 "_s.arg(quotedName(query.table)).toUtf8() + source.rows.sql;
    query.insert.parameters = source.rows.parameters;
    return query;
}

TranslatedSql SqlTranslator::deletion(const DeleteStatement& statement)
{
    const SqlScope scope({&m_schema.table(statement.table)});
    TranslatedSql result;
    QString text = u"DELETE FROM "_s + quotedName(scope.tables().front()->name);
    if (statement.where)
        text += u" WHERE "_s +
                SqlExpression(scope, m_compare, result.parameters).condition(*statement.where);
    result.sql = text.toUtf8();
    return result;
}

TranslatedSql SqlTranslator::condition(const SqlNode& criterion, const TableInfo& table,
                                       const std::vector<ResultColumn>& columns)
{
    const SqlScope scope({&table}, columns);
    TranslatedSql result;
    result.sql = SqlExpression(scope, m_compare, result.parameters).condition(criterion).toUtf8();
    return result;
}

bool SqlTranslator::isQuick(const SqlNode& criterion, const TableInfo& table,
                            const std::vector<ResultColumn>& columns) const
{
    return isServedByIndex(criterion, SqlScope({&table}, columns), m_compare);
}

} // namespace lumen
