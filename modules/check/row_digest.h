// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCryptographicHash>
#include <QString>
#include <QVariant>

#include <map>
#include <memory>

namespace lumen {

/// The check sum of all rows of a module. The store finds damage of its own pages only; a letter
/// that has changed on the disc is found by this. The order of the tables makes no difference, that
/// of the rows of one table does.
class RowDigest
{
public:
    /// The key of the origin line that holds it.
    static constexpr QStringView kKey = u"digest";

    void add(const QString& table, const QVariantList& row);
    /// "" as long as there is no row.
    QString result() const;

private:
    std::map<QString, std::unique_ptr<QCryptographicHash>> m_tables;
};

/// The check sum of the rows that a finished module holds, in stored order. Throws JetError.
QString digestOfModule(const QString& file);

/// Whether the module can be read to its end and holds the rows that were written. False for a file
/// that is no module. A module that was made without a check sum counts by the store's own check.
bool moduleIsSound(const QString& file);

} // namespace lumen
