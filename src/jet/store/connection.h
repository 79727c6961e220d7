// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/file_policy.h"
#include "jet/store/statement_cache.h"
#include "jet/store/store_schema.h"

#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace lumen {

class JetError;

/// What remembers writes of the open transaction and must forget them when they are undone.
class TransactionFollower
{
public:
    virtual ~TransactionFollower() = default;
    virtual void committed() = 0;
    /// Comes from within SQLite: no statement may run in it.
    virtual void rolledBack() = 0;
};

/// Which file a connection is for: the database that the user sees and the store that is read,
/// which differ for converted modules. Native canonical paths.
struct ConnectionPlace
{
    QString source;
    QString store;
    FilePolicy policy{};
};

/// The one SQLite connection of a file in this process, shared by all that use the file.
///
/// A write outside an explicit transaction opens an implicit one, which ends when control returns
/// to the event loop, at commitImplicit() or rollback(). Destroyed with open writes it commits
/// them, unless an exception is on its way.
class Connection : public std::enable_shared_from_this<Connection>
{
public:
    /// Is told when the commit from the event loop fails, where nobody can catch an exception.
    using CommitFailed = std::function<void(const JetError&)>;

    Connection(ConnectionPlace place, CommitFailed commitFailed);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    const QString& source() const { return m_place.source; }
    const QString& store() const { return m_place.store; }
    StoreCompare compare() const { return m_compare; }
    bool isReadOnly() const { return m_readOnly; }
    /// True when the store has no password or this one.
    bool takesPassword(const QString& password) const;

    void setExclusive() { m_exclusive = true; }
    bool isExclusive() const { return m_exclusive; }

    sqlite3* handle() const { return m_handle.get(); }
    StoreSchema& schema() { return m_schema; }
    StatementCache::Loan statement(const QByteArray& sql) { return m_statements.take(sql); }

    /// Opens the implicit transaction when none is open; error 3027 on a read-only file.
    void beginWrite();
    /// To be called when a table was made.
    void noteTableMade();
    /// To be called behind each write: rows read before are stale.
    void noteChange() { ++m_changes; }
    quint64 changes() const { return m_changes; }

    bool inTransaction() const;
    /// Followers are told of each transaction's end, also when SQLite itself gives it up.
    void follow(TransactionFollower& follower) { m_followers.push_back(&follower); }
    void unfollow(TransactionFollower& follower) { std::erase(m_followers, &follower); }
    void begin();
    void commit();
    /// Undoes the writes of the open transaction, implicit or explicit.
    void rollback();
    void commitImplicit();

    /// A number for a new row, above every one that the column has ever had.
    qint64 takeAutonumber(const TableInfo& table, const ColumnInfo& column);
    /// Keeps the number that a new record took, so that it isn't given again once the record went.
    void noteAutonumber(const TableInfo& table, qint64 number);

    /// True when an earlier query has shown that the column doesn't rise with the stored order.
    bool isKnownUnordered(const QString& table, const QString& column) const;
    void noteUnordered(const QString& table, const QString& column);

private:
    void configure();
    void readStoreTable();
    void endTransaction();
    void commitLater();
    qint64 notedAutonumber(const TableInfo& table, const ColumnInfo& column);

    ConnectionPlace m_place;
    CommitFailed m_commitFailed;
    bool m_readOnly;
    SqliteHandle m_handle;
    StoreSchema m_schema;
    StatementCache m_statements;
    StoreCompare m_compare;
    QString m_password;
    bool m_hasPassword = false;
    bool m_exclusive = false;
    bool m_explicit = false;
    bool m_commitQueued = false;
    quint64 m_changes = 0;
    bool m_tablesMade = false; ///< in the open transaction
    std::vector<TransactionFollower*> m_followers;
    std::map<QString, qint64> m_autonumbers;
    QStringList m_unordered;
};

} // namespace lumen
