// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/settings.h"
#include "support/test_services.h"
#include "support/tiny_data.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QProcessEnvironment>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPatience = 30000; // milliseconds, for a process that never answers

/// The real program on a Data folder of its own, without a display.
class ProgramTest : public testing::Test
{
protected:
    ProgramTest()
    {
        environment.insert(u"LUMENSCRIPT_HOME"_s, services.folders.program());
        environment.insert(u"LUMENSCRIPT_DEBUG"_s, u"1"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    }

    void start(QProcess& program)
    {
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QStringLiteral(LUMENSCRIPT_PROGRAM), QStringList());
        ASSERT_TRUE(program.waitForStarted(kPatience));
    }

    /// Waits for the first chapter.
    bool showsAChapter(QProcess& program)
    {
        QByteArray output;
        QElapsedTimer timer;
        timer.start();
        while (!output.contains("first chapter shown") && timer.elapsed() < kPatience &&
               program.waitForReadyRead(kPatience))
            output += program.readAll();
        return output.contains("first chapter shown");
    }

    static void kill(QProcess& program)
    {
        program.kill();
        ASSERT_TRUE(program.waitForFinished(kPatience));
    }

    QByteArray settings() const
    {
        QFile file(settingsFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TestServices services;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(ProgramTest, AKilledProgramLeavesTheLastCompleteSettings)
{
    const TinyData data(services);
    RegistryStore stored(settingsFile());
    stored.OpenKey(settingsPath(settings_key::kBible));
    stored.SetValue(u"BookNum"_s, u"42"_s, ValueKind::Integer);
    stored.SetValue(u"ChapNum"_s, u"2"_s, ValueKind::Integer);
    ASSERT_TRUE(stored.flush());
    const QByteArray before = settings();

    QString halfWritten = services.folders.data(u"none"_s);
    for (int round = 0; round < 2; ++round) {
        QProcess program;
        start(program);
        EXPECT_TRUE(showsAChapter(program)) << "the lock of the killed program is no obstacle";
        EXPECT_FALSE(QFile::exists(halfWritten)) << "swept at the start";
        halfWritten = services.folders.data(u".myc.mdb.new-%1-0"_s.arg(program.processId()));
        ASSERT_TRUE(services.files.writeAll(halfWritten, "half"));
        kill(program);
        EXPECT_EQ(settings(), before);
    }
}

TEST_F(ProgramTest, EndedByTheSessionItSavesAsAtAnyOtherEnd)
{
    const TinyData data(services);
    QProcess program;
    start(program);
    ASSERT_TRUE(showsAChapter(program));
    program.terminate();
    ASSERT_TRUE(program.waitForFinished(kPatience));
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_TRUE(settings().contains("ViewMode=1"));
    EXPECT_TRUE(QFile::exists(services.folders.root() + u"/OrvaneBackup/myc.mdb"_s));
}

TEST_F(ProgramTest, KilledAtAnyMomentOfTheFirstStartTheNextOneWorks)
{
    { // one version and none of the user databases
        const TinyData data(services);
        QDir folder(services.folders.data({}));
        for (const QString& file : folder.entryList({u"*.mdb"_s, u"예화.dts"_s, u"z199.dts"_s}))
            folder.remove(file);
    }
    for (int milliseconds = 0; milliseconds <= 120; milliseconds += 12) {
        SCOPED_TRACE(milliseconds);
        QProcess program;
        start(program);
        program.waitForFinished(milliseconds); // it does not finish: it is killed where it is
        kill(program);
    }
    QProcess program;
    start(program);
    EXPECT_TRUE(showsAChapter(program));
    kill(program);

    for (const QString& file : {u"myc.mdb"_s, u"설교매니저.mdb"_s, u"qt.mdb"_s, u"z199.dts"_s}) {
        SCOPED_TRACE(file.toStdString());
        const auto database = services.jet.OpenDatabase(u"C:\\lumenscript\\Data\\"_s + file, false,
                                                        true, u";pwd=qolvetrinam"_s);
        EXPECT_GE(database->TableDefs().Count(), 2) << "its own table and that of the engine";
    }
}

} // namespace
} // namespace lumen
