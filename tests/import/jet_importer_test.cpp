// SPDX-License-Identifier: GPL-2.0-or-later
#include "import/import_fixture.h"
#include "jet/engine.h"
#include "jet/import/conversion.h"
#include "jet/import/import_talk.h"
#include "jet/import/jet_header.h"
#include "support/jet_header_maker.h"
#include "support/without_privileges.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// A made-up Jet file: a right header and nothing else.
QByteArray headerOnly(const QString& password = {})
{
    return JetHeaderMaker(1).jet4Password(password, 38143).page();
}

/// Puts a script in the place of the import program: it notes each run and does what the test says
/// with "$5", the source, and "$6", the destination.
class ScriptedImportTest : public ImportTest
{
protected:
    void SetUp() override
    {
        ImportTest::SetUp();
        makeStore(u"whole"_s, false);
        makeStore(u"cut"_s, true);
        options.talk = &talk;
    }
    void makeStore(const QString& name, bool incomplete) const
    {
        StoreWriter writer(rootFile(name), StoreCompare::Text);
        writer.createTable({u"설교"_s, {{.name = u"제목"_s}}});
        writer.addRow(u"설교"_s, {name});
        if (incomplete)
            writer.addOriginLine(u"읽지 못한 행"_s, u"5"_s);
        writer.commit();
    }
    void importRuns(const QByteArray& commands)
    {
        options.importProgram = rootFile(u"import.sh"_s);
        const QByteArray log = rootFile(u"runs"_s).toUtf8();
        writeBytes(options.importProgram,
                   "#!/bin/sh\necho \"$3:$LUMEN_IMPORT_PASSWORD\" >> '" + log + "'\n" + commands);
        EXPECT_EQ(chmod(options.importProgram.toUtf8().constData(), 0755), 0);
    }
    QByteArrayList runs() const
    {
        if (!QFile::exists(rootFile(u"runs"_s)))
            return {};
        return fileBytes(rootFile(u"runs"_s)).trimmed().split('\n');
    }

    /// A copy of a store that is there already, as what the script makes.
    QByteArray copies(const QString& store) const
    {
        return "cp '" + rootFile(store).toUtf8() + "' \"$6\"\n";
    }

    /// Answers as the test says and notes what it was asked and told.
    class ScriptedTalk : public ImportTalk
    {
    public:
        bool takesIncomplete(const QString&, const QStringList& losses) override
        {
            asked << losses.join(u',');
            return answer;
        }
        void isReadOnly(const QString&, const QStringList& losses) override
        {
            told << u'[' + losses.join(u',') + u']';
        }
        bool goesOn(const QString&, qint64) override { return !ends; }
        void ended() override {}

        bool answer = false;
        bool ends = false;
        QStringList asked;
        QStringList told;
    };

    ScriptedTalk talk;
};

QString titleIn(Database& database)
{
    return Text(database.OpenRecordset(u"설교"_s)->Fields(u"제목"));
}

int errorOfWriting(Database& database)
{
    try {
        database.Execute(u"delete * from 설교"_s);
        return 0;
    } catch (const JetError& error) {
        return error.number();
    }
}

TEST_F(ScriptedImportTest, AModuleIsConvertedIntoTheCacheOnceForItsContent)
{
    importRuns(copies(u"whole"_s));
    const QString module = dataFile(u"101.dts"_s);
    writeBytes(module, headerOnly());

    const QString store = opened(module);
    EXPECT_EQ(fileBytes(store), fileBytes(rootFile(u"whole"_s)));
    EXPECT_TRUE(store.startsWith(options.cacheFolder + u'/'));
    EXPECT_EQ(opened(module), store);
    EXPECT_EQ(runs(), QByteArrayList{"binary:"});
    EXPECT_EQ(fileBytes(module), headerOnly());

    writeBytes(module, headerOnly() + QByteArray(4096, 'x'));
    const QString newStore = opened(module);
    EXPECT_NE(newStore, store);
    EXPECT_EQ(runs().size(), 2);
    EXPECT_FALSE(QFile::exists(store)) << "the store of the former content is of no use";
}

TEST_F(ScriptedImportTest, AUserDatabaseIsReplacedAndItsOriginalKept)
{
    importRuns(copies(u"whole"_s));
    const QString decomposed = u"예화.dts"_s.normalized(QString::NormalizationForm_D);
    const QList<std::pair<QString, QByteArray>> cases{{u"설교매니저bak.mdb"_s, "text:"},
                                                      {u"QT.MDB"_s, "text:"},
                                                      {decomposed, "text:"},
                                                      {u"z199.dts"_s, "binary:"}};
    for (const auto& [name, run] : cases) {
        SCOPED_TRACE(qPrintable(name));
        const QString path = dataFile(name);
        writeBytes(path, headerOnly());
        EXPECT_EQ(opened(path), path);
        EXPECT_EQ(fileBytes(path), fileBytes(rootFile(u"whole"_s)));
        EXPECT_EQ(fileBytes(path + u".jet"_s), headerOnly());
        EXPECT_EQ(runs().last(), run);
        EXPECT_EQ(opened(path), path);
    }
    EXPECT_EQ(runs().size(), cases.size()) << "a store is not converted again";
    EXPECT_EQ(filesLeft().size(), 2 * cases.size());
}

TEST_F(ScriptedImportTest, AnEarlierOriginalIsNeverOverwritten)
{
    importRuns(copies(u"whole"_s));
    const QString path = dataFile(u"qt.mdb"_s);
    writeBytes(path, headerOnly());
    writeBytes(path + u".jet"_s, "first");
    writeBytes(path + u".2.jet"_s, "second");
    opened(path);
    EXPECT_EQ(fileBytes(path + u".jet"_s), "first");
    EXPECT_EQ(fileBytes(path + u".2.jet"_s), "second");
    EXPECT_EQ(fileBytes(path + u".3.jet"_s), headerOnly());
}

TEST_F(ScriptedImportTest, EveryBadEndOfTheProgramLeavesTheOriginalAlone)
{
    struct Case
    {
        QByteArray commands;
        int error;
    };
    const QList<Case> cases{
        {copies(u"whole"_s) + "exit 3\n", ErrorNumber::kNotADatabase},
        {copies(u"whole"_s) + "exit 4\n", ErrorNumber::kWrongPassword},
        {copies(u"whole"_s) + "exit 5\n", ErrorNumber::kWriteFailed},
        {copies(u"whole"_s) + "exit 77\n", ErrorNumber::kNotADatabase},
        {copies(u"whole"_s) + "kill -SEGV $$\n", ErrorNumber::kNotADatabase},
        {"touch \"$6-journal\" \"$(dirname \"$6\")/.half\"; exit 3\n", ErrorNumber::kNotADatabase},
        {"exit 0\n", ErrorNumber::kNotADatabase}, // all is well, it says, and has made nothing
    };
    for (const QString& name : {u"myc.mdb"_s, u"101.dts"_s}) {
        const QString path = dataFile(name);
        writeBytes(path, headerOnly());
        for (const Case& ending : cases) {
            SCOPED_TRACE(qPrintable(name + u": "_s) + ending.commands.toStdString());
            importRuns(ending.commands);
            EXPECT_EQ(openingError(path), ending.error);
            EXPECT_EQ(fileBytes(path), headerOnly());
            EXPECT_EQ(filesLeft(), QStringList{name});
            QFile::remove(options.importProgram);
        }
        options.importProgram = rootFile(u"absent"_s);
        EXPECT_EQ(openingError(path), ErrorNumber::kNotADatabase);
        QFile::remove(path);
    }
}

TEST_F(ScriptedImportTest, ThePasswordIsComparedBeforeAnythingRuns)
{
    importRuns(copies(u"whole"_s));
    const QString path = dataFile(u"myc.mdb"_s);
    writeBytes(path, headerOnly(u"secret"_s));
    EXPECT_EQ(openingError(path), ErrorNumber::kWrongPassword);
    EXPECT_EQ(openingError(path, u"Secret"_s), ErrorNumber::kWrongPassword);
    EXPECT_EQ(filesLeft(), QStringList{u"myc.mdb"_s});
    EXPECT_TRUE(runs().isEmpty());

    EXPECT_EQ(openingError(path, u"secret"_s), 0);
    EXPECT_EQ(runs(), QByteArrayList{"text:secret"});
}

TEST_F(ScriptedImportTest, AFolderLeftByAKilledImportIsTakenAwayOnceItIsOld)
{
    importRuns(copies(u"whole"_s));
    const QString path = dataFile(u"myc.mdb"_s);
    writeBytes(path, headerOnly());
    const QString stale = dataFile(u".lumen-import-old"_s);
    const QString fresh = dataFile(u".lumen-import-new"_s);
    QDir().mkdir(stale);
    QDir().mkdir(fresh);
    writeBytes(stale + u"/store"_s, "half");
    // Opening a folder as a QFile can't set times, so the shell does.
    ASSERT_EQ(std::system(("touch -d '3 days ago' '" + stale.toUtf8() + "'").constData()), 0);
    opened(path);
    EXPECT_FALSE(QFileInfo::exists(stale));
    EXPECT_TRUE(QFileInfo::exists(fresh)) << "another program may be at work in it";
}

TEST_F(ScriptedImportTest, AFileThatMayNotBeWrittenIsTakenOverWhereItsFolderMay)
{
    importRuns(copies(u"whole"_s));
    const QString path = dataFile(u"설교매니저.mdb"_s);
    writeBytes(path, headerOnly());
    ASSERT_EQ(chmod(path.toUtf8().constData(), 0444), 0);
    for (const QString& folder : {rootFile(u"."_s), dataFile(u"."_s)})
        ASSERT_EQ(chmod(folder.toUtf8().constData(), 0777), 0);
    writeBytes(rootFile(u"runs"_s), {});
    ASSERT_EQ(chmod(rootFile(u"runs"_s).toUtf8().constData(), 0666), 0);
    const NativePaths paths;
    JetEngine engine(paths, filePolicy, options);
    {
        const WithoutPrivileges dropped;
        const auto database = engine.OpenDatabase(path);
        EXPECT_EQ(errorOfWriting(*database), 0);
        database->Close();
        EXPECT_EQ(engine.OpenDatabase(path)->OpenRecordset(u"설교"_s)->RecordCount(), 0);
    }
    EXPECT_EQ(fileBytes(path + u".jet"_s), headerOnly());
    EXPECT_EQ(talk.told, QStringList());
}

TEST_F(ScriptedImportTest, AUserDatabaseInAFolderThatMayNotBeWrittenIsOnlyRead)
{
    importRuns(copies(u"cut"_s));
    const QString path = dataFile(u"설교매니저.mdb"_s);
    writeBytes(path, headerOnly());
    writeBytes(rootFile(u"runs"_s), {});
    ASSERT_EQ(chmod(rootFile(u"runs"_s).toUtf8().constData(), 0666), 0);
    ASSERT_TRUE(QDir().mkpath(options.cacheFolder));
    for (const QString& folder : {rootFile(u"."_s), options.cacheFolder})
        ASSERT_EQ(chmod(folder.toUtf8().constData(), 0777), 0);
    ASSERT_EQ(chmod(dataFile(u"."_s).toUtf8().constData(), 0555), 0);
    const NativePaths paths;
    JetEngine engine(paths, filePolicy, options);
    {
        const WithoutPrivileges dropped;
        const auto database = engine.OpenDatabase(path);
        EXPECT_EQ(titleIn(*database), u"cut"_s);
        EXPECT_EQ(errorOfWriting(*database), ErrorNumber::kReadOnly);
    }
    EXPECT_EQ(fileBytes(path), headerOnly());
    EXPECT_EQ(talk.told, QStringList{u"[읽지 못한 행: 5]"_s});
    ASSERT_EQ(chmod(dataFile(u"."_s).toUtf8().constData(), 0755), 0);
}

TEST_F(ScriptedImportTest, AnIncompleteUserDatabaseTakesThePlaceOnlyWhenTheUserWantsIt)
{
    importRuns(copies(u"cut"_s));
    const QString path = dataFile(u"설교매니저.mdb"_s);
    writeBytes(path, headerOnly());
    const NativePaths paths;
    JetEngine engine(paths, filePolicy, options);

    const auto shown = engine.OpenDatabase(path);
    EXPECT_EQ(titleIn(*shown), u"cut"_s);
    EXPECT_EQ(errorOfWriting(*shown), ErrorNumber::kReadOnly);
    shown->Close();
    // Compacting ends in a copy over the original.
    EXPECT_THROW(engine.CompactDatabase(path, dataFile(u"copy"_s)), JetError);
    EXPECT_EQ(fileBytes(path), headerOnly());
    EXPECT_FALSE(QFile::exists(path + u".jet"_s));

    talk.answer = true;
    const auto taken = engine.OpenDatabase(path);
    EXPECT_EQ(errorOfWriting(*taken), 0);
    EXPECT_EQ(fileBytes(path + u".jet"_s), headerOnly());
    EXPECT_EQ(talk.asked, QStringList(3, u"읽지 못한 행: 5"_s));
}

TEST_F(ScriptedImportTest, TheUserCanEndAnImportThatNeverEnds)
{
    importRuns("exec sleep 1000\n");
    const QString path = dataFile(u"myc.mdb"_s);
    writeBytes(path, headerOnly());
    talk.ends = true;
    EXPECT_EQ(openingError(path), ErrorNumber::kCancelled);
    EXPECT_EQ(fileBytes(path), headerOnly());
    EXPECT_EQ(filesLeft(), QStringList{u"myc.mdb"_s});
}

/// The genuine import program on files that no engine wrote.
using DamagedFileTest = ImportTest;

TEST_F(DamagedFileTest, FilesThatAreNoJetFilesNeverReachTheProgram)
{
    options.importProgram = u"/bin/false"_s;
    EXPECT_EQ(openingError(dataFile(u"absent.mdb"_s)), ErrorNumber::kFileNotFound);
    const QList<QByteArray> contents{"", "x", "SQLite format 3", QByteArray(8192, '\0'),
                                     headerOnly().left(0x60)};
    for (const QByteArray& bytes : contents) {
        SCOPED_TRACE(bytes.left(20).toHex().toStdString());
        const QString path = dataFile(u"myc.mdb"_s);
        writeBytes(path, bytes);
        EXPECT_EQ(openingError(path), ErrorNumber::kNotADatabase);
        EXPECT_EQ(fileBytes(path), bytes);
    }
}

TEST_F(DamagedFileTest, AnythingBehindAValidHeaderEndsInAnErrorAndChangesNothing)
{
    const QString program = importProgram();
    ASSERT_FALSE(program.isEmpty());
    quint32 seed = 20030501;
    const auto random = [&seed](qsizetype count) {
        QByteArray bytes(count, '\0');
        for (char& byte : bytes) {
            seed = seed * 1664525U + 1013904223U;
            byte = static_cast<char>(seed >> 24);
        }
        return bytes;
    };
    for (const int version : {0, 1})
        for (const qsizetype length : {0, 1, 100, 2048, 4096, 20'000, 300'000})
            for (const bool coded : {false, true}) {
                SCOPED_TRACE(testing::Message() << version << ' ' << length << ' ' << coded);
                const QByteArray bytes = JetHeaderMaker(version)
                                             .pageKey(coded ? 77 : 0)
                                             .page()
                                             .left(version ? 4096 : 2048) +
                                         random(length);
                const QString path = dataFile(u"myc.mdb"_s);
                writeBytes(path, bytes);
                EXPECT_EQ(openingError(path), ErrorNumber::kNotADatabase);
                EXPECT_EQ(fileBytes(path), bytes);
                EXPECT_EQ(filesLeft(), QStringList{u"myc.mdb"_s});
            }
}

} // namespace
} // namespace lumen
