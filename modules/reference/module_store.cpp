// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/module_store.h"

#include "data/user_files.h"
#include "text/field_scramble.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kRowsPerStep = 1000;

} // namespace

ModuleStore::ModuleStore(const QString& file, StoreUse use,
                         const std::vector<std::pair<QString, QString>>& origin, Advance advance)
    : m_writer(file, StoreCompare::Binary, use), m_advance(std::move(advance))
{
    m_writer.setPassword(kModulePassword.toString());
    for (const auto& [key, value] : origin)
        m_writer.addOriginLine(key, value);
}

void ModuleStore::expect(std::size_t rows, double before)
{
    m_expected = rows;
    m_before = before;
}

void ModuleStore::addOriginLine(const QString& key, const QString& value)
{
    m_writer.addOriginLine(key, value);
}

void ModuleStore::createTable(const TableSchema& schema)
{
    m_writer.createTable(schema);
}

bool ModuleStore::addRow(const QString& table, const QVariantList& values)
{
    if (m_rows % kRowsPerStep == 0) {
        const double expected = static_cast<double>(std::max(m_expected, m_rows + 1));
        const double share = static_cast<double>(m_rows) / expected;
        if (!m_advance(m_before + (1 - m_before) * share))
            return false;
    }
    ++m_rows;
    m_writer.addRow(table, values);
    m_digest.add(table, values);
    return true;
}

void ModuleStore::commit()
{
    // Tables that are made empty are for the program to write into; no check sum holds for them.
    if (const QString digest = m_digest.result(); !digest.isEmpty())
        m_writer.addOriginLine(RowDigest::kKey.toString(), digest);
    m_writer.commit();
}

ColumnDef textColumn(const QString& name, int size)
{
    return {name, FieldType::Text, size};
}

ColumnDef memoColumn(const QString& name)
{
    return {name, FieldType::Memo};
}

QVariant scrambledOrNull(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(DES::ScrambleField(text));
}

} // namespace lumen
