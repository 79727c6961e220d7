// SPDX-License-Identifier: GPL-2.0-or-later
// Filters and searches of recordset.h.
#include "jet/error.h"
#include "jet/rows/recordset.h"
#include "jet/rows/recordset_state.h"
#include "jet/store/field_types.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// The index of the first record that meets the criterion, -1 for none.
int firstMatch(const RecordsetState& state, const QString& criterion)
{
    if (state.fixed) {
        const auto found = state.fixed->matching(*state.connection, state.columns, criterion);
        return found.empty() ? -1 : found.front();
    }
    const auto found = KeyedRows::filtered(*state.connection, *state.table, state.columns,
                                           state.keyed->keys(), criterion);
    return found.empty() ? -1 : state.keyed->indexOf(found.front(), 0);
}

std::shared_ptr<FixedRows> filteredRows(const RecordsetState& state)
{
    std::vector<Row> rows;
    if (state.filter.isEmpty())
        rows = state.fixed->rows();
    else
        for (const int index :
             state.fixed->matching(*state.connection, state.columns, state.filter))
            rows.push_back(state.fixed->rows()[static_cast<std::size_t>(index)]);
    return std::make_shared<FixedRows>(std::move(rows));
}

/// The column that Seek compares: the first of the index, or the autonumber key, which is the
/// table's order itself and has no index of its own.
const ColumnInfo& seekColumn(const RecordsetState& state)
{
    if (const IndexInfo* index = state.table->index(state.indexName))
        if (!index->columns.isEmpty())
            if (const ColumnInfo* column = state.table->column(index->columns.first()))
                return *column;
    for (const ColumnInfo& column : state.table->columns)
        if (column.isRowid && state.indexName.compare(u"PrimaryKey", Qt::CaseInsensitive) == 0)
            return column;
    throw jetError(ErrorNumber::kNoSuchIndex, state.indexName);
}

std::optional<qint64> seekKey(const RecordsetState& state, const QVariant& value)
{
    const ColumnInfo& column = seekColumn(state);
    const bool folded =
        isTextType(column.type) && state.connection->compare() == StoreCompare::Text;
    const auto statement = state.connection->statement(
        u"SELECT %1 FROM %2 WHERE %3 = ?%4 ORDER BY %1 LIMIT 1"_s
            .arg(state.table->rowid, quotedName(state.table->name), quotedName(column.name),
                 folded ? u" COLLATE JETTEXT"_s : QString())
            .toUtf8());
    statement->bind(1, storedValue(value, column.type, 0));
    return statement->step() ? std::optional(statement->integer(0)) : std::nullopt;
}

} // namespace

QString Recordset::Filter() const
{
    m_state->needOpen();
    return m_state->filter;
}

void Recordset::setFilter(const QString& criterion)
{
    m_state->needOpen();
    m_state->filter = criterion;
}

std::unique_ptr<Recordset> Recordset::OpenRecordset()
{
    m_state->needOpen();
    if (m_state->fixed)
        return std::make_unique<Recordset>(m_state->derive(filteredRows(*m_state)));
    const auto& keys = m_state->keyed->keys();
    auto kept = m_state->filter.isEmpty()
                    ? keys
                    : KeyedRows::filtered(*m_state->connection, *m_state->table, m_state->columns,
                                          keys, m_state->filter);
    auto state = m_state->derive(std::make_shared<KeyedRows>(m_state->connection, *m_state->table,
                                                             m_state->columns, std::move(kept)));
    state->isTable = false;
    return std::make_unique<Recordset>(std::move(state));
}

void Recordset::FindFirst(const QString& criterion)
{
    m_state->needOpen();
    const int found = firstMatch(*m_state, criterion);
    m_state->noMatch = found < 0;
    if (found < 0)
        return;
    m_state->goTo(found);
}

bool Recordset::NoMatch() const
{
    m_state->needOpen();
    return m_state->noMatch;
}

void Recordset::setIndex(const QString& name)
{
    m_state->needOpen();
    if (!m_state->isTable)
        throw jetError(ErrorNumber::kInvalidArgument, name);
    const QString former = std::exchange(m_state->indexName, name);
    try {
        seekColumn(*m_state);
    } catch (const JetError&) {
        m_state->indexName = former;
        throw;
    }
}

void Recordset::Seek(const QString& comparison, const QVariant& value)
{
    m_state->needOpen();
    if (!m_state->isTable || comparison != u"=")
        throw jetError(ErrorNumber::kInvalidArgument, comparison);
    if (m_state->indexName.isEmpty())
        throw jetError(ErrorNumber::kNoIndexSet);
    m_state->dropEdit();
    const auto key = seekKey(*m_state, value);
    m_state->noMatch = !key;
    if (!key)
        return;
    int index = m_state->keyed->indexOf(*key, m_state->cursor.index + 1);
    // A table recordset also finds what others have added since it was opened.
    if (index < 0) {
        m_state->keyed->append(*key);
        index = m_state->keyed->count() - 1;
    }
    m_state->goTo(index);
}

} // namespace lumen
