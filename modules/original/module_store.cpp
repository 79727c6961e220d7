// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/module_store.h"

#include "text/field_scramble.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// The one password that the program opens all modules with.
constexpr QStringView kModulePassword = u"qolvetrinam";
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
        if (!m_advance(static_cast<double>(m_rows) / expected))
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
