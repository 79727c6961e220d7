// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/import/jet_header.h"
#include "jet/store/store_writer.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace lumen {

/// What a reading met that a sound file doesn't have.
struct JetFaults
{
    QStringList tables;    ///< tables whose definition can't be read
    int rows = 0;          ///< rows left out
    qint64 absentRows = 0; ///< rows that a table counts and no page has
    int missingPages = 0;  ///< pages of tables behind the end of the file, which was cut
    int strangePages = 0;  ///< pages of tables that belong to something else
    int values = 0;        ///< values that came out short
};

/// Reads the user's tables of a genuine Jet file: names, columns, keys and all rows.
class JetFileReader
{
public:
    /// nullptr when the file has no catalogue that can be read.
    static std::unique_ptr<JetFileReader> open(const QString& nativePath, const JetHeader& header);
    ~JetFileReader();
    JetFileReader(const JetFileReader&) = delete;
    JetFileReader& operator=(const JetFileReader&) = delete;

    /// In the order of the catalogue; a table that can't be read is left out and counted.
    const std::vector<TableSchema>& tables() const;
    /// Calls `take` with each row of a table, values in the schema's column order, in the order in
    /// which they are stored, until it returns false.
    void readRows(const QString& table, const std::function<bool(const QVariantList& row)>& take);
    const JetFaults& faults() const;

private:
    class Impl;
    explicit JetFileReader(std::unique_ptr<Impl> impl);

    std::unique_ptr<Impl> m_impl;
};

} // namespace lumen
