// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/rows/recordset_state.h"

#include "jet/error.h"
#include "jet/sql/sql_parser.h"
#include "platform/log.h"

#include <QDataStream>
#include <QIODevice>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<RecordsetState> openKeyed(const std::shared_ptr<Connection>& connection,
                                          KeyQuery query)
{
    auto rows = std::make_shared<KeyedRows>(connection, *query.table, query.columns,
                                            KeyedRows::readKeys(*connection, query));
    return std::make_unique<RecordsetState>(connection, *query.table, std::move(query.columns),
                                            std::move(rows));
}

std::unique_ptr<RecordsetState> openFixed(const std::shared_ptr<Connection>& connection,
                                          FixedQuery query)
{
    auto rows = std::make_shared<FixedRows>(FixedRows::readRows(*connection, query.rows));
    return std::make_unique<RecordsetState>(connection, std::move(query.columns), std::move(rows));
}

std::unique_ptr<RecordsetState> openTable(const std::shared_ptr<Connection>& connection,
                                          const TableInfo& table, RecordsetType type)
{
    SqlTranslator translator(connection->schema(), connection->compare());
    auto state = openKeyed(connection, translator.wholeTable(table));
    state->isTable = type != RecordsetType::Dynaset;
    return state;
}

/// "[Table 1]" is the table "Table 1".
QString withoutBrackets(const QString& source)
{
    const QString name = source.trimmed();
    return name.startsWith(u'[') && name.indexOf(u']') == name.size() - 1
               ? name.sliced(1).chopped(1)
               : name;
}

bool isQueryText(const QString& source)
{
    for (const QStringView word : {u"SELECT", u"DELETE"})
        if (source.startsWith(word, Qt::CaseInsensitive) && source.size() > word.size() &&
            !source[word.size()].isLetterOrNumber())
            return true;
    return false;
}

} // namespace

void OpenRecordsets::closeAll()
{
    // close() takes the state off the list.
    while (!m_states.empty())
        m_states.back()->close();
}

RecordsetState::RecordsetState(std::shared_ptr<Connection> connectionOfRows,
                               const TableInfo& tableOfRows,
                               std::vector<ResultColumn> columnsOfRows,
                               std::shared_ptr<KeyedRows> rowsOfTable)
    : connection(std::move(connectionOfRows)), table(&tableOfRows),
      columns(std::move(columnsOfRows)), keyed(std::move(rowsOfTable))
{
    rows().attach(cursor);
    if (rows().count() > 0)
        goTo(0);
}

RecordsetState::RecordsetState(std::shared_ptr<Connection> connectionOfRows,
                               std::vector<ResultColumn> columnsOfRows,
                               std::shared_ptr<FixedRows> fixedRows)
    : connection(std::move(connectionOfRows)), columns(std::move(columnsOfRows)),
      fixed(std::move(fixedRows))
{
    rows().attach(cursor);
    if (rows().count() > 0)
        goTo(0);
}

RecordsetState::~RecordsetState()
{
    close();
}

void RecordsetState::joinDatabase(const std::shared_ptr<OpenRecordsets>& owner)
{
    m_owner = owner;
    if (owner)
        owner->add(*this);
}

std::unique_ptr<RecordsetState> RecordsetState::derive(std::shared_ptr<KeyedRows> rowsOfTable) const
{
    auto state =
        std::make_unique<RecordsetState>(connection, *table, columns, std::move(rowsOfTable));
    state->readOnly = readOnly;
    state->isTable = isTable;
    state->joinDatabase(m_owner.lock());
    return state;
}

std::unique_ptr<RecordsetState> RecordsetState::derive(std::shared_ptr<FixedRows> fixedRows) const
{
    auto state = std::make_unique<RecordsetState>(connection, columns, std::move(fixedRows));
    state->joinDatabase(m_owner.lock());
    return state;
}

void RecordsetState::needOpen() const
{
    if (isClosed())
        throw jetError(ErrorNumber::kObjectClosed);
}

RowSet& RecordsetState::rows() const
{
    if (keyed)
        return *keyed;
    return *fixed;
}

KeyedRows& RecordsetState::writable() const
{
    needOpen();
    if (!keyed || readOnly || connection->isReadOnly())
        throw jetError(ErrorNumber::kReadOnly, connection->source());
    return *keyed;
}

int RecordsetState::currentIndex() const
{
    needOpen();
    if (cursor.place == Cursor::Place::Deleted)
        throw jetError(ErrorNumber::kRecordDeleted, connection->source());
    if (cursor.place != Cursor::Place::Record)
        throw jetError(ErrorNumber::kNoCurrentRecord);
    return cursor.index;
}

void RecordsetState::moveTo(Cursor target)
{
    storeChanged();
    dropEdit();
    cursor = target;
    if (watch.onReposition)
        watch.onReposition();
}

void RecordsetState::storeChanged() const
{
    if (editMode != EditMode::None && watch.beforeMove)
        watch.beforeMove();
}

void RecordsetState::dropEdit()
{
    editMode = EditMode::None;
    autonumber.reset();
    buffer.clear();
    touched.clear();
}

void RecordsetState::close()
{
    if (isClosed())
        return;
    dropEdit();
    watch = {};
    rows().detach(cursor);
    keyed.reset();
    fixed.reset();
    connection.reset();
    if (const auto owner = m_owner.lock())
        owner->remove(*this);
}

int RecordsetState::columnNamed(QStringView name) const
{
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (name.compare(columns[i].name, Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    throw jetError(ErrorNumber::kNoSuchItem, name.toString());
}

QByteArray RecordsetState::bookmarkOf(int index) const
{
    QByteArray bookmark;
    QDataStream stream(&bookmark, QIODevice::WriteOnly);
    stream << rows().serial() << rows().key(index) << index;
    return bookmark;
}

std::unique_ptr<RecordsetState> openSource(const std::shared_ptr<Connection>& connection,
                                           const QString& source, RecordsetType type)
{
    qCDebug(jetLog) << "open" << source;
    const QString name = withoutBrackets(source);
    if (const TableInfo* table = connection->schema().find(name))
        return openTable(connection, *table, type);
    if (!isQueryText(name) || type == RecordsetType::Table)
        throw jetError(ErrorNumber::kUnknownTable, name);
    const SqlTree tree = parseStatement(source);
    const auto* select = std::get_if<SelectStatement>(&tree);
    if (select == nullptr || !select->cores[0].into.isEmpty())
        throw jetError(ErrorNumber::kInvalidArgument, source);
    SqlTranslator translator(connection->schema(), connection->compare());
    if (SqlTranslator::isKeyed(*select))
        return openKeyed(connection, translator.keyQuery(*select));
    return openFixed(connection, translator.fixedQuery(*select));
}

} // namespace lumen
