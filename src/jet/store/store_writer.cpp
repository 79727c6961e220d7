// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/store_writer.h"

#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/pending_file.h"
#include "jet/store/sqlite_statement.h"
#include "jet/store/store_layout.h"

#include <map>
#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSmallPage = 4096;
constexpr int kLargePage = 65536; // the largest that SQLite has
constexpr int kOpenFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;

struct Table
{
    TableSchema schema;
    std::unique_ptr<SqliteStatement> insert;
};

bool isPrimaryColumn(const TableSchema& schema, const QString& column)
{
    for (const IndexDef& index : schema.indexes)
        if (index.primary && index.columns.contains(column, Qt::CaseInsensitive))
            return true;
    return false;
}

/// The key that CREATE TABLE itself makes needs no index of its own.
bool isAutonumberKey(const TableSchema& schema, const IndexDef& index)
{
    if (!index.primary || index.columns.size() != 1)
        return false;
    for (const ColumnDef& column : schema.columns)
        if (column.autonumber)
            return column.name.compare(index.columns[0], Qt::CaseInsensitive) == 0;
    return false;
}

QString createTableText(const TableSchema& schema)
{
    QStringList columns;
    for (ColumnDef column : schema.columns) {
        column.required = column.required || isPrimaryColumn(schema, column.name);
        columns << quotedName(column.name) + u' ' + declaration(column);
    }
    return u"CREATE TABLE %1 (%2)"_s.arg(quotedName(schema.name), columns.join(u", "_s));
}

QString createIndexText(const TableSchema& schema, const IndexDef& index)
{
    QStringList columns;
    for (const QString& column : index.columns)
        columns << quotedName(column);
    const QString name = quotedName(storedIndexName(schema.name, index.name));
    return u"CREATE %1INDEX %2 ON %3 (%4)"_s.arg(
        index.unique || index.primary ? u"UNIQUE "_s : QString(), name, quotedName(schema.name),
        columns.join(u", "_s));
}

QString insertText(const TableSchema& schema)
{
    QStringList marks;
    for (std::size_t i = 0; i < schema.columns.size(); ++i)
        marks << u"?"_s;
    return u"INSERT INTO %1 VALUES (%2)"_s.arg(quotedName(schema.name), marks.join(u", "_s));
}

} // namespace

QStringList creationTexts(const TableSchema& schema)
{
    QStringList texts{createTableText(schema)};
    for (const IndexDef& index : schema.indexes)
        if (!isAutonumberKey(schema, index))
            texts << createIndexText(schema, index);
    return texts;
}

class StoreWriter::Impl
{
public:
    Impl(const QString& nativePath, StoreCompare compare, StoreUse use)
        : file(nativePath), handle(std::make_unique<SqliteHandle>(file.path(), kOpenFlags))
    {
        // Nothing of a failed store is kept, so it needs no journal; one sync comes at the end.
        run(u"PRAGMA page_size=%1; PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;"
            "PRAGMA locking_mode=EXCLUSIVE; PRAGMA cache_size=-65536; PRAGMA encoding='UTF-8';"
            "PRAGMA application_id=%2; PRAGMA user_version=%3; BEGIN"_s
                .arg(use == StoreUse::OnlyRead ? kLargePage : kSmallPage)
                .arg(StoreLayout::kApplicationId)
                .arg(StoreLayout::kVersion));
        keyValueTable(StoreLayout::kStoreTable);
        keyValueTable(StoreLayout::kOriginTable);
        set(StoreLayout::kStoreTable, StoreLayout::kCompareKey,
            compare == StoreCompare::Text ? u"text"_s : u"binary"_s);
        set(StoreLayout::kStoreTable, StoreLayout::kOriginKey, u"made"_s);
    }

    void run(const QString& sql) const { handle->run(sql.toUtf8()); }

    void keyValueTable(QStringView name) const
    {
        run(u"CREATE TABLE %1 (key TEXT PRIMARY KEY, value)"_s.arg(name));
    }

    void set(QStringView table, QStringView key, const QString& value) const
    {
        SqliteStatement statement(handle->get(),
                                  u"INSERT OR REPLACE INTO %1 VALUES (?, ?)"_s.arg(table).toUtf8());
        statement.bindAll({key.toString(), value});
        statement.execute();
    }

    Table& table(const QString& name)
    {
        const auto found = tables.find(name.toCaseFolded());
        if (found == tables.end())
            throw jetError(ErrorNumber::kUnknownTable, name);
        return found->second;
    }

    void makeIndexes() const
    {
        for (const auto& [name, entry] : tables)
            for (const IndexDef& index : entry.schema.indexes)
                if (!isAutonumberKey(entry.schema, index))
                    run(createIndexText(entry.schema, index));
    }

    void check() const
    {
        SqliteStatement statement(handle->get(), "PRAGMA quick_check(1)");
        if (!statement.step() || statement.text(0) != u"ok")
            throw jetError(ErrorNumber::kWriteFailed, statement.text(0));
    }

    PendingFile file;
    std::unique_ptr<SqliteHandle> handle;
    std::map<QString, Table> tables;
};

StoreWriter::StoreWriter(const QString& nativePath, StoreCompare compare, StoreUse use)
    : m_impl(std::make_unique<Impl>(nativePath, compare, use))
{
}

StoreWriter::~StoreWriter() = default;

void StoreWriter::setPassword(const QString& password)
{
    m_impl->set(StoreLayout::kStoreTable, StoreLayout::kPasswordKey, password);
}

void StoreWriter::setOrigin(const QString& origin)
{
    m_impl->set(StoreLayout::kStoreTable, StoreLayout::kOriginKey, origin);
}

void StoreWriter::addOriginLine(const QString& key, const QString& value)
{
    m_impl->set(StoreLayout::kOriginTable, key, value);
}

void StoreWriter::createTable(const TableSchema& schema)
{
    if (m_impl->tables.contains(schema.name.toCaseFolded()))
        throw jetError(ErrorNumber::kTableExists, schema.name);
    m_impl->run(createTableText(schema));
    Table& entry = m_impl->tables[schema.name.toCaseFolded()];
    entry.schema = schema;
    entry.insert =
        std::make_unique<SqliteStatement>(m_impl->handle->get(), insertText(schema).toUtf8());
}

void StoreWriter::addRow(const QString& table, const QVariantList& values)
{
    const Table& entry = m_impl->table(table);
    if (values.size() != static_cast<qsizetype>(entry.schema.columns.size()))
        throw jetError(ErrorNumber::kInvalidArgument, table);
    for (qsizetype i = 0; i < values.size(); ++i) {
        const bool noAnswer =
            values[i].isNull() &&
            entry.schema.columns[static_cast<std::size_t>(i)].type == FieldType::Boolean;
        entry.insert->bind(static_cast<int>(i) + 1, noAnswer ? QVariant(0) : values[i]);
    }
    entry.insert->execute();
}

void StoreWriter::commit()
{
    m_impl->makeIndexes();
    m_impl->run(u"ANALYZE; COMMIT"_s);
    m_impl->check();
    for (auto& [name, entry] : m_impl->tables)
        entry.insert.reset();
    m_impl->handle.reset();
    m_impl->file.takeName(PendingFile::Existing::Replace);
}

} // namespace lumen
