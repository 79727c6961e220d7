// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/database.h"
#include "jet/store/store_writer.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <vector>

namespace lumen {

/// The rows of a table as a test wrote them, to answer queries by a plain loop.
class SampleTable
{
public:
    /// One row, its columns by name without regard to case.
    class Line
    {
    public:
        Line(const SampleTable& table, std::size_t row) : m_table(&table), m_row(row) {}
        const QVariant& value(const QString& column) const;
        QString text(const QString& column) const { return value(column).toString(); }
        int number(const QString& column) const { return value(column).toInt(); }
        /// False for Null, as a comparison with Null is never true.
        bool contains(const QString& column, const QString& part) const;
        bool startsWith(const QString& column, const QString& part) const;
        bool equals(const QString& column, const QString& whole) const;

    private:
        const SampleTable* m_table;
        std::size_t m_row;
    };
    using Condition = std::function<bool(const Line&)>;
    using Less = std::function<bool(const Line&, const Line&)>;

    explicit SampleTable(TableSchema schema) : m_schema(std::move(schema)) {}
    void add(const QVariantList& row) { m_rows.push_back(row); }
    void writeTo(StoreWriter& writer) const;

    const TableSchema& schema() const { return m_schema; }
    /// The lines that pass, in stored order or sorted; ties stay in stored order.
    std::vector<Line> select(const Condition& test, const Less& less = {}) const;

private:
    TableSchema m_schema;
    std::vector<QVariantList> m_rows;
};

/// Compares all columns of all records with the lines; "" when they are the same.
QString difference(Recordset& records, const std::vector<SampleTable::Line>& lines);

} // namespace lumen
