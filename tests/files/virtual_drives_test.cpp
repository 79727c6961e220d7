// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/virtual_drives.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class VirtualDrivesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        make(u"lumenscript/Data/101.dts"_s);
        make(u"disc/Data/201.dts"_s);
    }

    QString native(const QString& relative) const { return folder.filePath(relative); }

    void make(const QString& relative) const
    {
        QDir().mkpath(QFileInfo(native(relative)).path());
        QFile file(native(relative));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir folder;
    VirtualDrives drives{{native(u"lumenscript"_s), {native(u"disc"_s), native(u"installed"_s)}}};
};

TEST_F(VirtualDrivesTest, ProgramPathsFindTheirFilesHoweverTheyAreSpelled)
{
    const QString module = native(u"lumenscript/Data/101.dts"_s);
    for (const QString& path :
         {u"C:\\lumenscript\\Data\\101.dts"_s, u"c:\\LUMENSCRIPT\\data\\101.DTS"_s,
          u"C:\\\\lumenscript\\\\data\\101.dts"_s, u"C:/lumenscript/data/101.dts"_s,
          u"C:\\lumenscript\\.\\x\\..\\data\\101.dts"_s,
          u"C:\\..\\..\\lumenscript\\data\\101.dts"_s})
        EXPECT_EQ(drives.nativePath(path), module) << path.toStdString();
    EXPECT_EQ(drives.nativePath(u"C:\\lumenscript\\data\\New.mdb"_s),
              native(u"lumenscript/Data/New.mdb"_s))
        << "what isn't there keeps its own spelling below what is";
    EXPECT_EQ(drives.nativePath(u"C:\\OrvaneBackup\\myc.mdb"_s), native(u"OrvaneBackup/myc.mdb"_s));
    EXPECT_EQ(drives.nativePath(u"C:"_s), folder.path());
    EXPECT_EQ(drives.nativePath(u"/etc/hosts"_s), u"/etc/hosts"_s);
}

TEST_F(VirtualDrivesTest, ComposedAndDecomposedHangulIsOneName)
{
    const QString composed = u"설교매니저.mdb"_s;
    make(u"lumenscript/Data/"_s + composed.normalized(QString::NormalizationForm_D));
    EXPECT_TRUE(QFile::exists(drives.nativePath(u"C:\\lumenscript\\data\\"_s + composed)));
}

TEST_F(VirtualDrivesTest, ChangesOfAFolderAreSeenAtOnce)
{
    const QString path = u"C:\\lumenscript\\data\\QT.mdb"_s;
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        EXPECT_FALSE(QFile::exists(drives.nativePath(path)));
        make(u"lumenscript/Data/qt.mdb"_s);
        EXPECT_EQ(drives.nativePath(path), native(u"lumenscript/Data/qt.mdb"_s));
        QFile::rename(native(u"lumenscript/Data/qt.mdb"_s), native(u"lumenscript/Data/Qt.MDB"_s));
        EXPECT_EQ(drives.nativePath(path), native(u"lumenscript/Data/Qt.MDB"_s));
        QFile::remove(native(u"lumenscript/Data/Qt.MDB"_s));
    }
}

TEST_F(VirtualDrivesTest, AnExactNameGoesBeforeOneOfOtherCaseAndThenTheNewer)
{
    for (const QString& newer : {u"QT.mdb"_s, u"qt.mdb"_s}) {
        for (const QString& name : {u"QT.mdb"_s, u"qt.mdb"_s}) {
            QFile file(native(u"lumenscript/Data/"_s + name));
            ASSERT_TRUE(file.open(QIODevice::ReadWrite));
            const qint64 days = name == newer ? 1 : 2;
            ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addDays(-days),
                                         QFileDevice::FileModificationTime));
        }
        const VirtualDrives fresh{{native(u"lumenscript"_s), {}}};
        EXPECT_EQ(fresh.nativePath(u"C:\\lumenscript\\Data\\Qt.mdb"_s),
                  native(u"lumenscript/Data/"_s + newer));
    }
    make(u"lumenscript/Data/a.txt"_s);
    make(u"lumenscript/Data/A.TXT"_s);
    EXPECT_EQ(drives.nativePath(u"C:\\lumenscript\\Data\\A.TXT"_s),
              native(u"lumenscript/Data/A.TXT"_s));
    EXPECT_EQ(drives.nativePath(u"C:\\lumenscript\\Data\\a.txt"_s),
              native(u"lumenscript/Data/a.txt"_s));
}

TEST_F(VirtualDrivesTest, ADiscDoesntHideInstalledModules)
{
    make(u"installed/Data/201.dts"_s);
    make(u"installed/Data/202.dts"_s);
    EXPECT_EQ(drives.nativePath(u"D:\\data\\201.dts"_s), native(u"disc/Data/201.dts"_s));
    EXPECT_EQ(drives.nativePath(u"D:\\data\\202.dts"_s), native(u"installed/Data/202.dts"_s));
    EXPECT_EQ(drives.nativePath(u"D:\\data\\203.dts"_s), native(u"disc/Data/203.dts"_s));
}

TEST_F(VirtualDrivesTest, TheDriveTableFollowsTheFolders)
{
    EXPECT_EQ(drives.driveStrings(), QString::fromUtf16(u"C:\\\0D:\\\0", 8));
    EXPECT_EQ(drives.driveType(u"C:\\"_s), 3);
    EXPECT_EQ(drives.driveType(u"d:\\"_s), 5);
    EXPECT_EQ(drives.driveType(u"E:\\"_s), 1);
    EXPECT_EQ(drives.appPath(), u"C:\\lumenscript"_s);

    const VirtualDrives alone({u"/"_s, {}});
    EXPECT_EQ(alone.appPath(), u"C:\\"_s);
    EXPECT_EQ(alone.driveStrings(), QString::fromUtf16(u"C:\\\0", 4));
    EXPECT_EQ(alone.driveType(u"D:\\"_s), 1);
    EXPECT_EQ(alone.nativePath(u"C:\\etc"_s), u"/etc"_s);
}

TEST_F(VirtualDrivesTest, TheProgramsFolderIsTheNamedOneElseTheUsersOwn)
{
    const QByteArray formerData = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", native(u"share"_s).toUtf8());
    qunsetenv("LUMENSCRIPT_HOME");
    EXPECT_EQ(findDriveFolders().program, native(u"share/lumenscript"_s));
    EXPECT_TRUE(QFileInfo(native(u"share/lumenscript"_s)).isDir()) << "it is made";

    qputenv("LUMENSCRIPT_HOME", native(u"elsewhere/"_s).toUtf8());
    EXPECT_EQ(findDriveFolders().program, native(u"elsewhere"_s));
    qunsetenv("LUMENSCRIPT_HOME");
    qputenv("XDG_DATA_HOME", formerData);
}

} // namespace
} // namespace lumen
