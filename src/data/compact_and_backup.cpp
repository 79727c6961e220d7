// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/compact_and_backup.h"

#include "data/module_path.h"
#include "platform/jet/jet_engine.h"
#include "platform/jet/jet_error.h"
#include "platform/log.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr const char* kSilent = "what is done at the end never keeps a window open";

QString inData(const QString& appPath, QStringView name)
{
    return joinedPath(appPath, QString(u"\\Data"_s + name.toString()));
}

// The path that is tested for a left-over copy; see UserFile::oddTest.
QString testedCopy(const QString& appPath, const UserFile& file)
{
    if (!file.oddTest)
        return inData(appPath, file.copy);
    QString path = appPath + u"\\Data"_s + file.copy.toString();
    return path.replace(u"\\\\"_s, u" \\"_s);
}

bool compact(const QString& from, const QString& to, const UserFile& file, JetEngine& jet)
{
    const QString password = file.password.toString();
    try {
        if (!password.isEmpty()) {
            jet.setDefaultUser(u"admin"_s);
            jet.setDefaultPassword(password);
        }
        jet.CompactDatabase(from, to, {}, password.isEmpty() ? QString() : u";pwd="_s + password);
        return true;
    } catch (const JetError& error) {
        qCWarning(dataLog) << "not compacted:" << from << error.number() << error.text();
        return false;
    }
}

void compactInPlace(const QString& appPath, const UserFile& file, JetEngine& jet, FileSystem& files)
{
    const QString original = inData(appPath, file.name);
    const QString copy = inData(appPath, file.copy);
    if (files.FileExists(testedCopy(appPath, file)))
        ignoreFailure(files.DeleteFile(copy), kSilent);
    // A copy left over from an earlier time must not come over the user's file: only one that was
    // made now does.
    if (compact(original, copy, file, jet))
        ignoreFailure(files.CopyFile(copy, original), kSilent);
    ignoreFailure(files.DeleteFile(copy), kSilent);
}

void backUp(const QString& appPath, const UserFile& file, FileSystem& files)
{
    const QString folder = appPath.left(2) + u"\\OrvaneBackup"_s;
    if (!files.FolderExists(folder))
        ignoreFailure(files.CreateFolder(folder), kSilent);
    const QString original = inData(appPath, file.name);
    const QString last = folder + file.backup.toString();
    // Without an original the last generation must not push out the one before it.
    if (!files.FileExists(original))
        return;
    if (files.FileExists(last))
        ignoreFailure(files.CopyFile(last, folder + file.formerBackup.toString()), kSilent);
    ignoreFailure(files.CopyFile(original, last), kSilent);
}

} // namespace

void CompactAndBackup(const QString& appPath, const UserFile& file, JetEngine& jet,
                      FileSystem& files)
{
    if (!file.copy.isEmpty())
        compactInPlace(appPath, file, jet, files);
    if (!file.backup.isEmpty())
        backUp(appPath, file, files);
}

} // namespace lumen
