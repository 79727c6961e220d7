// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/compact_and_backup.h"

#include "data/module_path.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "jet/import/jet_header.h"
#include "platform/aside_name.h"
#include "platform/log.h"

#include <map>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr const char* kSilent = "what is done at the end never keeps a window open";

QString inData(const QString& appPath, QStringView name)
{
    return joinedPath(appPath, QString(u"\\Data"_s + name.toString()));
}

// The path that is tested for a left-over copy; see Compacting::WithOddTest.
QString testedCopy(const QString& appPath, const UserFile& file)
{
    if (file.compacting != Compacting::WithOddTest)
        return inData(appPath, file.copyName());
    QString path = appPath + u"\\Data"_s + file.copyName();
    return path.replace(u"\\\\"_s, u" \\"_s);
}

using RowCounts = std::map<QString, int>;

// Nothing when the file can't be read.
std::optional<RowCounts> rowCounts(const QString& path, const UserFile& file, JetEngine& jet)
{
    const QString password = file.password.toString();
    try {
        const auto database = jet.OpenDatabase(
            path, false, true, password.isEmpty() ? QString() : u";pwd="_s + password);
        RowCounts counts;
        const TableDefs tables = database->TableDefs();
        for (int i = 0; i < tables.Count(); ++i)
            counts[tables(i).Name] = database->OpenRecordset(tables(i).Name)->RecordCount();
        return counts;
    } catch (const JetError& error) {
        qCWarning(dataLog) << "not read back:" << path << error.number() << error.text();
        return std::nullopt;
    }
}

bool haveSameRows(const QString& copy, const QString& original, const UserFile& file,
                  JetEngine& jet)
{
    const auto counts = rowCounts(original, file, jet);
    return counts && counts == rowCounts(copy, file, jet);
}

enum class Compaction { Done, Failed, Ended };

Compaction compact(const QString& from, const QString& to, const UserFile& file, JetEngine& jet)
{
    const QString password = file.password.toString();
    try {
        if (!password.isEmpty())
            jet.setDefaultPassword(password);
        jet.CompactDatabase(from, to, {}, password.isEmpty() ? QString() : u";pwd="_s + password);
        return Compaction::Done;
    } catch (const JetError& error) {
        qCWarning(dataLog) << "not compacted:" << from << error.number() << error.text();
        return error.number() == ErrorNumber::kCancelled ? Compaction::Ended : Compaction::Failed;
    }
}

// Done when the file was found sound on the way.
Compaction compactInPlace(const QString& appPath, const UserFile& file, JetEngine& jet,
                          FileSystem& files)
{
    const QString original = inData(appPath, file.name);
    const QString copy = inData(appPath, file.copyName());
    if (files.FileExists(testedCopy(appPath, file)))
        ignoreFailure(files.DeleteFile(copy), kSilent);
    // A copy left over from an earlier time must not come over the user's file: only one that was
    // made now does.
    const Compaction compaction = compact(original, copy, file, jet);
    if (compaction == Compaction::Done && haveSameRows(copy, original, file, jet))
        ignoreFailure(files.CopyFile(copy, original), kSilent);
    if (files.FileExists(copy))
        ignoreFailure(files.DeleteFile(copy), kSilent);
    return compaction;
}

// Bookmarks are lines of text: a power cut or a bad sector leaves NUL characters in them.
bool isSoundText(const QString& path, const FileSystem& files)
{
    const Result<QByteArray> bytes = files.readAll(path);
    return bytes && !bytes.value().contains('\0');
}

// Untold: another program holds the file, or its import was ended or found no room.
enum class Soundness { Sound, Damaged, Untold };

bool tellsOfDamage(const JetError& error, const QString& nativePath)
{
    switch (error.number()) {
    case ErrorNumber::kAlreadyInUse:
    case ErrorNumber::kCancelled:
        return false;
    case ErrorNumber::kWriteFailed: // from a store it is a bad place of the disc
        return databaseKind(readDatabaseHead(nativePath)) != DatabaseKind::JetFile;
    default:
        return true;
    }
}

Soundness soundnessOf(const QString& path, const UserFile& file, JetEngine& jet,
                      const FileSystem& files)
{
    if (!file.isDatabase())
        return isSoundText(path, files) ? Soundness::Sound : Soundness::Damaged;
    try {
        jet.CheckDatabase(path, file.password.toString());
        return Soundness::Sound;
    } catch (const JetError& error) {
        qCWarning(dataLog) << "not sound:" << path << error.number() << error.text();
        const bool damaged = tellsOfDamage(error, jet.paths().nativePath(path));
        return damaged ? Soundness::Damaged : Soundness::Untold;
    }
}

bool isSound(const QString& path, const UserFile& file, JetEngine& jet, const FileSystem& files)
{
    return soundnessOf(path, file, jet, files) == Soundness::Sound;
}

bool isEmpty(const QString& path, const FileSystem& files)
{
    const Result<FileStamp> stamp = files.stamp(path);
    return stamp && stamp.value().size == 0;
}

// Not written since its last backup, which was read back: what a whole check of a large file would
// tell is known.
bool isAsBackedUp(const QString& path, const QString& backup, const FileSystem& files)
{
    const Result<FileStamp> now = files.stamp(path);
    const Result<FileStamp> then = files.stamp(backup);
    return now && then && now.value().size == then.value().size &&
           now.value().modified <= then.value().modified;
}

QString failureText(const Result<Done>& result)
{
    return result ? QString() : result.failure().detail;
}

bool isFaithful(const QString& copy, const QString& original, const UserFile& file, JetEngine& jet,
                const FileSystem& files)
{
    if (file.isDatabase())
        return isSound(copy, file, jet, files) && haveSameRows(copy, original, file, jet);
    const Result<QByteArray> bytes = files.readAll(copy);
    const Result<QByteArray> wanted = files.readAll(original);
    return bytes && wanted && bytes.value() == wanted.value();
}

QString keepFormer(const QString& folder, const UserFile& file, JetEngine& jet, FileSystem& files)
{
    const QString last = folder + file.name.toString();
    if (!files.FileExists(last) || !isSound(last, file, jet, files))
        return {};
    return failureText(files.CopyFile(last, folder + file.formerBackupName()));
}

QString backUp(const QString& appPath, const UserFile& file, JetEngine& jet, FileSystem& files)
{
    const QString folder = backupFolder(appPath);
    if (!files.FolderExists(folder)) {
        const Result<Done> made = files.CreateFolder(folder);
        if (!made)
            return failureText(made);
    }
    const QString original = inData(appPath, file.name);
    const QString fresh = folder + file.copyName();
    QString failure = failureText(files.CopyFile(original, fresh));
    if (failure.isEmpty() && !isFaithful(fresh, original, file, jet, files))
        failure = fresh + u": 다시 읽어 보니 원본과 다릅니다."_s;
    if (failure.isEmpty())
        failure = keepFormer(folder, file, jet, files);
    if (failure.isEmpty())
        failure = failureText(files.MoveFile(fresh, folder + file.name.toString()));
    if (files.FileExists(fresh))
        ignoreFailure(files.DeleteFile(fresh), kSilent);
    return failure;
}

QString newestSoundBackup(const QString& appPath, const UserFile& file, JetEngine& jet,
                          const FileSystem& files)
{
    const QString folder = backupFolder(appPath);
    for (const QString& name : {file.name.toString(), file.formerBackupName()}) {
        const QString path = folder + name;
        if (files.FileExists(path) && !isEmpty(path, files) && isSound(path, file, jet, files))
            return path;
    }
    return {};
}

} // namespace

QString backupFolder(const QString& appPath)
{
    return appPath.left(2) + u"\\OrvaneBackup"_s;
}

QString CompactAndBackup(const QString& appPath, const UserFile& file, JetEngine& jet,
                         FileSystem& files)
{
    const QString original = inData(appPath, file.name);
    const Compaction compaction = file.compacting != Compacting::No
                                      ? compactInPlace(appPath, file, jet, files)
                                      : Compaction::Failed;
    if (!file.backedUp || !files.FileExists(original))
        return {};
    // Who has ended the import is not kept waiting by a second one.
    if (compaction == Compaction::Ended)
        return {};
    if (compaction != Compaction::Done && !isSound(original, file, jet, files))
        return {};
    return backUp(appPath, file, jet, files);
}

std::optional<LostFile> findLostFile(const QString& appPath, const UserFile& file, JetEngine& jet,
                                     FileSystem& files)
{
    const QString path = inData(appPath, file.name);
    const auto isTaken = [&files](const QString& name) { return files.FileExists(name); };
    LostFile lost{LostFile::Fault::Damaged, path, {}, freeAsideName(path, isTaken)};
    const QString lastBackup = backupFolder(appPath) + file.name.toString();
    if (!files.FileExists(path))
        lost.fault = LostFile::Fault::Gone;
    else if (isEmpty(path, files)) {
        lost.fault = LostFile::Fault::Emptied;
        if (!file.isDatabase() && (!files.FileExists(lastBackup) || isEmpty(lastBackup, files)))
            return std::nullopt;
    } else if (isAsBackedUp(path, lastBackup, files) ||
               soundnessOf(path, file, jet, files) != Soundness::Damaged)
        return std::nullopt;
    lost.backup = newestSoundBackup(appPath, file, jet, files);
    if (lost.backup.isEmpty() && lost.fault == LostFile::Fault::Gone)
        return std::nullopt;
    return lost;
}

Result<Done> restoreBackup(const LostFile& lost, FileSystem& files)
{
    if (files.FileExists(lost.path)) {
        Result<Done> kept = files.CopyFile(lost.path, lost.aside);
        if (!kept)
            return kept;
    }
    // What a crash left beside the damaged file must not be played into the restored one.
    const QString journal = lost.path + u"-journal"_s;
    if (files.FileExists(journal)) {
        Result<Done> removed = files.DeleteFile(journal);
        if (!removed)
            return removed;
    }
    return files.CopyFile(lost.backup, lost.path);
}

} // namespace lumen
