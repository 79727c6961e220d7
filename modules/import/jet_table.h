// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "import/jet_handle.h"
#include "jet/store/store_writer.h"

#include <functional>
#include <memory>
#include <vector>

namespace lumen {

/// One field of a row as it lies on the page. For yes/no, `isNull` is the value: null means no.
struct RawField
{
    bool isNull = true;
    QByteArray bytes;
};

using RawRow = std::vector<RawField>;

struct JetColumn
{
    QString name;
    int type = 0;  ///< the library's number, such as MDB_TEXT
    int size = 0;  ///< bytes
    int scale = 0; ///< digits behind the point of a decimal
    bool autonumber = false;
};

/// What a walk over a table met besides rows.
struct TableFaults
{
    int rows = 0;         ///< rows that can't be read
    int missingPages = 0; ///< pages that lie behind the end of the file
    int strangePages = 0; ///< pages that belong to something else
};

/// A table of a genuine Jet file: its definition and its rows in the order of their pages.
class JetTable
{
public:
    /// nullptr when the definition can't be read.
    static std::unique_ptr<JetTable> open(JetHandle& file, const QString& name, quint32 page);

    const QString& name() const { return m_name; }
    const std::vector<JetColumn>& columns() const { return m_columns; }
    /// -1 when there is none.
    int columnNamed(QStringView name) const;
    /// The keys of the table itself; those that relations between tables bring are left out.
    std::vector<IndexDef> indexes();
    /// How many rows the definition says there are.
    qint64 statedRows() const { return m_table->num_rows; }
    /// Calls `take` with every live row until it returns false.
    TableFaults walk(const std::function<bool(const RawRow& row)>& take);

private:
    struct FreeTable
    {
        void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
    };

    JetTable(JetHandle& file, QString name, quint32 page);
    bool readDefinition();
    bool readColumns();
    std::vector<quint32> pages();
    void addPages(std::vector<quint32>& pages, const QByteArray& bits, quint64 firstPage) const;
    bool belongsToOther() const;
    bool walkPage(quint32 page, const std::function<bool(const RawRow&)>& take,
                  TableFaults& faults);
    bool readRow(quint32 page, int row, RawRow& fields);
    bool crackRow(int start, size_t size, RawRow& fields);

    JetHandle& m_file;
    QString m_name;
    quint32 m_page;
    MdbCatalogEntry m_entry{};
    std::unique_ptr<MdbTableDef, FreeTable> m_table;
    std::vector<JetColumn> m_columns;
};

} // namespace lumen
