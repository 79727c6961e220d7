// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/compact_and_backup.h"
#include "data/data_store.h"
#include "data/leftovers.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "jet/import/import_talk.h"
#include "support/jet_header_maker.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class DataStoreTest : public testing::Test
{
protected:
    void create()
    {
        ASSERT_TRUE(createUserDatabases(services.state.AppPath, services.files, services.drives,
                                        QDate(2003, 5, 1)));
    }

    static QString path(const QString& name) { return u"C:\\lumenscript\\Data\\"_s + name; }
    static QString backup(const QString& name) { return u"C:\\OrvaneBackup\\"_s + name; }

    std::unique_ptr<Database> open(const QString& file, const QString& connect = {})
    {
        return services.jet.OpenDatabase(file, false, false, connect);
    }

    // Adds a note and gives the notes that a file holds.
    void addNote(const QString& text)
    {
        const auto database = open(path(u"myc.mdb"_s));
        const auto notes = database->OpenRecordset(u"select * from myc"_s);
        notes->AddNew();
        notes->Fields(u"Index").setValue(u"창1:1"_s);
        notes->Fields(u"seq").setValue(notes->RecordCount());
        notes->Fields(u"note").setValue(text);
        notes->Update();
        notes->Close();
        database->Close();
    }
    QStringList notes(const QString& file)
    {
        QStringList result;
        const auto database = open(file);
        const auto rows = database->OpenRecordset(u"select * from myc order by seq"_s);
        while (!rows->Eof()) {
            result << Text(rows->Fields(u"note"));
            rows->MoveNext();
        }
        return result;
    }
    QByteArray bytes(const QString& file)
    {
        const Result<QByteArray> read = services.files.readAll(file);
        return read ? read.value() : QByteArray();
    }
    void closeProgram(const UserFile& file)
    {
        CompactAndBackup(services.state.AppPath, file, services.jet, services.files);
    }

    TestServices services;
};

TEST_F(DataStoreTest, AFirstStartMakesEveryUserDatabase)
{
    create();
    struct Row
    {
        QString file;
        QString table;
        QString connect;
        QStringList columns;
        int rows;
    };
    const QString password = u";uid=admin;pwd=qolvetrinam"_s;
    const Row rows[] = {
        {u"myc.mdb"_s, u"myc"_s, {}, {u"Index"_s, u"seq"_s, u"note"_s}, 0},
        {u"설교매니저.mdb"_s,
         u"설교"_s,
         {},
         {u"일련번호"_s, u"제목"_s, u"분류"_s, u"설교일"_s, u"작성일"_s, u"말씀"_s, u"본문"_s,
          u"기도"_s, u"요약"_s, u"rtf제목"_s, u"rtf말씀"_s, u"rtf본문"_s, u"rtf기도"_s,
          u"rtf요약"_s},
         1},
        {u"QT.mdb"_s,
         u"QT"_s,
         {},
         {u"일련번호"_s, u"제목"_s, u"분류"_s, u"작성일"_s, u"말씀"_s, u"본문"_s, u"기도"_s,
          u"적용"_s, u"rtf제목"_s, u"rtf말씀"_s, u"rtf본문"_s, u"rtf기도"_s, u"rtf적용"_s},
         1},
        {u"전자우편주소록.mdb"_s,
         u"전자우편주소록"_s,
         {},
         {u"ID"_s, u"성명"_s, u"전자우편"_s, u"메모"_s},
         0},
        {u"예화.dts"_s, u"예화"_s, password, {u"num"_s, u"Title"_s, u"Category"_s, u"cont"_s}, 0},
        {u"z199.dts"_s, u"Table0"_s, password, {u"Index"_s}, 0},
        {u"z199.dts"_s, u"Table10"_s, password, {u"Index"_s}, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.file + u' ' + row.table).toStdString());
        const auto database = open(path(row.file), row.connect);
        const auto records = database->OpenRecordset(u"select * from "_s + row.table);
        QStringList columns;
        for (int i = 0; i < records->FieldCount(); ++i)
            columns << records->Fields(i).Name();
        EXPECT_EQ(columns, row.columns);
        EXPECT_EQ(records->RecordCount(), row.rows);
    }
    EXPECT_THROW(open(path(u"예화.dts"_s)), JetError) << "the module password is set";
    EXPECT_THROW(open(path(u"z199.dts"_s)), JetError);
}

TEST_F(DataStoreTest, OneFileThatCantBeMadeLeavesTheOthers)
{
    QDir(services.folders.data({})).mkpath(u"qt.mdb"_s);
    EXPECT_FALSE(createUserDatabases(services.state.AppPath, services.files, services.drives,
                                     QDate(2003, 5, 1)));
    EXPECT_TRUE(services.files.FileExists(path(u"myc.mdb"_s)));
    EXPECT_TRUE(services.files.FileExists(path(u"z199.dts"_s)));
}

TEST_F(DataStoreTest, ClosingCompactsAndKeepsTwoGenerations)
{
    create();
    // Long notes that are deleted again leave room that only a compaction gives back.
    addNote(QString(400000, u'x'));
    open(path(u"myc.mdb"_s))->Execute(u"delete * from myc"_s);
    addNote(u"첫째"_s);
    const qsizetype before = bytes(path(u"myc.mdb"_s)).size();
    closeProgram(user_file::kNotes);
    EXPECT_LT(bytes(path(u"myc.mdb"_s)).size(), before - 300000) << "the file was compacted";
    EXPECT_FALSE(services.files.FileExists(path(u"mycc.mdb"_s)));
    EXPECT_EQ(notes(backup(u"myc.mdb"_s)), QStringList{u"첫째"_s});
    EXPECT_FALSE(services.files.FileExists(backup(u"mycbak.mdb"_s)));

    addNote(u"둘째"_s);
    closeProgram(user_file::kNotes);
    EXPECT_EQ(notes(path(u"myc.mdb"_s)), (QStringList{u"첫째"_s, u"둘째"_s}));
    EXPECT_EQ(notes(backup(u"myc.mdb"_s)), (QStringList{u"첫째"_s, u"둘째"_s}));
    EXPECT_EQ(notes(backup(u"mycbak.mdb"_s)), QStringList{u"첫째"_s});

    addNote(u"셋째"_s);
    closeProgram(user_file::kNotes);
    EXPECT_EQ(notes(backup(u"mycbak.mdb"_s)), (QStringList{u"첫째"_s, u"둘째"_s}));
}

TEST_F(DataStoreTest, CompactionKeepsThePasswordOfIllustrations)
{
    create();
    closeProgram(user_file::kIllustrations);
    for (const QString& file : {path(u"예화.dts"_s), backup(u"예화.dts"_s)}) {
        EXPECT_THROW(open(file), JetError) << file.toStdString();
        EXPECT_NO_THROW(open(file, u";pwd=qolvetrinam"_s)) << file.toStdString();
    }
    for (const UserFile& file : {user_file::kSermons, user_file::kQuietTime, user_file::kAddresses})
        closeProgram(file);
    EXPECT_TRUE(services.files.FileExists(backup(u"설교매니저.mdb"_s)));
    EXPECT_TRUE(services.files.FileExists(backup(u"QT.mdb"_s)));
    EXPECT_TRUE(services.files.FileExists(backup(u"전자우편주소록.mdb"_s)));
    EXPECT_EQ(QDir(services.folders.data({})).entryList(QDir::Files).size(), 6)
        << "no compact copy is left";
}

TEST_F(DataStoreTest, AFailedCompactionLeavesTheFileAsItWas)
{
    create();
    addNote(u"내 주석"_s);
    ASSERT_TRUE(services.files.writeAll(path(u"mycc.mdb"_s), "left over from a crash"));
    // Someone still has the file open: it can't be compacted.
    const auto still = open(path(u"myc.mdb"_s));
    closeProgram(user_file::kNotes);
    still->Close();
    EXPECT_EQ(notes(path(u"myc.mdb"_s)), QStringList{u"내 주석"_s});
    EXPECT_EQ(notes(backup(u"myc.mdb"_s)), QStringList{u"내 주석"_s})
        << "the backup doesn't hang on the compaction";
}

TEST_F(DataStoreTest, DamageNeverReachesTheBackupsHoweverOftenTheProgramEnds)
{
    create();
    addNote(u"첫째"_s);
    closeProgram(user_file::kNotes);
    addNote(u"둘째"_s);
    closeProgram(user_file::kNotes);
    ASSERT_TRUE(services.files.writeAll(path(u"bmk.bmf"_s), "a\r\n"));
    closeProgram(user_file::kBookmarks);

    const QByteArray sound = bytes(path(u"myc.mdb"_s));
    QByteArray cut = sound;
    cut.replace(100, 600, QByteArray(600, 'x')); // behind the head of the first page
    for (const QByteArray& damaged :
         {QByteArray("no database"), QByteArray(), cut, sound.left(3000)}) {
        ASSERT_TRUE(services.files.writeAll(path(u"myc.mdb"_s), damaged));
        ASSERT_TRUE(services.files.writeAll(path(u"bmk.bmf"_s), QByteArray(8, '\0')));
        for (int end = 0; end < 3; ++end) {
            closeProgram(user_file::kNotes);
            closeProgram(user_file::kBookmarks);
        }
        EXPECT_EQ(bytes(path(u"myc.mdb"_s)), damaged);
        EXPECT_EQ(notes(backup(u"myc.mdb"_s)), (QStringList{u"첫째"_s, u"둘째"_s}));
        EXPECT_EQ(notes(backup(u"mycbak.mdb"_s)), QStringList{u"첫째"_s});
        EXPECT_EQ(bytes(backup(u"bmk.bmf"_s)), "a\r\n");
    }

    // A backup that was damaged itself doesn't push out the sound one before it.
    ASSERT_TRUE(services.files.writeAll(backup(u"myc.mdb"_s), "damaged"));
    ASSERT_TRUE(services.files.writeAll(path(u"myc.mdb"_s), sound));
    closeProgram(user_file::kNotes);
    EXPECT_EQ(notes(backup(u"myc.mdb"_s)), (QStringList{u"첫째"_s, u"둘째"_s}));
    EXPECT_EQ(notes(backup(u"mycbak.mdb"_s)), QStringList{u"첫째"_s});
}

// Says that it has copied a backup when something else lies there.
class LyingDisc : public QtFileSystem
{
public:
    LyingDisc(TestServices& services, QByteArray content)
        : QtFileSystem(services.drives, services.jet), m_content(std::move(content))
    {
    }
    Result<Done> CopyFile(const QString& from, const QString& to) override
    {
        if (!to.contains(u"OrvaneBackup"))
            return QtFileSystem::CopyFile(from, to);
        return writeAll(to, m_content);
    }

private:
    QByteArray m_content;
};

TEST_F(DataStoreTest, ABackupThatCantBeReadBackDoesNotReplaceTheFormerOne)
{
    create();
    const QByteArray empty = bytes(path(u"myc.mdb"_s));
    addNote(u"첫째"_s);
    closeProgram(user_file::kNotes);
    addNote(u"둘째"_s);
    closeProgram(user_file::kNotes);
    addNote(u"셋째"_s);
    for (const QByteArray& content : {bytes(path(u"myc.mdb"_s)).left(9000), empty}) {
        LyingDisc disc(services, content);
        EXPECT_NE(CompactAndBackup(services.state.AppPath, user_file::kNotes, services.jet, disc),
                  u"");
        EXPECT_EQ(notes(backup(u"myc.mdb"_s)), (QStringList{u"첫째"_s, u"둘째"_s}));
        EXPECT_EQ(notes(backup(u"mycbak.mdb"_s)), QStringList{u"첫째"_s});
        EXPECT_FALSE(services.files.FileExists(backup(u"mycc.mdb"_s)));
        EXPECT_EQ(notes(path(u"myc.mdb"_s)).size(), 3);
    }
}

TEST_F(DataStoreTest, AFileThatAnotherProgramHoldsIsNotLost)
{
    create();
    addNote(u"첫째"_s);
    closeProgram(user_file::kNotes);
    sqlite3* other = nullptr;
    const QByteArray file = services.folders.data(u"myc.mdb"_s).toUtf8();
    ASSERT_EQ(sqlite3_open(file.constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_FALSE(
        findLostFile(services.state.AppPath, user_file::kNotes, services.jet, services.files));
    sqlite3_close(other);
}

// Ends an import as soon as it is asked.
class ImpatientUser : public ImportTalk
{
public:
    bool takesIncomplete(const QString&, const QStringList&) override { return false; }
    void isReadOnly(const QString&, const QStringList&) override {}
    bool goesOn(const QString&, qint64) override
    {
        ++imports;
        return false;
    }
    void ended() override {}

    int imports = 0;
};

TEST_F(DataStoreTest, OnlyDamageKeepsAGenuineFileFromBeingTakenForSound)
{
    ASSERT_TRUE(services.files.writeAll(path(u"myc.mdb"_s),
                                        JetHeaderMaker(1).jet4Password({}, 38143).page()));
    ImportOptions options;
    ImpatientUser user;
    options.talk = &user;
    options.importProgram = services.folders.root() + u"/import.sh"_s;
    struct Case
    {
        const char* what;
        QByteArray commands;
        bool damaged;
    };
    for (const Case& each :
         {Case{"damaged", "exit 3", true}, Case{"no room for the new file", "exit 5", false},
          Case{"ended by the user", "exec sleep 60", false}}) {
        SCOPED_TRACE(each.what);
        ASSERT_TRUE(services.files.writeAll(options.importProgram, "#!/bin/sh\n" + each.commands));
        QFile::setPermissions(options.importProgram,
                              QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
        JetEngine jet(services.drives, filePolicy, options);
        EXPECT_EQ(findLostFile(services.state.AppPath, user_file::kNotes, jet, services.files)
                      .has_value(),
                  each.damaged);
    }
    JetEngine jet(services.drives, filePolicy, options);
    user.imports = 0;
    EXPECT_EQ(CompactAndBackup(services.state.AppPath, user_file::kNotes, jet, services.files),
              u"");
    EXPECT_EQ(user.imports, 1) << "what the user has ended isn't begun again";
    EXPECT_FALSE(services.files.FileExists(backup(u"myc.mdb"_s)));
}

TEST_F(DataStoreTest, TheNewestSoundBackupComesBackAndTheFaultyFileIsKept)
{
    const auto lost = [this](const UserFile& file) {
        return findLostFile(services.state.AppPath, file, services.jet, services.files);
    };
    create();
    EXPECT_FALSE(lost(user_file::kNotes));
    EXPECT_FALSE(lost(user_file::kBookmarks)) << "never there, never backed up";
    addNote(u"첫째"_s);
    closeProgram(user_file::kNotes);
    closeProgram(user_file::kNotes);
    ASSERT_TRUE(services.files.writeAll(backup(u"myc.mdb"_s), "damaged too"));
    ASSERT_TRUE(services.files.writeAll(path(u"myc.mdb"_s), "damaged"));
    ASSERT_TRUE(services.files.writeAll(path(u"myc.mdb-journal"_s), "of the damaged one"));
    ASSERT_TRUE(services.files.writeAll(path(u"myc.mdb.damaged"_s), "damaged earlier"));
    const auto notesLost = lost(user_file::kNotes);
    ASSERT_TRUE(notesLost);
    ASSERT_TRUE(restoreBackup(*notesLost, services.files));
    EXPECT_EQ(notes(path(u"myc.mdb"_s)), QStringList{u"첫째"_s});
    EXPECT_EQ(bytes(path(u"myc.mdb.damaged"_s)), "damaged earlier");
    EXPECT_EQ(bytes(path(u"myc.mdb.damaged-2"_s)), "damaged");
    EXPECT_FALSE(lost(user_file::kNotes));

    QFile::remove(services.folders.data(u"myc.mdb"_s));
    ASSERT_TRUE(lost(user_file::kNotes));
    EXPECT_EQ(lost(user_file::kNotes)->fault, LostFile::Fault::Gone);

    ASSERT_TRUE(services.files.writeAll(path(u"bmk.bmf"_s), "a\r\n"));
    closeProgram(user_file::kBookmarks);
    ASSERT_TRUE(services.files.writeAll(path(u"bmk.bmf"_s), ""));
    ASSERT_TRUE(lost(user_file::kBookmarks));
    EXPECT_EQ(lost(user_file::kBookmarks)->fault, LostFile::Fault::Emptied);
    closeProgram(user_file::kBookmarks); // the user has taken the last one away
    EXPECT_FALSE(lost(user_file::kBookmarks));
}

TEST_F(DataStoreTest, BookmarksAreBackedUpOnlyWhenThereAreAny)
{
    closeProgram(user_file::kBookmarks);
    EXPECT_FALSE(services.files.FileExists(backup(u"bmk.bmf"_s)));
    ASSERT_TRUE(services.files.writeAll(path(u"bmk.bmf"_s), "1"));
    closeProgram(user_file::kBookmarks);
    ASSERT_TRUE(services.files.writeAll(path(u"bmk.bmf"_s), "2"));
    closeProgram(user_file::kBookmarks);
    EXPECT_EQ(bytes(backup(u"bmk.bmf"_s)), "2");
    EXPECT_EQ(bytes(backup(u"bmkbak.bmf"_s)), "1");
    QFile::remove(services.folders.data(u"bmk.bmf"_s));
    closeProgram(user_file::kBookmarks);
    EXPECT_EQ(bytes(backup(u"bmkbak.bmf"_s)), "1") << "a lost file doesn't cost a generation";
}

TEST_F(DataStoreTest, AStartTakesAwayWhatAKillLeftOfItsOwnFilesAndNothingElse)
{
    create();
    QProcess ended;
    ended.start(u"true"_s, QStringList());
    ASSERT_TRUE(ended.waitForStarted());
    const QString dead = QString::number(ended.processId());
    ended.waitForFinished();
    const QString alive = QString::number(QCoreApplication::applicationPid());
    struct Case
    {
        QString name; // below the drive's root
        bool goes;
    };
    const QString data = u"lumenscript/Data/"_s;
    const std::vector<Case> cases{
        {data + u".myc.mdb.new-%1-0"_s, true},
        {data + u".MYC.mdb.new-%1-12"_s, true},
        {data + u".myc.mdb.damaged-2.new-%1-0"_s, true},
        {data + u".설교매니저c.mdb.new-%1-0-journal"_s, true},
        {data + u"..lumenscript.trial.new-%1-0"_s, true},
        {u"OrvaneBackup/.bmkbak.bmf.new-%1-0"_s, true},
        {u"elsewhere/.linked.bmf.new-%1-0"_s, true},
        {u"config/.settings.new-%1-0"_s, true},
        {data + u".myc.mdb.new-"_s + alive + u"-0"_s, false},
        {data + u".sermons.mdb.new-%1-0"_s, false},
        {data + u".myc.mdb.new-%1"_s, false},
        {data + u".myc.mdb.new-%1-0.txt"_s, false},
        {data + u"myc.mdb.new-%1-0"_s, false},
        {u"config/.bmk.bmf.new-%1-0"_s, false},
    };
    const QDir root(services.folders.root());
    for (const QString& folder : {u"OrvaneBackup"_s, u"elsewhere"_s, u"config"_s})
        root.mkpath(folder);
    ASSERT_TRUE(services.files.writeAll(root.filePath(u"elsewhere/linked.bmf"_s), "창1:1\r\n"));
    ASSERT_TRUE(
        QFile::link(root.filePath(u"elsewhere/linked.bmf"_s), services.folders.data(u"bmk.bmf"_s)));
    const auto native = [&](const Case& each) {
        return root.filePath(each.name.contains(u"%1") ? each.name.arg(dead) : each.name);
    };
    for (const Case& each : cases)
        ASSERT_TRUE(services.files.writeAll(native(each), "half"));

    removeUserLeftovers(services.state.AppPath, root.filePath(u"config/settings"_s),
                        services.drives);

    for (const Case& each : cases)
        EXPECT_EQ(QFile::exists(native(each)), !each.goes) << each.name.toStdString();
    EXPECT_TRUE(services.files.FileExists(path(u"myc.mdb"_s)));
}

} // namespace
} // namespace lumen
