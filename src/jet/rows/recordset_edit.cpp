// SPDX-License-Identifier: GPL-2.0-or-later
// The edit buffer of recordset.h: adding, changing and deleting records.
#include "jet/error.h"
#include "jet/rows/recordset.h"
#include "jet/rows/recordset_state.h"
#include "jet/store/field_types.h"

#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// What goes into a table's column of a new record: the buffer's value when the recordset shows the
/// column, else what an untouched record has.
QVariant newValue(const RecordsetState& state, const ColumnInfo& column)
{
    for (std::size_t i = 0; i < state.columns.size(); ++i)
        if (state.columns[i].column == &column)
            return state.buffer[i];
    if (column.autonumber && state.autonumber)
        return *state.autonumber;
    return column.type == FieldType::Boolean ? QVariant(0) : QVariant();
}

qint64 insertRecord(RecordsetState& state)
{
    // SQLite itself keeps the last number of a rowid.
    for (const ColumnInfo& column : state.table->columns)
        if (column.autonumber && !column.isRowid)
            state.connection->noteAutonumber(*state.table, *state.autonumber);
    QStringList names;
    QStringList marks;
    QVariantList values;
    for (const ColumnInfo& column : state.table->columns) {
        names << quotedName(column.name);
        marks << u"?"_s;
        values << newValue(state, column);
    }
    const auto statement = state.connection->statement(
        u"INSERT INTO %1 (%2) VALUES (%3)"_s
            .arg(quotedName(state.table->name), names.join(u", "_s), marks.join(u", "_s))
            .toUtf8());
    statement->bindAll(values);
    statement->execute();
    return sqlite3_last_insert_rowid(state.connection->handle());
}

void changeRecord(RecordsetState& state, qint64 key)
{
    QStringList terms;
    QVariantList values;
    for (std::size_t i = 0; i < state.columns.size(); ++i)
        if (state.touched[i]) {
            terms << quotedName(state.columns[i].column->name) + u" = ?"_s;
            values << state.buffer[i];
        }
    if (terms.isEmpty())
        return;
    values << key;
    const auto statement = state.connection->statement(
        u"UPDATE %1 SET %2 WHERE %3 = ?"_s
            .arg(quotedName(state.table->name), terms.join(u", "_s), state.table->rowid)
            .toUtf8());
    statement->bindAll(values);
    statement->execute();
    if (sqlite3_changes(state.connection->handle()) == 0)
        throw jetError(ErrorNumber::kRecordDeleted, state.connection->source());
}

} // namespace

void Field::setValue(const QVariant& value)
{
    RecordsetState& state = *m_recordset->m_state;
    state.needOpen();
    if (state.editMode == EditMode::None)
        throw jetError(ErrorNumber::kUpdateWithoutEdit);
    const auto at = static_cast<std::size_t>(m_index);
    const ColumnInfo& column = *state.columns[at].column;
    // The autonumber is the record's identity.
    if (column.autonumber && state.editMode == EditMode::Edit)
        throw jetError(ErrorNumber::kReadOnly, column.name);
    state.buffer[at] = storedValue(value, column.type, column.size);
    state.touched[at] = true;
}

EditMode Recordset::editMode() const
{
    m_state->needOpen();
    return m_state->editMode;
}

void Recordset::AddNew()
{
    m_state->writable();
    m_state->storeChanged();
    m_state->dropEdit();
    m_state->buffer.resize(m_state->columns.size());
    m_state->touched.resize(m_state->columns.size());
    for (const ColumnInfo& column : m_state->table->columns)
        if (column.autonumber)
            m_state->autonumber = m_state->connection->takeAutonumber(*m_state->table, column);
    for (std::size_t i = 0; i < m_state->columns.size(); ++i) {
        const ColumnInfo& column = *m_state->columns[i].column;
        if (column.autonumber)
            m_state->buffer[i] = *m_state->autonumber;
        else if (column.type == FieldType::Boolean)
            m_state->buffer[i] = 0;
    }
    m_state->editMode = EditMode::Add;
}

void Recordset::Edit()
{
    KeyedRows& rows = m_state->writable();
    Row record = rows.row(m_state->currentIndex());
    m_state->dropEdit();
    m_state->touched.resize(record.size());
    m_state->buffer = std::move(record);
    m_state->editMode = EditMode::Edit;
}

void Recordset::Update()
{
    KeyedRows& rows = m_state->writable();
    if (m_state->editMode == EditMode::None)
        throw jetError(ErrorNumber::kUpdateWithoutEdit);
    if (m_state->watch.beforeUpdate)
        m_state->watch.beforeUpdate();
    const int edited = m_state->editMode == EditMode::Edit ? m_state->currentIndex() : -1;
    m_state->connection->beginWrite();
    if (edited >= 0)
        changeRecord(*m_state, rows.key(edited));
    else
        rows.append(insertRecord(*m_state));
    m_state->connection->noteChange();
    m_state->lastModified = m_state->bookmarkOf(edited >= 0 ? edited : rows.count() - 1);
    m_state->dropEdit();
    if (m_state->watch.onEditEnded)
        m_state->watch.onEditEnded();
}

void Recordset::CancelUpdate()
{
    m_state->needOpen();
    m_state->dropEdit();
    if (m_state->watch.onEditEnded)
        m_state->watch.onEditEnded();
}

void Recordset::Delete()
{
    KeyedRows& rows = m_state->writable();
    const int index = m_state->currentIndex();
    m_state->dropEdit();
    m_state->connection->beginWrite();
    const auto statement = m_state->connection->statement(
        u"DELETE FROM %1 WHERE %2 = ?"_s
            .arg(quotedName(m_state->table->name), m_state->table->rowid)
            .toUtf8());
    statement->bind(1, rows.key(index));
    statement->execute();
    m_state->connection->noteChange();
    if (sqlite3_changes(m_state->connection->handle()) == 0)
        throw jetError(ErrorNumber::kRecordDeleted, m_state->connection->source());
    rows.remove(index);
}

} // namespace lumen
