// SPDX-License-Identifier: GPL-2.0-or-later
// Opening, sharing, committing and compacting databases.
#include "jet/engine.h"
#include "jet/engine_fixture.h"
#include "jet/sqlite_probe.h"
#include "jet/transaction.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

TableSchema notes()
{
    return {
        .name = u"myc"_s,
        .columns = {{.name = u"index"_s, .size = 20}, {.name = u"글"_s, .type = FieldType::Memo}}};
}

class JetEngineTest : public EngineTest
{
protected:
    void make(const QString& file, const QString& password = {}, int rows = 3)
    {
        QList<QVariantList> values;
        for (int i = 1; i <= rows; ++i)
            values << QVariantList{u"%1"_s.arg(i), u"글 %1"_s.arg(i)};
        makeStore(file, StoreCompare::Text, notes(), values, password);
    }

    static void addNote(Recordset& records, const QString& index)
    {
        records.AddNew();
        records.Fields(u"index").setValue(index);
        records.Update();
    }

    QStringList onDisk(const QString& file) const
    {
        return rawRows(path(file), "SELECT \"index\" FROM myc ORDER BY rowid");
    }
};

TEST_F(JetEngineTest, ConnectStringsOpenWithTheirPasswordAlone)
{
    make(u"101.dts"_s, u"비밀=가;"_s.chopped(1));
    make(u"free.mdb"_s);
    struct Row
    {
        QString file;
        QString connect;
        int error;
    };
    const Row rows[] = {
        {u"101.dts"_s, u";uid=admin;pwd=비밀=가"_s, 0},
        {u"101.dts"_s, u"MS Access;PWD=비밀=가;"_s, 0},
        {u"101.dts"_s, u"ms access;id=administrator;pwd=비밀=가;"_s, 0},
        {u"101.dts"_s, u"pwd=비밀=가"_s, 0},
        {u"C:\\Lumen\\Data\\101.DTS"_s, u";pwd=비밀=가"_s, 0},
        {u"101.dts"_s, u""_s, 3031},
        {u"101.dts"_s, u";pwd="_s, 3031},
        {u"101.dts"_s, u";pwd=비밀"_s, 3031},
        {u"101.dts"_s, u";pwd=비밀=가 "_s, 3031},
        {u"free.mdb"_s, u";pwd=any"_s, 0},
        {u"free.mdb"_s, u""_s, 0},
        {u"none.mdb"_s, u""_s, 3024},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.file + u' ' + row.connect).toStdString());
        EXPECT_EQ(errorOf([&] { open(row.file, row.connect); }), row.error);
    }
    // A password is asked for also of a file that is open already.
    const auto database = open(u"101.dts"_s, u";pwd=비밀=가"_s);
    EXPECT_EQ(errorOf([&] { open(u"101.dts"_s); }), 3031);
}

TEST_F(JetEngineTest, WhatIsNoDatabaseIsRefused)
{
    write(u"empty.mdb"_s, "");
    write(u"head.mdb"_s, QByteArray("SQLite format 3\0", 16) + QByteArray(4080, 'x'));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder.mdb"_s));
    for (const QString& file : {u"empty.mdb"_s, u"head.mdb"_s}) {
        SCOPED_TRACE(file.toStdString());
        EXPECT_EQ(errorOf([&] { open(file); }), 3343);
        EXPECT_EQ(errorOf([&] { engine.CompactDatabase(file, u"copy.mdb"_s); }), 3343);
    }
    EXPECT_EQ(errorOf([&] { open(u"folder.mdb"_s); }), 3024);
    EXPECT_FALSE(QFile::exists(path(u"copy.mdb"_s)));
}

TEST_F(JetEngineTest, ForeignStoresAreReadAsTheyAre)
{
    const SqliteHandle handle(path(u"other.mdb"_s), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    handle.run("CREATE TABLE t (a VARCHAR(20), rowid INTEGER, b MEMO); CREATE VIEW v AS SELECT 1;"
               "INSERT INTO t VALUES ('Grace', 7, '007'); INSERT INTO t VALUES ('x', 8, NULL)");
    const auto database = open(u"other.mdb"_s);
    EXPECT_EQ(database->TableDefs().Count(), 1);
    const auto records = database->OpenRecordset(u"select * from t where a = 'grace'"_s);
    EXPECT_EQ(records->RecordCount(), 1);
    records->Edit();
    records->Fields(u"rowid").setValue(70);
    records->Update();
    EXPECT_EQ(columnOf(*database->OpenRecordset(u"t"_s), u"rowid"), (QStringList{u"70"_s, u"8"_s}));
}

TEST_F(JetEngineTest, ModulesAndReadOnlyDatabasesRefuseWrites)
{
    make(u"101.dts"_s);
    make(u"myc.mdb"_s);
    const auto module = open(u"101.dts"_s);
    const auto readOnly = engine.OpenDatabase(u"myc.mdb"_s, false, true);
    const auto writable = open(u"myc.mdb"_s);
    for (Database* database : {module.get(), readOnly.get()}) {
        const auto records = database->OpenRecordset(u"myc"_s);
        EXPECT_EQ(errorOf([&] { records->Edit(); }), 3027);
        EXPECT_EQ(errorOf([&] { records->AddNew(); }), 3027);
        EXPECT_EQ(errorOf([&] { records->Clone()->Delete(); }), 3027);
        EXPECT_EQ(errorOf([&] { records->OpenRecordset()->Delete(); }), 3027);
        EXPECT_EQ(errorOf([&] { database->Execute(u"delete from myc"_s); }), 3027);
        EXPECT_EQ(errorOf([&] { database->BeginTrans(); }), 3027);
    }
    addNote(*writable->OpenRecordset(u"myc"_s), u"4"_s);
    // The read-only user of the file sees what the other one writes at once.
    EXPECT_EQ(readOnly->OpenRecordset(u"myc"_s)->RecordCount(), 4);
}

TEST_F(JetEngineTest, ReadOnlyFilesAreOpenedForReading)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "root may write to every file";
    make(u"myc.mdb"_s);
    QFile::setPermissions(path(u"myc.mdb"_s), QFileDevice::ReadOwner);
    const auto records = open(u"myc.mdb"_s)->OpenRecordset(u"myc"_s);
    EXPECT_EQ(errorOf([&] { records->Edit(); }), 3027);
}

TEST_F(JetEngineTest, ExclusiveUseKeepsOthersOut)
{
    make(u"myc.mdb"_s);
    auto shared = open(u"myc.mdb"_s);
    EXPECT_EQ(errorOf([&] { engine.OpenDatabase(u"MYC.mdb"_s, true); }), 3045);
    shared.reset();
    const auto exclusive = engine.OpenDatabase(u"myc.mdb"_s, true);
    EXPECT_EQ(errorOf([&] { open(u"myc.mdb"_s); }), 3045);
    exclusive->Close();
    EXPECT_EQ(errorOf([&] { open(u"myc.mdb"_s); }), 0);
}

TEST_F(JetEngineTest, AFileLockedByAnotherProgramIsInUse)
{
    make(u"myc.mdb"_s);
    const SqliteHandle other(path(u"myc.mdb"_s), SQLITE_OPEN_READWRITE);
    other.run("BEGIN EXCLUSIVE");
    EXPECT_EQ(errorOf([&] { open(u"myc.mdb"_s); }), 3045);
    other.run("ROLLBACK");
    const auto database = open(u"myc.mdb"_s);
    other.run("BEGIN IMMEDIATE");
    EXPECT_EQ(errorOf([&] { addNote(*database->OpenRecordset(u"myc"_s), u"4"_s); }), 3045);
    other.run("ROLLBACK");
    EXPECT_EQ(errorOf([&] { addNote(*database->OpenRecordset(u"myc"_s), u"4"_s); }), 0);
}

TEST_F(JetEngineTest, WritesReachTheDiscAtEachOfTheirEnds)
{
    make(u"myc.mdb"_s);
    const QStringList before = onDisk(u"myc.mdb"_s);
    const auto database = open(u"myc.mdb"_s);
    const auto records = database->OpenRecordset(u"myc"_s);
    const std::vector<std::pair<const char*, std::function<void()>>> ends{
        {"event loop", [] { QCoreApplication::processEvents(); }},
        {"file layer", [&] { engine.commitPending(path(u"myc.mdb"_s)); }},
        {"engine", [&] { engine.commitAll(); }},
        {"recordset", [&] { records->Clone()->Close(); }},
        {"database", [&] { open(u"myc.mdb"_s)->Close(); }},
    };
    int added = 0;
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        addNote(*records, u"n%1"_s.arg(++added));
        EXPECT_EQ(onDisk(u"myc.mdb"_s).size(), before.size() + added - 1);
        end();
        EXPECT_EQ(onDisk(u"myc.mdb"_s).size(), before.size() + added);
    }
}

TEST_F(JetEngineTest, AHandlerThatFailsLeavesTheOldRows)
{
    make(u"myc.mdb"_s);
    const QStringList before = onDisk(u"myc.mdb"_s);
    EXPECT_EQ(errorOf([&] {
                  const auto database = open(u"myc.mdb"_s);
                  database->Execute(u"delete * from myc"_s);
                  const auto records = database->OpenRecordset(u"myc"_s);
                  addNote(*records, QString(30, u'x'));
              }),
              3163);
    engine.rollbackAll();
    EXPECT_EQ(onDisk(u"myc.mdb"_s), before);

    const auto database = open(u"myc.mdb"_s);
    database->BeginTrans();
    database->Execute(u"delete * from myc"_s);
    // An event loop within the transaction does not end it.
    QCoreApplication::processEvents();
    EXPECT_EQ(onDisk(u"myc.mdb"_s), before);
    engine.rollbackAll();
    EXPECT_EQ(database->OpenRecordset(u"myc"_s)->RecordCount(), 3);
    EXPECT_EQ(errorOf([&] { database->CommitTrans(); }), 3001);

    Transaction kept(*database);
    EXPECT_EQ(errorOf([&] { database->BeginTrans(); }), 3001);
    database->Execute(u"delete from myc where index = '1'"_s);
    addNote(*database->OpenRecordset(u"myc"_s), u"new"_s);
    kept.commit();
    EXPECT_EQ(onDisk(u"myc.mdb"_s), (QStringList{u"2"_s, u"3"_s, u"new"_s}));

    {
        const Transaction left(*database);
        database->Execute(u"delete from myc"_s);
    }
    EXPECT_EQ(database->OpenRecordset(u"myc"_s)->RecordCount(), 3);
    {
        const Transaction closed(*database);
        database->Execute(u"delete from myc"_s);
        database->Close();
    }
    EXPECT_EQ(onDisk(u"myc.mdb"_s).size(), 3);
}

TEST_F(JetEngineTest, AFailedStatementKeepsTheRestOfItsTransaction)
{
    makeStore(u"myc.mdb"_s, StoreCompare::Text,
              {.name = u"myc"_s,
               .columns = {{.name = u"index"_s, .size = 20}},
               .indexes = {{u"index"_s, {u"index"_s}, true, false}}},
              {{u"1"_s}});
    const auto database = open(u"myc.mdb"_s);
    const auto records = database->OpenRecordset(u"myc"_s);
    addNote(*records, u"2"_s);
    EXPECT_EQ(errorOf([&] { addNote(*records, u"1"_s); }), 3022);
    addNote(*records, u"3"_s);
    engine.commitAll();
    EXPECT_EQ(onDisk(u"myc.mdb"_s), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
}

/// Runs an action in a child process; the action ends with a kill that lets nothing tidy up.
void runKilled(const std::function<void()>& action)
{
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            action();
        } catch (...) {
        }
        ::_exit(1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child failed before it was killed";
}

TEST_F(JetEngineTest, AKillBetweenDeleteAndUpdateLeavesTheOldNotes)
{
    // Enough rows that pages are written to the file before the commit.
    make(u"myc.mdb"_s, {}, 20000);
    const QStringList before = onDisk(u"myc.mdb"_s);
    for (const bool explicitly : {false, true}) {
        SCOPED_TRACE(explicitly);
        runKilled([&] {
            const auto database = open(u"myc.mdb"_s);
            if (explicitly)
                database->BeginTrans();
            database->Execute(u"delete * from myc"_s);
            const auto records = database->OpenRecordset(u"myc"_s);
            for (int i = 0; i < 50; ++i) {
                records->AddNew();
                records->Fields(u"글").setValue(QString(2000, u'가'));
                records->Update();
            }
            ::kill(::getpid(), SIGKILL);
        });
        const auto database = open(u"myc.mdb"_s);
        EXPECT_TRUE(columnOf(*database->OpenRecordset(u"myc"_s), u"index") == before);
        database->Close();
    }
}

TEST_F(JetEngineTest, CompactionKeepsOrderValuesAndPassword)
{
    make(u"myc.mdb"_s, u"pw"_s, 500);
    {
        const auto database = open(u"myc.mdb"_s, u";pwd=pw"_s);
        database->Execute(u"delete from myc where index like '?'"_s);
        addNote(*database->OpenRecordset(u"myc"_s), u"0"_s);
        addNote(*database->OpenRecordset(u"myc"_s), u""_s);
    }
    const QStringList rows = rawRows(path(u"myc.mdb"_s), "SELECT * FROM myc ORDER BY rowid");
    engine.CompactDatabase(u"myc.mdb"_s, u"copy.mdb"_s, u""_s, u";pwd=pw"_s);
    engine.CompactDatabase(u"myc.mdb"_s, u"other.mdb"_s, u";LANGID=0x0412;pwd=new"_s, u"pw"_s);
    for (const QString& copy : {u"copy.mdb"_s, u"other.mdb"_s})
        EXPECT_EQ(rawRows(path(copy), "SELECT * FROM myc ORDER BY rowid"), rows);
    EXPECT_EQ(errorOf([&] { open(u"copy.mdb"_s, u";pwd=new"_s); }), 3031);
    EXPECT_EQ(errorOf([&] { open(u"copy.mdb"_s, u";pwd=pw"_s); }), 0);
    EXPECT_EQ(errorOf([&] { open(u"other.mdb"_s, u";pwd=pw"_s); }), 3031);
    EXPECT_EQ(errorOf([&] { open(u"other.mdb"_s, u";pwd=new"_s); }), 0);
    EXPECT_EQ(files(), (QStringList{u"copy.mdb"_s, u"myc.mdb"_s, u"other.mdb"_s}));
    EXPECT_EQ(QFile(path(u"copy.mdb"_s)).permissions(), QFile(path(u"myc.mdb"_s)).permissions());
}

TEST_F(JetEngineTest, CompactionRefusesWhatItCannotDo)
{
    make(u"myc.mdb"_s, u"pw"_s);
    make(u"there.mdb"_s);
    const auto compact = [&](const QString& from, const QString& to, const QString& password) {
        return errorOf([&] { engine.CompactDatabase(from, to, {}, password); });
    };
    EXPECT_EQ(compact(u"none.mdb"_s, u"copy.mdb"_s, {}), 3024);
    EXPECT_EQ(compact(u"myc.mdb"_s, u"there.mdb"_s, u";pwd=pw"_s), 3204);
    EXPECT_EQ(compact(u"myc.mdb"_s, u"copy.mdb"_s, {}), 3031);
    EXPECT_EQ(compact(u"myc.mdb"_s, u"copy.mdb"_s, u";pwd=x"_s), 3031);
    EXPECT_EQ(compact(u"myc.mdb"_s, path(u"no/folder/copy.mdb"_s), u";pwd=pw"_s), 3183);
    engine.setDefaultPassword(u"pw"_s);
    {
        const auto database = open(u"myc.mdb"_s, u";pwd=pw"_s);
        EXPECT_EQ(compact(u"myc.mdb"_s, u"copy.mdb"_s, {}), 3356);
    }
    EXPECT_EQ(files(), (QStringList{u"myc.mdb"_s, u"there.mdb"_s}));
    EXPECT_EQ(compact(u"myc.mdb"_s, u"copy.mdb"_s, {}), 0);
}

/// Stands in for a full disc: files of this process can't grow beyond a size.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes)
    {
        // The signal that tells of a write beyond the limit would end the process.
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const struct rlimit small
        {
            static_cast<rlim_t>(bytes), m_old.rlim_max
        };
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_old); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    struct rlimit m_old
    {
    };
};

class FullDiscTest : public JetEngineTest
{
protected:
    void SetUp() override
    {
        make(u"myc.mdb"_s, {}, 3000);
        before = onDisk(u"myc.mdb"_s);
    }

    void TearDown() override
    {
        EXPECT_EQ(files(), QStringList{u"myc.mdb"_s});
        EXPECT_TRUE(onDisk(u"myc.mdb"_s) == before);
    }

    qint64 size() const { return QFile(path(u"myc.mdb"_s)).size(); }

    static void addLongNote(Recordset& records)
    {
        records.AddNew();
        records.Fields(u"글").setValue(QString(100000, u'가'));
        records.Update();
    }

    QStringList before;
};

TEST_F(FullDiscTest, ACompactCopyThatDoesNotFitLeavesNothing)
{
    const FileSizeLimit limit(size() / 2);
    EXPECT_EQ(errorOf([&] { engine.CompactDatabase(u"myc.mdb"_s, u"copy.mdb"_s); }), 3183);
}

TEST_F(FullDiscTest, ATransactionThatDoesNotFitIsUndone)
{
    const auto database = open(u"myc.mdb"_s);
    const auto records = database->OpenRecordset(u"myc"_s);
    const FileSizeLimit limit(size() + 8192);
    EXPECT_EQ(errorOf([&] {
                  database->BeginTrans();
                  database->Execute(u"delete from myc where index like '1?'"_s);
                  addLongNote(*records);
                  database->CommitTrans();
              }),
              3183);
    engine.rollbackAll();
    EXPECT_EQ(database->OpenRecordset(u"myc"_s)->RecordCount(), before.size());
}

TEST_F(FullDiscTest, TheWindowIsToldWhenTheEventLoopCannotCommit)
{
    int reported = 0;
    engine.setCommitFailed([&](const JetError& error) { reported = error.number(); });
    const auto database = open(u"myc.mdb"_s);
    const auto records = database->OpenRecordset(u"myc"_s);
    addLongNote(*records);
    {
        const FileSizeLimit limit(size() + 8192);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(reported, 3183);
    EXPECT_EQ(records->RecordCount(), before.size());
    records->MoveLast();
    EXPECT_EQ(Text(records->Fields(u"index")), before.last());
}

} // namespace

} // namespace lumen
