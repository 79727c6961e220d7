// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"

#include "data/module_path.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/store_writer.h"
#include "platform/log.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kTitleLength = 130;
constexpr int kScratchTables = 11;

/// One file of the first start: where it lies, what its tables are, and its first row if any.
struct UserStore
{
    QString name;
    StoreCompare compare = StoreCompare::Text;
    QString password;
    std::vector<TableSchema> tables;
    QVariantList firstRow;
};

ColumnDef key(const QString& name)
{
    return {name, FieldType::Long, 0, true};
}

ColumnDef text(const QString& name)
{
    return {name, FieldType::Text};
}

ColumnDef memo(const QString& name)
{
    return {name, FieldType::Memo, 0};
}

ColumnDef date(const QString& name)
{
    return {name, FieldType::Date, 0};
}

// A field of a record stands there twice, plain for searching and as RTF for showing.
void addFieldPair(TableSchema& table, const QString& name)
{
    table.columns.push_back(memo(name));
    table.columns.push_back(memo(u"rtf"_s + name));
}

TableSchema recordTable(const QString& name, const QStringList& fields)
{
    TableSchema table{name, {key(u"일련번호"_s), {u"제목"_s, FieldType::Text, kTitleLength}}, {}};
    table.columns.push_back(memo(u"rtf제목"_s));
    for (const QString& field : fields)
        addFieldPair(table, field);
    table.columns.push_back(text(u"분류"_s));
    return table;
}

// An empty record: a title of no characters, the dates, and Null in all else.
QVariantList emptyRecord(const TableSchema& table, const QDate& today)
{
    QVariantList row(static_cast<qsizetype>(table.columns.size()));
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const auto place = static_cast<qsizetype>(i);
        if (table.columns[i].type == FieldType::Date)
            row[place] = dayNumber(today.startOfDay());
        else if (table.columns[i].name == u"제목")
            row[place] = u""_s;
    }
    return row;
}

UserStore notes()
{
    return {u"myc.mdb"_s,
            StoreCompare::Text,
            {},
            {{u"myc"_s, {text(u"Index"_s), {u"seq"_s, FieldType::Long}, memo(u"note"_s)}, {}}},
            {}};
}

UserStore sermons(const QDate& today)
{
    TableSchema table = recordTable(u"설교"_s, {u"말씀"_s, u"본문"_s, u"기도"_s, u"요약"_s});
    table.columns.push_back(date(u"설교일"_s));
    table.columns.push_back(date(u"작성일"_s));
    return {u"설교매니저.mdb"_s, StoreCompare::Text, {}, {table}, emptyRecord(table, today)};
}

UserStore quietTime(const QDate& today)
{
    TableSchema table = recordTable(u"QT"_s, {u"말씀"_s, u"본문"_s, u"기도"_s, u"적용"_s});
    table.columns.push_back(date(u"작성일"_s));
    return {u"qt.mdb"_s, StoreCompare::Text, {}, {table}, emptyRecord(table, today)};
}

UserStore addresses()
{
    return {u"전자우편주소록.mdb"_s,
            StoreCompare::Text,
            {},
            {{u"전자우편주소록"_s,
              {key(u"ID"_s), text(u"성명"_s), text(u"전자우편"_s), text(u"메모"_s)},
              {}}},
            {}};
}

UserStore illustrations()
{
    return {
        u"예화.dts"_s,
        StoreCompare::Text,
        QString::fromUtf16(kModulePassword),
        {{u"예화"_s, {key(u"num"_s), text(u"Title"_s), text(u"Category"_s), memo(u"cont"_s)}, {}}},
        {}};
}

UserStore searchScratch()
{
    UserStore store{
        u"z199.dts"_s, StoreCompare::Binary, QString::fromUtf16(kModulePassword), {}, {}};
    for (int i = 0; i < kScratchTables; ++i)
        store.tables.push_back({u"Table"_s + QString::number(i),
                                {text(u"Index"_s)},
                                {{u"PrimaryKey"_s, {u"Index"_s}, true, true}}});
    return store;
}

void write(const UserStore& store, const QString& nativePath)
{
    StoreWriter writer(nativePath, store.compare);
    if (!store.password.isEmpty())
        writer.setPassword(store.password);
    for (const TableSchema& table : store.tables)
        writer.createTable(table);
    if (!store.firstRow.isEmpty())
        writer.addRow(store.tables.front().name, store.firstRow);
    writer.commit();
}

Result<Done> create(const UserStore& store, const QString& nativePath)
{
    try {
        write(store, nativePath);
        return Done{};
    } catch (const JetError& error) {
        qCWarning(dataLog) << "not created:" << nativePath << error.text();
        return Failure{FailureKind::System, nativePath + u": "_s + error.text()};
    }
}

} // namespace

Result<Done> createUserDatabases(const QString& appPath, FileSystem& files,
                                 const PathResolver& paths, const QDate& today)
{
    Result<Done> folder = files.CreateFolder(joinedPath(appPath, u"\\Data"));
    if (!folder)
        return folder;
    Result<Done> outcome = Done{};
    for (const UserStore& store : {notes(), sermons(today), quietTime(today), addresses(),
                                   illustrations(), searchScratch()}) {
        const QString path = joinedPath(appPath, QString(u"\\Data\\"_s + store.name));
        if (files.FileExists(path))
            continue;
        const Result<Done> created = create(store, paths.nativePath(path));
        if (!created && outcome)
            outcome = created;
    }
    return outcome;
}

Result<Done> createScratchTables(const QString& appPath, const JetEngine& jet)
{
    const UserStore store = searchScratch();
    const QString path =
        jet.paths().nativePath(joinedPath(appPath, QString(u"\\Data\\"_s + store.name)));
    if (jet.isOpen(path))
        return Failure{FailureKind::InUse, path};
    return create(store, path);
}

} // namespace lumen
