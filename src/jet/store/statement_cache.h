// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/sqlite_statement.h"

#include <list>
#include <memory>

namespace lumen {

/// Keeps the statements of a connection that were used last, prepared for their next use.
class StatementCache
{
public:
    explicit StatementCache(sqlite3* handle) : m_handle(handle) {}

    /// A statement that is on loan: it goes back into the cache, reset, when it is let go.
    class Loan
    {
    public:
        Loan(StatementCache& cache, QByteArray sql, std::unique_ptr<SqliteStatement> statement);
        ~Loan();
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;
        SqliteStatement* operator->() const { return m_statement.get(); }
        SqliteStatement& operator*() const { return *m_statement; }

    private:
        StatementCache& m_cache;
        QByteArray m_sql;
        std::unique_ptr<SqliteStatement> m_statement;
    };

    Loan take(const QByteArray& sql);

private:
    struct Entry
    {
        QByteArray sql;
        std::unique_ptr<SqliteStatement> statement;
    };

    sqlite3* m_handle;
    std::list<Entry> m_entries; ///< the one used last comes first
};

} // namespace lumen
