// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/database.h"

#include "jet/error.h"
#include "jet/rows/recordset_state.h"
#include "jet/sql/sql_parser.h"
#include "jet/store/store_writer.h"
#include "platform/log.h"

#include <sqlite3.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

void runInto(Connection& connection, const IntoQuery& query)
{
    connection.statement(query.create.sql)->execute();
    connection.noteTableMade();
    const auto insert = connection.statement(query.insert.sql);
    insert->bindAll(query.insert.parameters);
    insert->execute();
}

void appendQuoted(QString& array, const QString& text)
{
    constexpr QChar kFirstPlain(u' ');
    array += u'"';
    for (const QChar c : text) {
        if (c < kFirstPlain) {
            array += u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
            continue;
        }
        if (c == u'"' || c == u'\\')
            array += u'\\';
        array += c;
    }
    array += u'"';
}

/// Put together by hand: the toolkit's own writer takes longer than the insertion.
QString jsonArray(const QStringList& texts)
{
    constexpr int kUsualLength = 16;
    QString array;
    array.reserve(texts.size() * kUsualLength);
    array += u'[';
    for (const QString& text : texts) {
        if (array.size() > 1)
            array += u',';
        appendQuoted(array, text);
    }
    return array + u']';
}

} // namespace

TableDef TableDefs::operator()(int index) const
{
    if (index < 0 || index >= Count())
        throw jetError(ErrorNumber::kNoSuchItem, QString::number(index));
    return {m_names[index]};
}

Database::Database(std::shared_ptr<Connection> connection, bool readOnly)
    : m_connection(std::move(connection)), m_recordsets(std::make_shared<OpenRecordsets>()),
      m_readOnly(readOnly)
{
}

Database::~Database()
{
    if (m_connection == nullptr)
        return;
    try {
        if (m_inTransaction)
            m_connection->rollback();
    } catch (const JetError& error) {
        qCWarning(jetLog) << "no rollback:" << error.what();
    }
    closeRecordsets();
}

Connection& Database::open() const
{
    if (m_connection == nullptr)
        throw jetError(ErrorNumber::kObjectClosed);
    return *m_connection;
}

Connection& Database::writable() const
{
    Connection& connection = open();
    if (isReadOnly())
        throw jetError(ErrorNumber::kReadOnly, connection.source());
    return connection;
}

bool Database::isReadOnly() const
{
    return m_readOnly || open().isReadOnly();
}

std::unique_ptr<Recordset> Database::OpenRecordset(const QString& source, RecordsetType type)
{
    open();
    auto state = openSource(m_connection, source, type);
    state->readOnly = m_readOnly;
    state->joinDatabase(m_recordsets);
    return std::make_unique<Recordset>(std::move(state));
}

void Database::Execute(const QString& sql)
{
    qCDebug(jetLog) << "execute" << sql;
    Connection& connection = writable();
    const SqlTree tree = parseStatement(sql);
    SqlTranslator translator(connection.schema(), connection.compare());
    if (const auto* deletion = std::get_if<DeleteStatement>(&tree)) {
        const TranslatedSql statement = translator.deletion(*deletion);
        connection.beginWrite();
        const auto run = connection.statement(statement.sql);
        run->bindAll(statement.parameters);
        run->execute();
    } else {
        const auto& select = std::get<SelectStatement>(tree);
        if (select.cores[0].into.isEmpty())
            throw jetError(ErrorNumber::kInvalidArgument, sql);
        const IntoQuery query = translator.intoQuery(select);
        connection.beginWrite();
        runInto(connection, query);
    }
    m_recordsAffected = sqlite3_changes(connection.handle());
    connection.noteChange();
}

void Database::AppendTexts(const QString& table, const QString& column, const QStringList& texts)
{
    Connection& connection = writable();
    const TableInfo& target = connection.schema().table(table);
    const ColumnInfo* const place = target.column(column);
    if (place == nullptr)
        throw jetError(ErrorNumber::kUnknownColumn, column);
    for (const QString& text : texts)
        if (place->size > 0 && text.size() > place->size)
            throw jetError(ErrorNumber::kTextTooLong, column);
    // One statement for all: to run one a text takes several times as long.
    connection.beginWrite();
    const auto insert =
        connection.statement(u"INSERT OR IGNORE INTO %1 (%2) SELECT value FROM json_each(?)"_s
                                 .arg(quotedName(target.name), quotedName(place->name))
                                 .toUtf8());
    insert->bind(1, QVariant(jsonArray(texts)));
    insert->execute();
    m_recordsAffected = sqlite3_changes(connection.handle());
    connection.noteChange();
}

void Database::MakeTable(const TableSchema& schema)
{
    Connection& connection = writable();
    if (connection.schema().find(schema.name) != nullptr)
        throw jetError(ErrorNumber::kTableExists, schema.name);
    connection.beginWrite();
    for (const QString& text : creationTexts(schema))
        connection.statement(text.toUtf8())->execute();
    connection.noteTableMade();
}

void Database::WidenText(const QString& table, const QString& column, int size)
{
    Connection& connection = writable();
    const QString name = quotedName(connection.schema().table(table).name);
    const QString former = quotedName(column);
    const QString wide = quotedName(column + u" wide"_s);
    connection.beginWrite();
    for (const QString& text :
         {u"ALTER TABLE %1 ADD COLUMN %2 TEXT(%4)"_s, u"UPDATE %1 SET %2 = %3"_s,
          u"ALTER TABLE %1 DROP COLUMN %3"_s, u"ALTER TABLE %1 RENAME COLUMN %2 TO %3"_s})
        connection
            .statement(QString(text)
                           .replace(u"%1"_s, name)
                           .replace(u"%2"_s, wide)
                           .replace(u"%3"_s, former)
                           .replace(u"%4"_s, QString::number(size))
                           .toUtf8())
            ->execute();
    connection.noteTableMade();
    connection.noteChange();
}

lumen::TableDefs Database::TableDefs() const
{
    return lumen::TableDefs(open().schema().names());
}

void Database::BeginTrans()
{
    writable().begin();
    m_inTransaction = true;
}

void Database::CommitTrans()
{
    m_inTransaction = false;
    open().commit();
}

void Database::Rollback()
{
    m_inTransaction = false;
    open().rollback();
}

void Database::Close()
{
    if (m_connection == nullptr)
        return;
    if (m_inTransaction)
        Rollback();
    else
        m_connection->commitImplicit();
    closeRecordsets();
    release();
}

void Database::release()
{
    m_connection.reset();
    m_recordsets.reset();
}

void Database::closeRecordsets()
{
    m_recordsets->closeAll();
}

} // namespace lumen
