// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"

#include "data/module_path.h"
#include "data/user_files.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "jet/store/field_types.h"
#include "jet/store/store_writer.h"
#include "platform/log.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

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

void write(const UserFile& file, const QString& nativePath, const QDate& today)
{
    StoreWriter writer(nativePath, file.policy.compare);
    if (!file.password.isEmpty())
        writer.setPassword(file.password.toString());
    const std::vector<TableSchema> tables = file.tables();
    for (const TableSchema& table : tables)
        writer.createTable(table);
    if (file.beginsWithRecord)
        writer.addRow(tables.front().name, emptyRecord(tables.front(), today));
    writer.commit();
}

Result<Done> create(const UserFile& file, const QString& nativePath, const QDate& today)
{
    try {
        write(file, nativePath, today);
        return Done{};
    } catch (const JetError& error) {
        qCWarning(dataLog) << "not created:" << nativePath << error.text();
        return Failure{FailureKind::System, nativePath + u": "_s + error.text()};
    }
}

QString pathOf(const QString& appPath, const UserFile& file)
{
    const QStringView name = file.madeAs.isEmpty() ? file.name : file.madeAs;
    return joinedPath(appPath, u"\\Data"_s + name.toString());
}

} // namespace

Result<Done> createUserDatabases(const QString& appPath, FileSystem& files,
                                 const PathResolver& paths, const QDate& today)
{
    Result<Done> folder = files.CreateFolder(joinedPath(appPath, u"\\Data"));
    if (!folder)
        return folder;
    Result<Done> outcome = Done{};
    for (const UserFile& file : user_file::kAll) {
        const QString path = pathOf(appPath, file);
        if (!file.isDatabase() || files.FileExists(path))
            continue;
        const Result<Done> created = create(file, paths.nativePath(path), today);
        if (!created && outcome)
            outcome = created;
    }
    return outcome;
}

Result<Done> createScratchTables(const QString& appPath, const JetEngine& jet)
{
    const QString path = jet.paths().nativePath(pathOf(appPath, user_file::kSearchScratch));
    if (jet.isOpen(path))
        return Failure{FailureKind::InUse, path};
    return create(user_file::kSearchScratch, path, {});
}

} // namespace lumen
