// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/sample_table.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

const QVariant& SampleTable::Line::value(const QString& column) const
{
    for (std::size_t i = 0; i < m_table->m_schema.columns.size(); ++i)
        if (m_table->m_schema.columns[i].name.compare(column, Qt::CaseInsensitive) == 0)
            return m_table->m_rows[m_row][static_cast<qsizetype>(i)];
    qFatal("no column %s", qPrintable(column));
}

bool SampleTable::Line::contains(const QString& column, const QString& part) const
{
    return !value(column).isNull() && text(column).contains(part);
}

bool SampleTable::Line::startsWith(const QString& column, const QString& part) const
{
    return !value(column).isNull() && text(column).startsWith(part);
}

bool SampleTable::Line::equals(const QString& column, const QString& whole) const
{
    return !value(column).isNull() && text(column) == whole;
}

void SampleTable::writeTo(StoreWriter& writer) const
{
    writer.createTable(m_schema);
    for (const QVariantList& row : m_rows)
        writer.addRow(m_schema.name, row);
}

std::vector<SampleTable::Line> SampleTable::select(const Condition& test, const Less& less) const
{
    std::vector<Line> lines;
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        if (const Line line(*this, row); test(line))
            lines.push_back(line);
    if (less)
        std::stable_sort(lines.begin(), lines.end(), less);
    return lines;
}

QString difference(Recordset& records, const std::vector<SampleTable::Line>& lines)
{
    if (records.RecordCount() != static_cast<int>(lines.size()))
        return u"%1 records for %2 lines"_s.arg(records.RecordCount()).arg(lines.size());
    for (const SampleTable::Line& line : lines) {
        for (int i = 0; i < records.FieldCount(); ++i) {
            const QVariant value = records.Fields(i).Value();
            const QVariant& expected = line.value(records.Fields(i).Name());
            if (value.isNull() != expected.isNull() || value.toString() != expected.toString())
                return u"%1 of record %2 is %3, not %4"_s.arg(records.Fields(i).Name())
                    .arg(records.AbsolutePosition())
                    .arg(value.toString(), expected.toString());
        }
        records.MoveNext();
    }
    return records.Eof() ? QString() : u"records left over"_s;
}

} // namespace lumen
