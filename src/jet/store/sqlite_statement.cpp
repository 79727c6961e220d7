// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/sqlite_statement.h"

#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/stored_text.h"
#include "platform/log.h"

#include <algorithm>
#include <array>
#include <limits>
#include <sqlite3.h>

namespace lumen {

namespace {

int constraintError(int extendedCode)
{
    return extendedCode == SQLITE_CONSTRAINT_NOTNULL ? ErrorNumber::kRequiredEmpty
                                                     : ErrorNumber::kDuplicateKey;
}

int errorNumber(int extendedCode)
{
    switch (extendedCode & 0xff) {
    case SQLITE_NOTADB:
        return ErrorNumber::kNotADatabase;
    case SQLITE_CORRUPT:
        return ErrorNumber::kCorrupt;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return ErrorNumber::kFileNotFound;
    case SQLITE_READONLY:
        return ErrorNumber::kReadOnly;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        return ErrorNumber::kAlreadyInUse;
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_NOMEM:
    case SQLITE_NOLFS:
        return ErrorNumber::kWriteFailed;
    case SQLITE_CONSTRAINT:
        return constraintError(extendedCode);
    case SQLITE_MISMATCH:
    case SQLITE_TOOBIG:
        return ErrorNumber::kConversion;
    case SQLITE_FORMAT: // what our LIKE functions report
        return ErrorNumber::kInvalidPattern;
    default:
        return ErrorNumber::kCriterionSyntax;
    }
}

bool isAboutTheFile(int number)
{
    constexpr std::array kNumbers{ErrorNumber::kNotADatabase, ErrorNumber::kCorrupt,
                                  ErrorNumber::kFileNotFound, ErrorNumber::kReadOnly,
                                  ErrorNumber::kAlreadyInUse, ErrorNumber::kWriteFailed};
    return std::find(kNumbers.begin(), kNumbers.end(), number) != kNumbers.end();
}

} // namespace

QString fileOf(sqlite3* handle)
{
    return QString::fromUtf8(handle != nullptr ? sqlite3_db_filename(handle, nullptr) : "");
}

void throwSqliteError(sqlite3* handle, int code)
{
    const int extended = handle != nullptr ? sqlite3_extended_errcode(handle) : code;
    const QString message =
        QString::fromUtf8(handle != nullptr ? sqlite3_errmsg(handle) : sqlite3_errstr(code));
    qCInfo(jetLog) << "sqlite error" << extended << message;
    const int number = errorNumber((extended & 0xff) == (code & 0xff) ? extended : code);
    // SQLite's own words help nobody but the reader of a faulty query.
    throw jetError(number, number == ErrorNumber::kCriterionSyntax ? message
                           : isAboutTheFile(number)                ? fileOf(handle)
                                                                   : QString());
}

SqliteHandle::SqliteHandle(const QString& nativePath, int flags)
{
    const int code = sqlite3_open_v2(nativePath.toUtf8().constData(), &m_handle, flags, nullptr);
    if (code == SQLITE_OK) {
        sqlite3_extended_result_codes(m_handle, 1);
        return;
    }
    sqlite3_close_v2(m_handle);
    m_handle = nullptr;
    throw jetError(errorNumber(code), nativePath);
}

SqliteHandle::~SqliteHandle()
{
    sqlite3_close_v2(m_handle);
}

void SqliteHandle::run(const QByteArray& sql) const
{
    const int code = sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        throwSqliteError(m_handle, code);
}

SqliteStatement::SqliteStatement(sqlite3* handle, const QByteArray& sql) : m_handle(handle)
{
    check(sqlite3_prepare_v3(handle, sql.constData(), static_cast<int>(sql.size()),
                             SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr));
}

SqliteStatement::~SqliteStatement()
{
    sqlite3_finalize(m_statement);
}

void SqliteStatement::check(int code) const
{
    if (code != SQLITE_OK)
        throwSqliteError(m_handle, code);
}

void SqliteStatement::bind(int parameter, const QVariant& value)
{
    if (value.isNull()) {
        check(sqlite3_bind_null(m_statement, parameter));
        return;
    }
    switch (value.typeId()) {
    case QMetaType::Bool:
        check(sqlite3_bind_int(m_statement, parameter, value.toBool() ? -1 : 0));
        break;
    case QMetaType::Double:
    case QMetaType::Float:
        check(sqlite3_bind_double(m_statement, parameter, value.toDouble()));
        break;
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        // A null pointer would bind Null, and an empty value is not Null.
        const char* data = bytes.isEmpty() ? "" : bytes.constData();
        check(sqlite3_bind_blob64(m_statement, parameter, data,
                                  static_cast<sqlite3_uint64>(bytes.size()), SQLITE_TRANSIENT));
        break;
    }
    case QMetaType::QDate:
        check(sqlite3_bind_double(m_statement, parameter,
                                  dayNumber(value.toDate().startOfDay(Qt::UTC))));
        break;
    case QMetaType::QDateTime:
        check(sqlite3_bind_double(m_statement, parameter, dayNumber(value.toDateTime())));
        break;
    case QMetaType::QString: {
        const QByteArray utf8 = value.toString().toUtf8();
        const char* data = utf8.isEmpty() ? "" : utf8.constData();
        check(sqlite3_bind_text64(m_statement, parameter, data,
                                  static_cast<sqlite3_uint64>(utf8.size()), SQLITE_TRANSIENT,
                                  SQLITE_UTF8));
        break;
    }
    default:
        check(sqlite3_bind_int64(m_statement, parameter, value.toLongLong()));
    }
}

void SqliteStatement::bind(int parameter, qint64 value)
{
    check(sqlite3_bind_int64(m_statement, parameter, value));
}

void SqliteStatement::bindAll(const QVariantList& values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        bind(static_cast<int>(i) + 1, values[i]);
}

bool SqliteStatement::step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE) {
        sqlite3_reset(m_statement);
        throwSqliteError(m_handle, code);
    }
    return false;
}

void SqliteStatement::execute()
{
    while (step()) {
    }
    reset();
}

void SqliteStatement::reset()
{
    sqlite3_reset(m_statement);
}

void SqliteStatement::clearBindings()
{
    sqlite3_clear_bindings(m_statement);
}

int SqliteStatement::columnCount() const
{
    return sqlite3_column_count(m_statement);
}

bool SqliteStatement::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

qint64 SqliteStatement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

double SqliteStatement::real(int column) const
{
    return sqlite3_column_double(m_statement, column);
}

QString SqliteStatement::text(int column) const
{
    const unsigned char* data = sqlite3_column_text(m_statement, column);
    const int bytes = sqlite3_column_bytes(m_statement, column);
    const QString text =
        fromUtf8({reinterpret_cast<const char*>(data), static_cast<std::size_t>(bytes)});
    return text.isNull() ? QString(QLatin1String("")) : text;
}

QVariant SqliteStatement::value(int column) const
{
    switch (sqlite3_column_type(m_statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER: {
        const qint64 number = integer(column);
        if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
            return static_cast<int>(number);
        return number;
    }
    case SQLITE_FLOAT:
        return real(column);
    case SQLITE_BLOB: {
        const void* data = sqlite3_column_blob(m_statement, column);
        return QByteArray(static_cast<const char*>(data),
                          sqlite3_column_bytes(m_statement, column));
    }
    default:
        return text(column);
    }
}

QString quotedName(const QString& name)
{
    QString inner = name;
    inner.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + inner + QLatin1Char('"');
}

QString quotedText(const QString& text)
{
    QString inner = text;
    inner.replace(QLatin1Char('\''), QLatin1String("''"));
    return QLatin1Char('\'') + inner + QLatin1Char('\'');
}

} // namespace lumen
