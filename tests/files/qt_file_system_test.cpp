// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/qt_file_system.h"
#include "platform/files/safe_write.h"
#include "platform/files/virtual_drives.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Tells that one file is open and notes what was asked to be written first.
class OneOpenFile : public OpenFiles
{
public:
    bool isOpen(const QString& nativePath) const override { return nativePath == open; }
    void commitPending(const QString& nativePath) override { committed << nativePath; }

    QString open;
    QStringList committed;
};

class QtFileSystemTest : public testing::Test
{
protected:
    static QString path(const QString& name) { return u"C:\\p\\"_s + name; }
    QString native(const QString& name) const { return folder.filePath(u"p/"_s + name); }

    void SetUp() override { ASSERT_TRUE(QDir().mkpath(folder.filePath(u"p"_s))); }

    QByteArray content(const QString& name) const
    {
        const Result<QByteArray> bytes = files.readAll(path(name));
        return bytes ? bytes.value() : QByteArray("<none>");
    }

    FailureKind kindOf(const Result<Done>& result) const
    {
        EXPECT_FALSE(result);
        return result ? FailureKind::Cancelled : result.failure().kind;
    }

    QTemporaryDir folder;
    VirtualDrives drives{{folder.filePath(u"p"_s), {}}};
    OneOpenFile openFiles;
    QtFileSystem files{drives, openFiles};
};

TEST_F(QtFileSystemTest, FilesAreWrittenReadCopiedAndDeletedInAnyCase)
{
    const QByteArray bytes("\x00\xff line\r\n", 8);
    ASSERT_TRUE(files.writeAll(path(u"Bmk.bmf"_s), bytes));
    EXPECT_TRUE(files.FileExists(path(u"bmk.BMF"_s)));
    EXPECT_EQ(content(u"BMK.bmf"_s), bytes);
    ASSERT_TRUE(files.writeAll(path(u"bmk.bmf"_s), "second"));
    EXPECT_EQ(QDir(native(u""_s)).entryList(QDir::Files | QDir::Hidden), QStringList{u"Bmk.bmf"_s})
        << "one file, and no temporary one";

    ASSERT_TRUE(files.writeAll(path(u"target"_s), "former"));
    ASSERT_TRUE(files.CopyFile(path(u"BMK.BMF"_s), path(u"TARGET"_s)));
    EXPECT_EQ(content(u"target"_s), "second");
    ASSERT_TRUE(files.DeleteFile(path(u"TARGET"_s)));
    EXPECT_FALSE(files.FileExists(path(u"target"_s)));
}

TEST_F(QtFileSystemTest, AWrittenFileKeepsItsModesAndStaysBehindItsLink)
{
    constexpr auto kShared = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    const QString kept = folder.filePath(u"elsewhere"_s);
    ASSERT_TRUE(writeSafely(kept, "former"));
    ASSERT_TRUE(QFile::setPermissions(kept, kShared));
    ASSERT_TRUE(QFile::link(kept, native(u"bmk.bmf"_s)));
    ASSERT_TRUE(files.writeAll(path(u"bmk.bmf"_s), "second"));
    EXPECT_EQ(content(u"bmk.bmf"_s), "second");
    EXPECT_EQ(QFile::symLinkTarget(native(u"bmk.bmf"_s)), kept);
    EXPECT_EQ(QFile::permissions(kept) & (kShared | QFile::ReadOther), kShared);
}

TEST_F(QtFileSystemTest, WhatIsMissingOrNoFileIsRefused)
{
    ASSERT_TRUE(files.CreateFolder(path(u"sub\\deep"_s)));
    EXPECT_TRUE(files.CreateFolder(path(u"SUB\\deep"_s))) << "one that is there is no failure";
    EXPECT_TRUE(files.FolderExists(path(u"Sub"_s)));
    EXPECT_FALSE(files.FileExists(path(u"sub"_s)));
    ASSERT_TRUE(files.writeAll(path(u"a"_s), "a"));
    EXPECT_FALSE(files.FolderExists(path(u"a"_s)));

    EXPECT_EQ(kindOf(files.DeleteFile(path(u"none"_s))), FailureKind::NotFound);
    EXPECT_EQ(kindOf(files.CopyFile(path(u"none"_s), path(u"a"_s))), FailureKind::NotFound);
    EXPECT_EQ(kindOf(files.CopyFile(path(u"a"_s), path(u"A"_s))), FailureKind::Invalid);
    EXPECT_EQ(kindOf(files.CopyFile(path(u"a"_s), path(u"sub"_s))), FailureKind::Invalid);
    EXPECT_EQ(kindOf(files.DeleteFile(path(u"sub"_s))), FailureKind::Invalid);
    EXPECT_EQ(kindOf(files.writeAll(u"X:\\a"_s, "a")), FailureKind::Invalid);
    EXPECT_EQ(kindOf(files.CreateFolder(u"X:\\a"_s)), FailureKind::Invalid);
    EXPECT_EQ(files.readAll(path(u"sub"_s)).failure().kind, FailureKind::NotFound);
    EXPECT_EQ(content(u"a"_s), "a");
}

TEST_F(QtFileSystemTest, AnOpenDatabaseIsNeitherOverwrittenNorDeleted)
{
    ASSERT_TRUE(files.writeAll(path(u"myc.mdb"_s), "open"));
    ASSERT_TRUE(files.writeAll(path(u"mycc.mdb"_s), "new"));
    openFiles.open = native(u"myc.mdb"_s);
    EXPECT_EQ(kindOf(files.CopyFile(path(u"mycc.mdb"_s), path(u"MYC.mdb"_s))), FailureKind::InUse);
    EXPECT_EQ(kindOf(files.DeleteFile(path(u"MYC.mdb"_s))), FailureKind::InUse);
    EXPECT_EQ(kindOf(files.writeAll(path(u"MYC.mdb"_s), "x")), FailureKind::InUse);
    EXPECT_EQ(content(u"myc.mdb"_s), "open");

    ASSERT_TRUE(files.CopyFile(path(u"myc.mdb"_s), path(u"copy"_s)));
    EXPECT_EQ(openFiles.committed, QStringList{native(u"myc.mdb"_s)})
        << "what isn't on disk yet is written before the copy";
}

// Lets files grow to a size and no further, as a full disc does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_handler = signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_former{};
    sighandler_t m_handler = SIG_DFL;
};

TEST_F(QtFileSystemTest, AFullDiscLeavesTheOldFile)
{
    ASSERT_TRUE(files.writeAll(path(u"a"_s), "old"));
    ASSERT_TRUE(files.writeAll(path(u"large"_s), QByteArray(200'000, 'x')));
    {
        const FileSizeLimit limit(0); // as a disc that fills up with the last flush
        EXPECT_FALSE(files.writeAll(path(u"a"_s), "new"));
        EXPECT_FALSE(files.CopyFile(path(u"large"_s), path(u"a"_s)));
    }
    {
        const FileSizeLimit limit(50'000);
        EXPECT_FALSE(files.writeAll(path(u"a"_s), QByteArray(200'000, 'y')));
        EXPECT_FALSE(files.CopyFile(path(u"large"_s), path(u"a"_s)));
    }
    EXPECT_EQ(content(u"a"_s), "old");
    EXPECT_EQ(QDir(native(u""_s)).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"a"_s, u"large"_s}))
        << "no temporary file is left";
    EXPECT_FALSE(files.writeAll(path(u"none\\a"_s), "x")) << "its folder is missing";
}

} // namespace
} // namespace lumen
