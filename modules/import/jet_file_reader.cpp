// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/jet_file_reader.h"

#include "import/jet_properties.h"
#include "import/jet_table.h"
#include "import/jet_values.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kCatalogPage = 2;
constexpr quint32 kPageOfObject = 0x00FFFFFF;
/// Either bit marks an object of the engine itself.
constexpr quint32 kSystemObject = 0x80000002;
constexpr int kObjectType = 0x7F;

/// One row of the catalogue.
struct CatalogObject
{
    QString name;
    quint32 page = 0;
    int type = 0;
    quint32 flags = 0;
    QByteArray properties;

    bool isUserTable() const
    {
        // "~TMPCLP..." are tables that were deleted, but not yet compacted away.
        return (type & kObjectType) == MDB_TABLE && (flags & kSystemObject) == 0 &&
               !name.startsWith(u"MSys"_s, Qt::CaseInsensitive) && !name.startsWith(u"~TMP"_s);
    }
};

/// A required column may hold Null in rows that are older than the rule.
void dropBrokenRequirements(JetTable& table, TableSchema& schema)
{
    const bool any = std::any_of(schema.columns.begin(), schema.columns.end(),
                                 [](const ColumnDef& column) { return column.required; });
    if (!any)
        return;
    table.walk([&schema](const RawRow& row) {
        for (size_t i = 0; i < row.size(); ++i)
            if (row[i].isNull)
                schema.columns[i].required = false;
        return true;
    });
}

} // namespace

class JetFileReader::Impl
{
public:
    explicit Impl(std::unique_ptr<JetHandle> file) : m_file(std::move(file)), m_values(*m_file) {}

    bool readCatalog();
    const std::vector<TableSchema>& schemas() const { return m_schemas; }
    void readRows(const QString& name, const std::function<bool(const QVariantList&)>& take);
    const JetFaults& faults() const { return m_faults; }

private:
    std::vector<CatalogObject> userTables(JetTable& catalog);
    void addTable(const CatalogObject& object);
    TableSchema schemaOf(JetTable& table, const QByteArray& properties);
    void addFaults(const TableFaults& met);

    std::unique_ptr<JetHandle> m_file;
    JetValues m_values;
    std::vector<std::unique_ptr<JetTable>> m_tables;
    std::vector<TableSchema> m_schemas;
    JetFaults m_faults;
};

bool JetFileReader::Impl::readCatalog()
{
    const auto catalog = JetTable::open(*m_file, u"MSysObjects"_s, kCatalogPage);
    if (!catalog)
        return false;
    for (const auto* column : {u"Id", u"Name", u"Type", u"Flags"})
        if (catalog->columnNamed(column) < 0)
            return false;
    for (const CatalogObject& object : userTables(*catalog))
        addTable(object);
    return true;
}

std::vector<CatalogObject> JetFileReader::Impl::userTables(JetTable& catalog)
{
    const auto column = [&catalog](QStringView name) { return catalog.columnNamed(name); };
    const int id = column(u"Id");
    const int name = column(u"Name");
    const int type = column(u"Type");
    const int flags = column(u"Flags");
    const int properties = column(u"LvProp");
    std::vector<CatalogObject> result;
    const auto valueOf = [this, &catalog](const RawRow& row, int index) {
        const auto i = static_cast<size_t>(index);
        return m_values.value(catalog.columns()[i], row[i]);
    };
    const TableFaults met = catalog.walk([&](const RawRow& row) {
        CatalogObject object;
        object.name = valueOf(row, name).toString();
        object.page = static_cast<quint32>(valueOf(row, id).toInt()) & kPageOfObject;
        object.type = valueOf(row, type).toInt();
        object.flags = static_cast<quint32>(valueOf(row, flags).toInt());
        if (!object.isUserTable())
            return true;
        if (properties >= 0)
            object.properties = valueOf(row, properties).toByteArray();
        result.push_back(object);
        return true;
    });
    addFaults(met);
    return result;
}

void JetFileReader::Impl::addTable(const CatalogObject& object)
{
    const bool known =
        std::any_of(m_schemas.begin(), m_schemas.end(), [&object](const TableSchema& schema) {
            return schema.name.compare(object.name, Qt::CaseInsensitive) == 0;
        });
    auto table = known || object.name.isEmpty() ? nullptr
                                                : JetTable::open(*m_file, object.name, object.page);
    if (!table) {
        m_faults.tables << object.name;
        return;
    }
    m_schemas.push_back(schemaOf(*table, object.properties));
    m_tables.push_back(std::move(table));
}

TableSchema JetFileReader::Impl::schemaOf(JetTable& table, const QByteArray& properties)
{
    TableSchema schema;
    schema.name = table.name();
    schema.indexes = table.indexes();
    const QStringList required = requiredColumns(*m_file, properties);
    for (const JetColumn& column : table.columns()) {
        ColumnDef def = storeColumn(column, m_file->isJet3());
        def.required = required.contains(def.name, Qt::CaseInsensitive);
        const bool isKey = std::any_of(
            schema.indexes.begin(), schema.indexes.end(), [&def](const IndexDef& index) {
                return index.primary && index.columns == QStringList{def.name};
            });
        def.autonumber = column.autonumber && isKey;
        // Such a column may hold Nulls and a number twice, so it can't be the key of the store.
        def.counter = column.autonumber && !isKey;
        schema.columns.push_back(def);
    }
    dropBrokenRequirements(table, schema);
    return schema;
}

void JetFileReader::Impl::readRows(const QString& name,
                                   const std::function<bool(const QVariantList&)>& take)
{
    const auto found = std::find_if(m_tables.begin(), m_tables.end(),
                                    [&name](const auto& table) { return table->name() == name; });
    if (found == m_tables.end())
        return;
    const std::vector<JetColumn>& columns = (*found)->columns();
    const int damagedBefore = m_values.damaged();
    qint64 taken = 0;
    const TableFaults met = (*found)->walk([&](const RawRow& row) {
        ++taken;
        QVariantList values;
        values.reserve(static_cast<qsizetype>(row.size()));
        for (size_t i = 0; i < row.size(); ++i)
            values << m_values.value(columns[i], row[i]);
        return take(values);
    });
    addFaults(met);
    // A page whose list of rows is damaged looks as if they had been deleted.
    m_faults.absentRows += std::max<qint64>(0, (*found)->statedRows() - taken - met.rows);
    m_faults.values += m_values.damaged() - damagedBefore;
}

void JetFileReader::Impl::addFaults(const TableFaults& met)
{
    m_faults.rows += met.rows;
    m_faults.missingPages += met.missingPages;
    m_faults.strangePages += met.strangePages;
}

JetFileReader::JetFileReader(std::unique_ptr<Impl> impl) : m_impl(std::move(impl)) {}

JetFileReader::~JetFileReader() = default;

std::unique_ptr<JetFileReader> JetFileReader::open(const QString& nativePath,
                                                   const JetHeader& header)
{
    auto file = JetHandle::open(nativePath, header.codePage);
    if (!file)
        return nullptr;
    auto impl = std::make_unique<Impl>(std::move(file));
    if (!impl->readCatalog())
        return nullptr;
    return std::unique_ptr<JetFileReader>(new JetFileReader(std::move(impl)));
}

const std::vector<TableSchema>& JetFileReader::tables() const
{
    return m_impl->schemas();
}

void JetFileReader::readRows(const QString& table,
                             const std::function<bool(const QVariantList& row)>& take)
{
    m_impl->readRows(table, take);
}

const JetFaults& JetFileReader::faults() const
{
    return m_impl->faults();
}

} // namespace lumen
