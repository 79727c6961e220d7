// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/rows/recordset.h"

#include <QStringList>

#include <memory>

namespace lumen {

class Connection; // the shared SQLite connection of one file; connection.h
class OpenRecordsets;
struct TableSchema;

struct TableDef
{
    QString Name;
};

/// The tables of a store, sorted by name without regard to case; those of the engine begin "MSys".
class TableDefs
{
public:
    explicit TableDefs(QStringList names) : m_names(std::move(names)) {}
    int Count() const { return static_cast<int>(m_names.size()); }
    /// Zero-based; error 3265 outside 0 to Count - 1.
    TableDef operator()(int index) const;

private:
    QStringList m_names;
};

/// An open database. Its recordsets are closed with it.
class Database
{
public:
    /// A read-only database refuses writes (3027) also when others write to the file.
    explicit Database(std::shared_ptr<Connection> connection, bool readOnly = false);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// `source` is a table's name or the text of a query.
    std::unique_ptr<Recordset> OpenRecordset(const QString& source,
                                             RecordsetType type = RecordsetType::Automatic);
    /// A delete or a select into.
    void Execute(const QString& sql);
    /// Adds a row for each text, which goes into `column`, the others being Null. A text that a
    /// unique index has already is passed over. Quicker than AddNew and Update by far.
    void AppendTexts(const QString& table, const QString& column, const QStringList& texts);
    /// Makes a table with its indexes; error 3010 when there is one of that name.
    void MakeTable(const TableSchema& schema);
    /// Lets a text column take `size` characters. The column moves behind the others, and
    /// recordsets that are open go on with the former size until they are opened anew.
    void WidenText(const QString& table, const QString& column, int size);
    int RecordsAffected() const { return m_recordsAffected; }
    lumen::TableDefs TableDefs() const;
    /// Makes the writes since BeginTrans one step on disk. When an exception or Close comes in
    /// between they are undone, by JetEngine::rollbackAll at the latest.
    void BeginTrans();
    void CommitTrans();
    void Rollback();
    /// Commits and closes the recordsets that came from here; any further use is error 3420. The
    /// destructor commits nothing: writes that nobody has ended wait for the event loop.
    void Close();
    /// True when every write is refused: opened so, or the file may not be written.
    bool isReadOnly() const;
    bool isClosed() const { return m_connection == nullptr; }
    /// Lets go of the database without closing its recordsets, which then keep the file open.
    void release();

private:
    Connection& open() const;
    Connection& writable() const;
    void closeRecordsets();

    std::shared_ptr<Connection> m_connection;
    std::shared_ptr<OpenRecordsets> m_recordsets;
    bool m_readOnly;
    bool m_inTransaction = false;
    int m_recordsAffected = 0;
};

} // namespace lumen
