// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/confined_process.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

class ConfinedProcessTest : public testing::Test
{
protected:
    void run(const QString& shellCommands, ProcessLimits::Files files)
    {
        process.setWorkingDirectory(folder.path());
        confine(process, {1, files});
        process.start(u"/bin/sh"_s, {u"-c"_s, shellCommands});
        EXPECT_TRUE(process.waitForFinished(-1));
    }
    qint64 written() const { return QFileInfo(folder.filePath(u"made"_s)).size(); }

    QTemporaryDir folder;
    QProcess process;
};

TEST_F(ConfinedProcessTest, WhatNeverEndsIsEnded)
{
    run(u"while :; do :; done"_s, ProcessLimits::Files::Writes);
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
}

TEST_F(ConfinedProcessTest, OnlyWhoMayWriteWrites)
{
    run(u"echo text > made"_s, ProcessLimits::Files::WritesNone);
    EXPECT_EQ(written(), 0);
    run(u"echo text > made"_s, ProcessLimits::Files::Writes);
    EXPECT_EQ(written(), 5);
}

TEST_F(ConfinedProcessTest, MemoryHasAnEnd)
{
#ifdef LUMEN_SANITIZE
    GTEST_SKIP() << "the sanitizers need the address space";
#endif
    run(u"ulimit -v"_s, ProcessLimits::Files::Writes);
    EXPECT_NE(process.readAllStandardOutput().trimmed(), "unlimited");
}

} // namespace
} // namespace lumen
