// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/desktop_shell.h"
#include "platform/files/instance_lock.h"
#include "platform/files/proc_process_list.h"
#include "platform/files/virtual_drives.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QFile>
#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Takes the addresses that the desktop would open.
class Receiver : public QObject
{
    Q_OBJECT

public:
    Receiver()
    {
        for (const QString& scheme : {u"file"_s, u"http"_s, u"https"_s})
            QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~Receiver() override
    {
        for (const QString& scheme : {u"file"_s, u"http"_s, u"https"_s})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    Q_INVOKABLE void take(const QUrl& url) { urls << url; }

    QList<QUrl> urls;
};

class DesktopShellTest : public testing::Test
{
protected:
    FailureKind kindOf(const QString& target)
    {
        const Result<Done> result = shell.open(target);
        EXPECT_FALSE(result);
        return result ? FailureKind::Cancelled : result.failure().kind;
    }

    DesktopShellTest() { qputenv("BROWSER", "browser"); }
    ~DesktopShellTest() override { qunsetenv("BROWSER"); }

    QTemporaryDir folder;
    VirtualDrives drives{{folder.filePath(u"p"_s), {}}};
    DesktopShell shell{drives};
    Receiver receiver;
};

TEST_F(DesktopShellTest, FilesAndPagesGoToTheDesktop)
{
    const QString native = folder.filePath(u"사복음서대조표(본문포함) #1.htm"_s);
    ASSERT_TRUE(QFile(native).open(QIODevice::WriteOnly));
    ASSERT_TRUE(shell.open(u"C:\\사복음서대조표(본문포함) #1.HTM"_s));
    ASSERT_TRUE(shell.open(u"https://example.org/a?b=c"_s));
    ASSERT_EQ(receiver.urls.size(), 2);
    EXPECT_EQ(receiver.urls[0].toLocalFile(), native);
    EXPECT_EQ(receiver.urls[1], QUrl(u"https://example.org/a?b=c"_s));

    qunsetenv("BROWSER");
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit()); // a desktop without any program
    EXPECT_EQ(kindOf(u"https://example.org/a?b=c"_s), FailureKind::System);
    qputenv("PATH", programs);
    EXPECT_EQ(receiver.urls.size(), 2);
}

TEST_F(DesktopShellTest, ATuneNeedsAPlayerAndNoBrowser)
{
    const auto write = [this](const QString& name, const QByteArray& content) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(file.permissions() | QFile::ExeOwner);
    };
    write(u"1.mid"_s, "MThd");
    write(u"page.htm"_s, "<html>");
    write(u"xdg-mime"_s, "#!/bin/sh\n[ \"$3\" = audio/midi ] && echo player.desktop\n");
    qunsetenv("BROWSER");
    const QByteArray programs = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_TRUE(shell.open(u"C:\\1.mid"_s));
    EXPECT_EQ(kindOf(u"C:\\page.htm"_s), FailureKind::System);
    write(u"xdg-mime"_s, "#!/bin/sh\n");
    qputenv("BROWSER", "browser");
    EXPECT_EQ(kindOf(u"C:\\1.mid"_s), FailureKind::System);
    qputenv("PATH", programs);
}

TEST_F(DesktopShellTest, WhatIsMissingOrNoPageIsNotOpened)
{
    EXPECT_EQ(kindOf(u"C:\\none.htm"_s), FailureKind::NotFound);
    EXPECT_EQ(kindOf(u"X:\\none.htm"_s), FailureKind::NotFound);
    EXPECT_EQ(kindOf(QString()), FailureKind::NotFound);
    EXPECT_EQ(kindOf(u"file:///etc/hosts"_s), FailureKind::Invalid);
    EXPECT_EQ(kindOf(u"javascript://x"_s), FailureKind::Invalid);
    EXPECT_TRUE(receiver.urls.isEmpty());
}

TEST(InstanceLock, OnlyOneHoldsAFolderUntilItLetsGo)
{
    const QTemporaryDir folder;
    const QTemporaryDir other;
    QFile leftOver(folder.filePath(u".lumenscript.lock"_s));
    ASSERT_TRUE(leftOver.open(QIODevice::WriteOnly));
    leftOver.write("1\nlumenscript\nanother-host\n");
    leftOver.close();
    {
        InstanceLock first(folder.path());
        ASSERT_TRUE(first.acquire());
        InstanceLock second(folder.path());
        const Result<Done> refused = second.acquire();
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.failure().kind, FailureKind::InUse);
        InstanceLock elsewhere(other.path());
        EXPECT_TRUE(elsewhere.acquire());
    }
    InstanceLock next(folder.path());
    EXPECT_TRUE(next.acquire());
    InstanceLock nowhere(folder.filePath(u"none"_s));
    const Result<Done> refused = nowhere.acquire();
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.failure().kind, FailureKind::NoAccess);
}

} // namespace
} // namespace lumen

#include "desktop_test.moc"
