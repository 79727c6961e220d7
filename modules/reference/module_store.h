// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "check/row_digest.h"
#include "jet/store/store_writer.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <utility>
#include <vector>

namespace lumen {

/// A store as all modules are: compared by code point, under the modules' password. Counts rows and
/// tells how far it has come. Errors are JetErrors; without commit() nothing stays.
class ModuleStore
{
public:
    using Advance = std::function<bool(double share)>;

    /// `origin` are the lines on source, licence and making.
    ModuleStore(const QString& file, StoreUse use,
                const std::vector<std::pair<QString, QString>>& origin, Advance advance);

    /// The number of rows that are to come, for the share that is done; `before` is the share of
    /// the whole work that reading took.
    void expect(std::size_t rows, double before = 0);
    void addOriginLine(const QString& key, const QString& value);
    void createTable(const TableSchema& schema);
    /// False once the work is to be stopped; then nothing more may be added.
    [[nodiscard]] bool addRow(const QString& table, const QVariantList& values);
    std::size_t rows() const { return m_rows; }
    void commit();

private:
    StoreWriter m_writer;
    RowDigest m_digest;
    Advance m_advance;
    std::size_t m_expected = 0;
    double m_before = 0;
    std::size_t m_rows = 0;
};

/// A text column as modules have them, and a long one; texts are stored scrambled.
ColumnDef textColumn(const QString& name, int size = 255);
ColumnDef memoColumn(const QString& name);
/// The stored form of a text; Null for "".
QVariant scrambledOrNull(const QString& text);

} // namespace lumen
