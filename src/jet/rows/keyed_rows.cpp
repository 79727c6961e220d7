// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/rows/keyed_rows.h"

#include "jet/error.h"
#include "jet/sql/sql_parser.h"
#include "jet/store/field_types.h"

#include <algorithm>
#include <cstring>
#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kReadAhead = 64;
constexpr qsizetype kReadAheadBytes = 262144; // a quarter of a MiB
/// Up to so many keys a criterion is tried key by key, beyond it by one scan of the table.
constexpr std::size_t kMostProbes = 1024;
/// A column is read in one walk when at least one row of so many is wanted.
constexpr std::size_t kScanShare = 4;

/// Holds the read lock for several statements, so that it is taken and given up once.
class ReadLock
{
public:
    explicit ReadLock(Connection& connection)
        : m_connection(connection), m_held(!connection.inTransaction())
    {
        if (m_held)
            m_connection.statement("BEGIN")->execute();
    }
    ~ReadLock()
    {
        if (m_held)
            sqlite3_exec(m_connection.handle(), "COMMIT", nullptr, nullptr, nullptr);
    }
    ReadLock(const ReadLock&) = delete;
    ReadLock& operator=(const ReadLock&) = delete;

private:
    Connection& m_connection;
    bool m_held;
};

QByteArray rowSql(const TableInfo& table, const std::vector<ResultColumn>& columns)
{
    QStringList names;
    for (const ResultColumn& column : columns)
        names << quotedName(column.column->name);
    return u"SELECT %1 FROM %2 WHERE %3 = ?"_s
        .arg(names.join(u", "_s), quotedName(table.name), table.rowid)
        .toUtf8();
}

/// The sort value of the row before, kept to see whether the next one is in order.
class LastValue
{
public:
    /// False when the value stands before the one of the last call. Null comes first, then numbers,
    /// then texts by code point, as SQLite sorts them.
    bool rises(sqlite3_stmt* statement, int column)
    {
        const int type = sqlite3_column_type(statement, column);
        const int rank = type == SQLITE_NULL ? 0 : type == SQLITE_TEXT ? 2 : 1;
        bool inOrder = rank > m_rank;
        if (rank == 1) {
            const double number = sqlite3_column_double(statement, column);
            inOrder = inOrder || (rank == m_rank && number >= m_number);
            m_number = number;
        } else if (rank == 2) {
            const char* data =
                reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
            const std::string_view text(data, size);
            inOrder = inOrder || (rank == m_rank && text >= std::string_view(m_text));
            m_text.assign(text);
        } else {
            inOrder = inOrder || m_rank == 0;
        }
        m_rank = rank;
        return inOrder;
    }

private:
    int m_rank = 0;
    double m_number = 0;
    std::string m_text;
};

/// Nothing when the rows turn out not to be stored in the order that was asked for.
std::optional<std::vector<qint64>> scanKeys(Connection& connection, const KeyQuery& query)
{
    std::vector<qint64> keys;
    LastValue last;
    const auto statement = connection.statement(query.scanSql);
    statement->bindAll(query.keys.parameters);
    while (statement->step()) {
        if (!last.rises(statement->get(), 1))
            return std::nullopt;
        keys.push_back(statement->integer(0));
    }
    return keys;
}

std::vector<qint64> allKeys(Connection& connection, const TranslatedSql& query)
{
    std::vector<qint64> keys;
    const auto statement = connection.statement(query.sql);
    statement->bindAll(query.parameters);
    while (statement->step())
        keys.push_back(statement->integer(0));
    return keys;
}

std::vector<qint64> probed(Connection& connection, const TableInfo& table,
                           const TranslatedSql& condition, const std::vector<qint64>& keys)
{
    const ReadLock lock(connection);
    std::vector<qint64> found;
    // The key's parameter is numbered behind those of the condition.
    const auto keyParameter = static_cast<int>(condition.parameters.size()) + 1;
    const auto statement = connection.statement(
        "SELECT 1 FROM " + quotedName(table.name).toUtf8() + " WHERE " + table.rowid.toUtf8() +
        " = ?" + QByteArray::number(keyParameter) + " AND " + condition.sql);
    statement->bindAll(condition.parameters);
    for (const qint64 key : keys) {
        statement->bind(keyParameter, key);
        if (statement->step())
            found.push_back(key);
        statement->reset();
    }
    return found;
}

} // namespace

KeyedRows::KeyedRows(std::shared_ptr<Connection> connection, const TableInfo& table,
                     std::vector<ResultColumn> columns, std::vector<qint64> keys)
    : m_connection(std::move(connection)), m_columns(std::move(columns)),
      m_rowSql(rowSql(table, m_columns)), m_tableName(quotedName(table.name).toUtf8()),
      m_rowid(table.rowid.toUtf8()), m_keys(std::move(keys)),
      m_ascending(std::is_sorted(m_keys.begin(), m_keys.end()))
{
    m_connection->follow(*this);
}

KeyedRows::~KeyedRows()
{
    m_connection->unfollow(*this);
}

const Row& KeyedRows::row(int index)
{
    if (m_cacheChanges != m_connection->changes())
        m_cacheSize = 0;
    const auto cached = [this, index]() -> const Row* {
        for (std::size_t i = 0; i < m_cacheSize; ++i)
            if (m_cache[i].index == index)
                return &m_cache[i].values;
        return nullptr;
    };
    const Row* found = cached();
    if (found == nullptr) {
        fill(index);
        found = cached();
    }
    m_lastIndex = index;
    if (found == nullptr)
        throw jetError(ErrorNumber::kRecordDeleted, m_connection->source());
    return *found;
}

void KeyedRows::fill(int index)
{
    m_cacheSize = 0;
    m_cacheChanges = m_connection->changes();
    const int step = index < m_lastIndex ? -1 : 1;
    const bool walking = std::abs(index - m_lastIndex) == 1;
    const ReadLock lock(*m_connection);
    const auto statement = m_connection->statement(m_rowSql);
    qsizetype bytes = 0;
    for (int i = 0; i < (walking ? kReadAhead : 1) && bytes < kReadAheadBytes; ++i) {
        const int next = index + i * step;
        if (next < 0 || next >= count())
            break;
        if (readRow(*statement, next))
            for (const QVariant& value : m_cache[m_cacheSize - 1].values)
                if (value.typeId() == QMetaType::QString)
                    bytes += value.toString().size() * 2;
    }
}

bool KeyedRows::readRow(SqliteStatement& statement, int index)
{
    statement.bind(1, key(index));
    const bool found = statement.step();
    if (found) {
        if (m_cache.size() == m_cacheSize)
            m_cache.emplace_back();
        CachedRow& target = m_cache[m_cacheSize++];
        target.index = index;
        target.values.resize(m_columns.size());
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const auto column = static_cast<int>(i);
            const bool isText = isTextType(m_columns[i].column->type) && !statement.isNull(column);
            target.values[i] = isText ? QVariant(statement.text(column)) : statement.value(column);
        }
    }
    statement.reset();
    return found;
}

QStringList KeyedRows::texts(int column)
{
    if (m_keys.empty())
        return {};
    const ReadLock lock(*m_connection);
    const QByteArray name =
        quotedName(m_columns[static_cast<std::size_t>(column)].column->name).toUtf8();
    // One walk through the table passes over a few rows for less than it takes to find one.
    const auto span = static_cast<std::size_t>(m_keys.back() - m_keys.front());
    return m_ascending && span / kScanShare < m_keys.size() ? scannedTexts(name)
                                                            : probedTexts(name);
}

QStringList KeyedRows::scannedTexts(const QByteArray& column) const
{
    QStringList texts;
    texts.reserve(count());
    const auto statement =
        m_connection->statement("SELECT " + m_rowid + ", " + column + " FROM " + m_tableName +
                                " WHERE " + m_rowid + " BETWEEN ?1 AND ?2 ORDER BY " + m_rowid);
    statement->bind(1, m_keys.front());
    statement->bind(2, m_keys.back());
    auto wanted = m_keys.begin();
    while (wanted != m_keys.end() && statement->step()) {
        if (statement->integer(0) != *wanted)
            continue;
        texts << statement->text(1);
        ++wanted;
    }
    if (wanted != m_keys.end())
        throw jetError(ErrorNumber::kRecordDeleted, m_connection->source());
    return texts;
}

QStringList KeyedRows::probedTexts(const QByteArray& column) const
{
    QStringList texts;
    texts.reserve(count());
    const auto statement = m_connection->statement("SELECT " + column + " FROM " + m_tableName +
                                                   " WHERE " + m_rowid + " = ?");
    for (const qint64 key : m_keys) {
        statement->bind(1, key);
        if (!statement->step())
            throw jetError(ErrorNumber::kRecordDeleted, m_connection->source());
        texts << statement->text(0);
        statement->reset();
    }
    return texts;
}

int KeyedRows::indexOf(qint64 key, int hint) const
{
    if (hint >= 0 && hint < count() && this->key(hint) == key)
        return hint;
    const auto found = m_ascending ? std::lower_bound(m_keys.begin(), m_keys.end(), key)
                                   : std::find(m_keys.begin(), m_keys.end(), key);
    return found == m_keys.end() || *found != key ? -1 : static_cast<int>(found - m_keys.begin());
}

void KeyedRows::append(qint64 key)
{
    m_ascending = m_ascending && (m_keys.empty() || m_keys.back() < key);
    m_undo.push_back({Change::Appended, count(), key});
    m_keys.push_back(key);
}

void KeyedRows::remove(int index)
{
    m_undo.push_back({Change::Removed, index, key(index)});
    takeOut(index);
}

void KeyedRows::takeOut(int index)
{
    const qint64 gone = key(index);
    m_keys.erase(m_keys.begin() + index);
    m_cacheSize = 0;
    shiftCursors(index, gone);
}

void KeyedRows::rolledBack()
{
    if (m_undo.empty())
        return;
    for (; !m_undo.empty(); m_undo.pop_back()) {
        const UndoStep& step = m_undo.back();
        if (step.change == Change::Appended) {
            takeOut(step.index);
        } else {
            m_keys.insert(m_keys.begin() + step.index, step.key);
            restoreCursors(step.index, step.key);
        }
    }
    m_cacheSize = 0;
    // A key that was appended out of order may be gone again.
    m_ascending = std::is_sorted(m_keys.begin(), m_keys.end());
}

std::vector<qint64> KeyedRows::readKeys(Connection& connection, const KeyQuery& query)
{
    if (!query.scanSql.isEmpty() &&
        !connection.isKnownUnordered(query.table->name, query.sortColumn)) {
        if (auto keys = scanKeys(connection, query))
            return std::move(*keys);
        connection.noteUnordered(query.table->name, query.sortColumn);
    }
    return allKeys(connection, query.keys);
}

std::vector<qint64> KeyedRows::filtered(Connection& connection, const TableInfo& table,
                                        const std::vector<ResultColumn>& columns,
                                        const std::vector<qint64>& keys, const QString& criterion)
{
    const SqlNode tree = parseCriterion(criterion);
    SqlTranslator translator(connection.schema(), connection.compare());
    const TranslatedSql condition = translator.condition(tree, table, columns);
    const bool quick = translator.isQuick(tree, table, columns);
    if (!quick && keys.size() <= kMostProbes)
        return probed(connection, table, condition, keys);
    const QByteArray from = " FROM " + quotedName(table.name).toUtf8();
    std::vector<qint64> hits =
        allKeys(connection, {"SELECT " + table.rowid.toUtf8() + from +
                                 (quick ? "" : " NOT INDEXED") + " WHERE " + condition.sql,
                             condition.parameters});
    std::sort(hits.begin(), hits.end());
    std::vector<qint64> found;
    std::copy_if(keys.begin(), keys.end(), std::back_inserter(found),
                 [&hits](qint64 key) { return std::binary_search(hits.begin(), hits.end(), key); });
    return found;
}

} // namespace lumen
