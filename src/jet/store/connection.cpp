// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/connection.h"

#include "jet/error.h"
#include "jet/store/functions.h"
#include "jet/store/store_layout.h"
#include "platform/log.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <exception>
#include <sqlite3.h>
#include <utility>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// What is written into the converted copy of a database would never reach the user's file.
bool mustBeReadOnly(const ConnectionPlace& place)
{
    if (place.policy.readOnly)
        return true;
    if (place.store != place.source && place.policy.isIrreplaceable())
        return true;
    const QFileInfo file(place.store);
    return !file.isWritable() || !QFileInfo(file.absolutePath()).isWritable();
}

int openFlags(bool readOnly)
{
    return (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX;
}

} // namespace

Connection::Connection(ConnectionPlace place, CommitFailed commitFailed)
    : m_place(std::move(place)), m_commitFailed(std::move(commitFailed)),
      m_readOnly(mustBeReadOnly(m_place)), m_handle(m_place.store, openFlags(m_readOnly)),
      m_schema(m_handle.get()), m_statements(m_handle.get()), m_compare(m_place.policy.compare)
{
    configure();
    readStoreTable();
}

Connection::~Connection()
{
    if (!inTransaction())
        return;
    try {
        if (m_explicit || std::uncaught_exceptions() > 0)
            rollback();
        else
            commitImplicit();
    } catch (const JetError& error) {
        if (m_commitFailed)
            m_commitFailed(error);
    }
}

void Connection::configure()
{
    // The window waits as long: a handler that meets a locked file several times stays below 1 s.
    constexpr int kBusyMs = 200;
    sqlite3* const db = handle();
    sqlite3_busy_timeout(db, kBusyMs);
    // With these on, an unknown column in double quotes silently becomes a text literal.
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    registerJetFunctions(db);
    // Told by SQLite, since it rolls back by itself when the disc is full.
    sqlite3_rollback_hook(
        db,
        [](void* context) {
            auto* const self = static_cast<Connection*>(context);
            self->noteChange();
            for (TransactionFollower* const follower : self->m_followers)
                follower->rolledBack();
        },
        this);
    m_handle.run("PRAGMA cache_size=-65536; PRAGMA temp_store=MEMORY; PRAGMA cell_size_check=ON");
    if (m_readOnly)
        return;
    m_handle.run(m_place.policy.sync == StoreSync::None
                     ? "PRAGMA journal_mode=MEMORY; PRAGMA synchronous=OFF"
                     : "PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL");
}

void Connection::readStoreTable()
{
    if (!m_schema.names().contains(StoreLayout::kStoreTable, Qt::CaseInsensitive))
        return;
    const auto lines = statement("SELECT key, value FROM MSysStore");
    while (lines->step()) {
        const QString key = lines->text(0);
        if (key == StoreLayout::kCompareKey)
            m_compare = lines->text(1) == u"text" ? StoreCompare::Text : StoreCompare::Binary;
        if (key == StoreLayout::kPasswordKey && !lines->isNull(1)) {
            m_password = lines->text(1);
            m_hasPassword = !m_password.isEmpty();
        }
    }
}

bool Connection::takesPassword(const QString& password) const
{
    return !m_hasPassword || m_password == password;
}

bool Connection::inTransaction() const
{
    return sqlite3_get_autocommit(handle()) == 0;
}

void Connection::beginWrite()
{
    if (m_readOnly)
        throw jetError(ErrorNumber::kReadOnly, m_place.source);
    if (inTransaction())
        return;
    // SQLite gave up the explicit transaction, as it does when the disc is full.
    if (m_explicit)
        throw jetError(ErrorNumber::kWriteFailed, m_place.source);
    m_handle.run("BEGIN IMMEDIATE");
    commitLater();
}

void Connection::commitLater()
{
    QCoreApplication* const loop = QCoreApplication::instance();
    if (m_commitQueued || loop == nullptr)
        return;
    m_commitQueued = true;
    QMetaObject::invokeMethod(
        loop,
        [weak = weak_from_this()] {
            const auto self = weak.lock();
            if (!self)
                return;
            self->m_commitQueued = false;
            try {
                self->commitImplicit();
            } catch (const JetError& error) {
                if (self->m_commitFailed)
                    self->m_commitFailed(error);
            }
        },
        Qt::QueuedConnection);
}

void Connection::begin()
{
    commitImplicit();
    if (m_explicit)
        throw jetError(ErrorNumber::kInvalidArgument, u"BeginTrans"_s);
    if (m_readOnly)
        throw jetError(ErrorNumber::kReadOnly, m_place.source);
    m_handle.run("BEGIN IMMEDIATE");
    m_explicit = true;
}

void Connection::commit()
{
    if (!m_explicit)
        throw jetError(ErrorNumber::kInvalidArgument, u"CommitTrans"_s);
    m_explicit = false;
    if (!inTransaction())
        throw jetError(ErrorNumber::kWriteFailed, m_place.source);
    endTransaction();
}

void Connection::commitImplicit()
{
    if (!m_explicit && inTransaction())
        endTransaction();
}

void Connection::endTransaction()
{
    try {
        m_handle.run("COMMIT");
        m_tablesMade = false;
        for (TransactionFollower* const follower : m_followers)
            follower->committed();
    } catch (const JetError&) {
        rollback();
        throw;
    }
}

void Connection::rollback()
{
    m_explicit = false;
    noteChange();
    if (inTransaction())
        m_handle.run("ROLLBACK");
    if (std::exchange(m_tablesMade, false))
        m_schema.forget();
}

void Connection::noteTableMade()
{
    m_tablesMade = true;
    m_schema.forget();
}

qint64 Connection::takeAutonumber(const TableInfo& table, const ColumnInfo& column)
{
    qint64& last = m_autonumbers[table.name];
    const auto highest = statement(u"SELECT coalesce(max(%1), 0) FROM %2"_s
                                       .arg(quotedName(column.name), quotedName(table.name))
                                       .toUtf8());
    if (highest->step())
        last = std::max(last, highest->integer(0));
    last = std::max(last, notedAutonumber(table, column));
    return ++last;
}

qint64 Connection::notedAutonumber(const TableInfo& table, const ColumnInfo& column)
{
    const QString notes =
        (column.isRowid ? u"sqlite_sequence" : StoreLayout::kStoreTable).toString();
    const auto there = statement("SELECT count(*) FROM sqlite_schema WHERE name = ?");
    there->bind(1, notes);
    if (!there->step() || there->integer(0) == 0)
        return 0;
    const auto noted = statement(column.isRowid ? "SELECT seq FROM sqlite_sequence WHERE name = ?"
                                                : "SELECT value FROM MSysStore WHERE key = ?");
    noted->bind(1, column.isRowid ? table.name : StoreLayout::counterKey(table.name));
    return noted->step() ? noted->integer(0) : 0;
}

void Connection::noteAutonumber(const TableInfo& table, qint64 number)
{
    if (m_schema.find(StoreLayout::kStoreTable) == nullptr)
        return;
    const auto note = statement("INSERT OR REPLACE INTO MSysStore VALUES (?, ?)");
    note->bindAll({StoreLayout::counterKey(table.name), number});
    note->execute();
}

bool Connection::isKnownUnordered(const QString& table, const QString& column) const
{
    return m_unordered.contains(storedIndexName(table, column));
}

void Connection::noteUnordered(const QString& table, const QString& column)
{
    if (!isKnownUnordered(table, column))
        m_unordered << storedIndexName(table, column);
}

} // namespace lumen
