// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/scratch_tables.h"

#include "data/compact_and_backup.h"
#include "data/data_store.h"
#include "data/module_path.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "platform/files/file_system.h"
#include "platform/log.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kIndex = u"Index"_s;

QString tableName(int table)
{
    return u"Table"_s + QString::number(table);
}

} // namespace

ScratchTables::ScratchTables(JetEngine& jet, FileSystem& files, QString appPath)
    : m_jet(jet), m_files(files), m_appPath(std::move(appPath))
{
}

QString ScratchTables::path() const
{
    return joinedPath(m_appPath, u"\\Data\\z199.dts");
}

bool ScratchTables::exists() const
{
    return m_files.FileExists(path());
}

bool ScratchTables::startAfresh()
{
    if (!exists())
        return false;
    close();
    const Result<Done> made = createScratchTables(m_appPath, m_jet);
    ignoreFailure(made, "the tables that are there may do as well");
    return made.ok();
}

bool ScratchTables::prepare()
{
    try {
        close();
        open().BeginTrans();
        m_searching = true;
        for (int table = 0; table < kShown; ++table)
            m_database->Execute(u"Delete * from "_s + tableName(table));
        m_database->Execute(u"Delete * from "_s + tableName(kShown));
        return true;
    } catch (const JetError& error) {
        qCWarning(searchLog) << "scratch tables:" << error.number() << error.text();
        abandon();
        return false;
    }
}

Database& ScratchTables::open()
{
    if (!m_database)
        m_database =
            m_jet.OpenDatabase(path(), false, false, QString::fromUtf16(connect_text::kSearch));
    return *m_database;
}

void ScratchTables::close()
{
    if (!m_database)
        return;
    if (m_searching)
        m_database->CommitTrans();
    m_searching = false;
    m_database->Close();
    m_database.reset();
}

void ScratchTables::abandon()
{
    m_database.reset();
    m_searching = false;
}

void ScratchTables::empty(int table)
{
    open().Execute(u"delete * from "_s + tableName(table));
}

void ScratchTables::StringToDB(const QString& positions, int table)
{
    open().AppendTexts(tableName(table), kIndex, positions.split(u';'));
}

void ScratchTables::fill(int table, const Recordset& records)
{
    open().AppendTexts(tableName(table), kIndex, records.columnTexts(kIndex));
}

std::unique_ptr<Recordset> ScratchTables::query(const QString& sql)
{
    return open().OpenRecordset(sql);
}

QStringList ScratchTables::keys(int table)
{
    return open().OpenRecordset(tableName(table))->columnTexts(kIndex);
}

void ScratchTables::cleanUp()
{
    if (!exists())
        return;
    try {
        close();
        for (int table = 0; table <= kLast; ++table)
            empty(table);
        close();
    } catch (const JetError& error) {
        qCWarning(searchLog) << "not cleaned:" << error.number() << error.text();
        abandon();
    }
    // It has no backup, so that nothing can fail to be copied.
    CompactAndBackup(m_appPath, user_file::kSearchScratch, m_jet, m_files);
}

} // namespace lumen
