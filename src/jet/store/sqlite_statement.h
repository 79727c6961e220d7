// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

struct sqlite3;
struct sqlite3_stmt;

namespace lumen {

/// Throws the JetError that a result code of SQLite stands for. A statement that failed is undone
/// by SQLite itself; what becomes of the transaction is the connection's affair.
[[noreturn]] void throwSqliteError(sqlite3* handle, int code);

/// The native path of the open store, "" for none.
QString fileOf(sqlite3* handle);

/// Owns an open SQLite file.
class SqliteHandle
{
public:
    /// `flags` are those of sqlite3_open_v2. Errors: 3024, 3343, 3049.
    SqliteHandle(const QString& nativePath, int flags);
    ~SqliteHandle();
    SqliteHandle(const SqliteHandle&) = delete;
    SqliteHandle& operator=(const SqliteHandle&) = delete;

    sqlite3* get() const { return m_handle; }
    /// Runs statements that yield no rows we want.
    void run(const QByteArray& sql) const;

private:
    sqlite3* m_handle = nullptr;
};

/// A prepared statement. Parameters and columns: parameters count from 1, columns from 0.
class SqliteStatement
{
public:
    SqliteStatement(sqlite3* handle, const QByteArray& sql);
    ~SqliteStatement();
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;

    void bind(int parameter, const QVariant& value);
    void bind(int parameter, qint64 value);
    void bindAll(const QVariantList& values);
    /// True while there is a row.
    bool step();
    /// Runs a statement without rows to its end and makes it ready for the next run.
    void execute();
    void reset();
    void clearBindings();

    int columnCount() const;
    bool isNull(int column) const;
    qint64 integer(int column) const;
    double real(int column) const;
    QString text(int column) const;
    /// Integers that fit are int, then qlonglong; double, QString, QByteArray; null for Null.
    QVariant value(int column) const;
    sqlite3_stmt* get() const { return m_statement; }

private:
    void check(int code) const;

    sqlite3* m_handle;
    sqlite3_stmt* m_statement = nullptr;
};

/// A name in double quotes, as SQLite wants it.
QString quotedName(const QString& name);
/// A text as an SQL literal.
QString quotedText(const QString& text);

} // namespace lumen
