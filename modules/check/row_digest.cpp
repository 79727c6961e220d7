// SPDX-License-Identifier: GPL-2.0-or-later
#include "check/row_digest.h"

#include "jet/error.h"
#include "jet/store/store_inspection.h"

namespace lumen {

namespace {

constexpr char kNull = '\x01';
constexpr char kEndOfValue = '\x02';
constexpr char kEndOfRow = '\x03';

} // namespace

void RowDigest::add(const QString& table, const QVariantList& row)
{
    QByteArray bytes;
    for (const QVariant& value : row) {
        const QString text = value.toString();
        if (value.isNull() || text.isNull())
            bytes += kNull;
        bytes += text.toUtf8() + kEndOfValue;
    }
    auto& hash = m_tables[table];
    if (!hash)
        hash = std::make_unique<QCryptographicHash>(QCryptographicHash::Sha1);
    hash->addData(bytes + kEndOfRow);
}

QString RowDigest::result() const
{
    if (m_tables.empty())
        return {};
    QCryptographicHash all(QCryptographicHash::Sha1);
    for (const auto& [table, hash] : m_tables)
        all.addData(table.toUtf8() + hash->result());
    return QString::fromLatin1(all.result().toHex());
}

QString digestOfModule(const QString& file)
{
    RowDigest digest;
    for (const StoreTable& table : inspectStore(file).tables)
        readRows(file, table.name, [&](const QVariantList& row) { digest.add(table.name, row); });
    return digest.result();
}

bool moduleIsSound(const QString& file)
{
    try {
        const StoreInspection store = inspectStore(file);
        if (!store.faults.isEmpty() || !store.isOurs)
            return false;
        for (const auto& [key, value] : store.originLines)
            if (key == RowDigest::kKey)
                return value == digestOfModule(file);
        return true;
    } catch (const JetError&) {
        return false;
    }
}

} // namespace lumen
