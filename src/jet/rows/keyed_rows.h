// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/rows/row_set.h"
#include "jet/sql/sql_translator.h"
#include "jet/store/connection.h"

#include <memory>
#include <vector>

namespace lumen {

/// Rows of one table: the rowids are read at opening, the values when a row is asked for. Walking
/// reads ahead, since the lock that a read takes costs more than a row.
class KeyedRows : public RowSet, private TransactionFollower
{
public:
    KeyedRows(std::shared_ptr<Connection> connection, const TableInfo& table,
              std::vector<ResultColumn> columns, std::vector<qint64> keys);
    ~KeyedRows() override;

    int count() const override { return static_cast<int>(m_keys.size()); }
    qint64 key(int index) const override { return m_keys[static_cast<std::size_t>(index)]; }
    const Row& row(int index) override;
    QStringList texts(int column) override;
    int indexOf(qint64 key, int hint) const override;

    const std::vector<qint64>& keys() const { return m_keys; }
    /// Follow a write of the open transaction, and are undone with it.
    void append(qint64 key);
    void remove(int index);

    /// The keys in the order of a query.
    static std::vector<qint64> readKeys(Connection& connection, const KeyQuery& query);
    /// Those of `keys` whose rows meet a criterion, in the same order.
    static std::vector<qint64> filtered(Connection& connection, const TableInfo& table,
                                        const std::vector<ResultColumn>& columns,
                                        const std::vector<qint64>& keys, const QString& criterion);

private:
    void committed() override { m_undo.clear(); }
    void rolledBack() override;
    void takeOut(int index);
    void fill(int index);
    bool readRow(SqliteStatement& statement, int index);
    QStringList scannedTexts(const QByteArray& column) const;
    QStringList probedTexts(const QByteArray& column) const;

    std::shared_ptr<Connection> m_connection;
    std::vector<ResultColumn> m_columns;
    QByteArray m_rowSql;
    QByteArray m_tableName; ///< in quotes
    QByteArray m_rowid;
    std::vector<qint64> m_keys;
    bool m_ascending = true;

    enum class Change { Appended, Removed };
    struct UndoStep
    {
        Change change;
        int index;
        qint64 key;
    };
    std::vector<UndoStep> m_undo; ///< what the open transaction has changed, oldest first

    struct CachedRow
    {
        int index = -1;
        Row values;
    };
    std::vector<CachedRow> m_cache;
    std::size_t m_cacheSize = 0;
    quint64 m_cacheChanges = 0;
    int m_lastIndex = -2;
};

} // namespace lumen
