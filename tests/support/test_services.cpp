// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/test_services.h"

#include "data/check_data.h"
#include "data/user_files.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

DriveFolders driveFolders(const TestFolders& folders, bool withDisc)
{
    return {folders.program(), withDisc ? QStringList{folders.disc()} : QStringList()};
}

} // namespace

TestFolders::TestFolders()
{
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        m_former.emplace_back(name, qgetenv(name));
        qputenv(name, m_folder.filePath(QString::fromLatin1(name).toLower()).toUtf8());
    }
    QDir().mkpath(data({}));
}

TestFolders::~TestFolders()
{
    for (const auto& [name, value] : m_former)
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
}

QString TestFolders::program() const
{
    return m_folder.filePath(u"lumenscript"_s);
}

QString TestFolders::disc() const
{
    return m_folder.filePath(u"disc"_s);
}

QString TestFolders::data(const QString& name) const
{
    return program() + u"/Data/"_s + name;
}

TestServices::TestServices(bool withDisc)
    : drives(driveFolders(folders, withDisc)), jet(drives, filePolicy, importOptions()),
      files(drives, jet), services{messages, fileDialogs, modal,     clock,   shell, clipboard,
                                   drives,   files,       processes, fonts,   help,  registry,
                                   jet,      mail,        secrets,   printers}
{
    state.AppPath = drives.appPath();
    state.CdDrive = FindCdDrive(drives);
}

} // namespace lumen
