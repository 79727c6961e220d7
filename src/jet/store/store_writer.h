// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/store/field_types.h"
#include "jet/store/file_policy.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

namespace lumen {

struct ColumnDef
{
    QString name;
    FieldType type = FieldType::Text;
    int size = 255;          ///< characters, of Text columns
    bool autonumber = false; ///< a Long that is the primary key
    bool counter = false; ///< a Long that isn't, and is numbered for each new record all the same
    bool required = false;
};

struct IndexDef
{
    QString name;
    QStringList columns;
    bool unique = false;
    bool primary = false;
};

struct TableSchema
{
    QString name;
    std::vector<ColumnDef> columns;
    std::vector<IndexDef> indexes{};
};

/// The statements that make a table and its indexes in any store, the table first.
QStringList creationTexts(const TableSchema& schema);

/// How a store is used, which decides the size of its pages.
enum class StoreUse {
    Written,  ///< single rows change: pages of 4 KB
    OnlyRead, ///< scanned as a whole: pages of 64 KB, a third less time for each search
};

/// Writes a new store: tables, indexes, rows, password and origin go into a temporary file beside
/// the destination, which commit() renames into place. Destroyed without commit() it leaves
/// nothing. Paths are native. Errors are JetErrors.
class StoreWriter
{
public:
    StoreWriter(const QString& nativePath, StoreCompare compare, StoreUse use = StoreUse::Written);
    ~StoreWriter();
    StoreWriter(const StoreWriter&) = delete;
    StoreWriter& operator=(const StoreWriter&) = delete;

    void setPassword(const QString& password);
    /// "made" (default), "jet3" or "jet4".
    void setOrigin(const QString& origin);
    /// A line of the table MSysOrigin: source, licence, build date and the like.
    void addOriginLine(const QString& key, const QString& value);

    void createTable(const TableSchema& schema);
    /// One row in the schema's column order; a null QVariant is Null.
    void addRow(const QString& table, const QVariantList& values);
    /// Indexes, ANALYZE, a check, fsync, rename over the destination.
    void commit();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace lumen
