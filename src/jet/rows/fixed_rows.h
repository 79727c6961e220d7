// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/rows/row_set.h"
#include "jet/sql/sql_translator.h"
#include "jet/store/connection.h"

#include <vector>

namespace lumen {

/// Rows that are no rows of a table (DISTINCT, UNION, INNER JOIN): all values are read at opening.
/// A row's key is its index.
class FixedRows : public RowSet
{
public:
    explicit FixedRows(std::vector<Row> rows) : m_rows(std::move(rows)) {}

    int count() const override { return static_cast<int>(m_rows.size()); }
    qint64 key(int index) const override { return index; }
    const Row& row(int index) override { return m_rows[static_cast<std::size_t>(index)]; }
    int indexOf(qint64 key, int) const override
    {
        return key >= 0 && key < count() ? static_cast<int>(key) : -1;
    }

    const std::vector<Row>& rows() const { return m_rows; }

    static std::vector<Row> readRows(Connection& connection, const TranslatedSql& query);
    /// The indexes of the rows that meet a criterion, rising.
    std::vector<int> matching(Connection& connection, const std::vector<ResultColumn>& columns,
                              const QString& criterion) const;

private:
    std::vector<Row> m_rows;
};

} // namespace lumen
