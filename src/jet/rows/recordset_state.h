// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/rows/fixed_rows.h"
#include "jet/rows/keyed_rows.h"
#include "jet/rows/recordset.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <vector>

namespace lumen {

class RecordsetState;

/// The recordsets that a database has opened and that are closed with it.
class OpenRecordsets
{
public:
    void add(RecordsetState& state) { m_states.push_back(&state); }
    void remove(RecordsetState& state) { std::erase(m_states, &state); }
    void closeAll();

private:
    std::vector<RecordsetState*> m_states;
};

/// What a recordset consists of. Public members: only Recordset, its Field and the functions that
/// open recordsets see it.
class RecordsetState
{
public:
    /// Rows of a table.
    RecordsetState(std::shared_ptr<Connection> connection, const TableInfo& table,
                   std::vector<ResultColumn> columns, std::shared_ptr<KeyedRows> rows);
    /// Rows of their own, which nobody changes.
    RecordsetState(std::shared_ptr<Connection> connection, std::vector<ResultColumn> columns,
                   std::shared_ptr<FixedRows> rows);
    ~RecordsetState();
    RecordsetState(const RecordsetState&) = delete;
    RecordsetState& operator=(const RecordsetState&) = delete;

    /// Registers with the database that closes it.
    void joinDatabase(const std::shared_ptr<OpenRecordsets>& owner);
    /// A state with the same connection, table, columns and owner over other or the same rows.
    std::unique_ptr<RecordsetState> derive(std::shared_ptr<KeyedRows> rows) const;
    std::unique_ptr<RecordsetState> derive(std::shared_ptr<FixedRows> rows) const;

    bool isClosed() const { return connection == nullptr; }
    /// Error 3420 when closed.
    void needOpen() const;
    /// The rows when they can be changed; error 3027 when they can't.
    KeyedRows& writable() const;
    RowSet& rows() const;

    /// The index of the current record; errors 3021 without one, 3167 when it was deleted.
    int currentIndex() const;
    /// Moves the cursor and tells the data control. A pending edit is dropped unless the data
    /// control writes it; when that fails, the cursor stays and so does the edit.
    void moveTo(Cursor target);
    void goTo(int index) { moveTo({Cursor::Place::Record, index}); }
    /// Lets the data control write a pending edit in which the user changed a bound control.
    void storeChanged() const;
    void dropEdit();
    void close();

    int columnNamed(QStringView name) const;
    QByteArray bookmarkOf(int index) const;

    std::shared_ptr<Connection> connection;
    const TableInfo* table = nullptr; ///< nullptr for fixed rows
    std::vector<ResultColumn> columns;
    std::shared_ptr<KeyedRows> keyed;
    std::shared_ptr<FixedRows> fixed;
    Cursor cursor;
    bool readOnly = false;
    bool isTable = false; ///< Index and Seek are for table recordsets

    EditMode editMode = EditMode::None;
    Row buffer;
    std::vector<bool> touched;
    std::optional<qint64> autonumber; ///< of the record that AddNew began
    QByteArray lastModified;

    RecordsetWatch watch;

    QString filter;
    bool noMatch = false;
    QString indexName;

private:
    std::weak_ptr<OpenRecordsets> m_owner;
};

/// Opens a table's name or the text of a query. Errors: 93, 3001, 3061, 3075, 3078, 3126, 3131.
std::unique_ptr<RecordsetState> openSource(const std::shared_ptr<Connection>& connection,
                                           const QString& source, RecordsetType type);

} // namespace lumen
