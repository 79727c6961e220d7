// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

// Runs the program itself, as a user does at a terminal.
class BuildProgramTest : public testing::Test
{
protected:
    int run(const QStringList& args)
    {
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start(QCoreApplication::applicationDirPath() + u"/lumen-modules"_s, args);
        EXPECT_TRUE(program.waitForFinished());
        output = QString::fromUtf8(program.readAll());
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }
    int build(const QStringList& more = {})
    {
        return run(QStringList{u"build"_s, u"--source"_s, files.path(u"mine"_s), u"--only"_s,
                               u"901"_s, u"--out"_s, files.path(u"Data"_s)} +
                   more);
    }
    void verses(QStringView text)
    {
        files.write(u"mine/901 나의 역본/rut.usfm"_s, u"\\id RUT\n\\c 1\n"_s + text.toString());
    }
    int rows() const
    {
        return storeRows(files.path(u"Data/901.dts"_s), u"select count(Cont) from [나의 역본]"_s)
            .at(0)
            .at(0)
            .toInt();
    }

    SourceFiles files;
    QString output;
};

TEST_F(BuildProgramTest, ALossEndsWithAFailureUntilItIsAccepted)
{
    verses(u"\\v 1 one\n\\v 2 two");
    EXPECT_EQ(build(), 0) << output.toStdString();
    EXPECT_EQ(rows(), 2);
    verses(u"\\v 1 one");
    EXPECT_EQ(build(), 1);
    EXPECT_EQ(build({u"--force"_s}), 1);
    EXPECT_TRUE(output.contains(u"901 나의 역본: 만들지 못했습니다."_s)) << output.toStdString();
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(build({u"--accept-loss"_s}), 0) << output.toStdString();
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(build({u"--jobs"_s, u"0"_s}), 2);
}

TEST_F(BuildProgramTest, ChecksFindAChangedLetterAndBuildingTakesLeftoversAway)
{
    verses(u"\\v 1 one");
    ASSERT_EQ(build(), 0);
    const QString module = files.path(u"Data/901.dts"_s);
    EXPECT_EQ(run({u"check"_s, module}), 0) << output.toStdString();
    ASSERT_TRUE(changeLetter(module, u"one"_s));
    EXPECT_EQ(run({u"check"_s, module}), 1);
    QProcess ended;
    ended.start(u"true"_s, QStringList());
    ended.waitForStarted();
    const QString dead = u"Data/.902.dts.new-%1-0"_s.arg(ended.processId());
    ended.waitForFinished();
    const QString alive = u"Data/.902.dts.new-%1-0"_s.arg(QCoreApplication::applicationPid());
    files.write(dead, u"x"_s);
    files.write(alive, u"x"_s);
    EXPECT_EQ(build(), 0) << output.toStdString();
    EXPECT_EQ(run({u"check"_s, module}), 0);
    EXPECT_FALSE(QFile::exists(files.path(dead)));
    EXPECT_TRUE(QFile::exists(files.path(alive)));
}

} // namespace
} // namespace lumen
