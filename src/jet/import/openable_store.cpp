// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/import/openable_store.h"

#include "jet/error.h"
#include "jet/import/conversion.h"
#include "jet/import/import_talk.h"
#include "jet/import/jet_header.h"
#include "platform/log.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// Converted files are made in a folder of this name beside their place, so that whatever a
/// stopped import leaves goes with one folder.
constexpr QStringView kWorkFolder = u".lumen-import-";
constexpr qint64 kStaleAfterSeconds = 24 * 60 * 60;

/// Takes away what a program that was killed during an import has left.
void removeStaleWorkFolders(const QString& folder)
{
    const QDateTime limit = QDateTime::currentDateTimeUtc().addSecs(-kStaleAfterSeconds);
    const QFileInfoList left =
        QDir(folder).entryInfoList({kWorkFolder.toString() + u'*'}, QDir::Dirs | QDir::Hidden);
    for (const QFileInfo& work : left)
        if (work.lastModified() < limit)
            QDir(work.absoluteFilePath()).removeRecursively();
}

/// Runs the conversion in a work folder of `folder` and gives the finished store to `place`.
template <typename Place>
void convertInto(const QString& folder, const QString& source, const QString& password,
                 const ImportOptions& options, const Place& place)
{
    const QString program =
        options.importProgram.isEmpty() ? findImportProgram() : options.importProgram;
    if (program.isEmpty())
        throw JetError(
            ErrorNumber::kNotADatabase,
            u"데이터베이스를 가져오는 프로그램 lumen-modules를 찾을 수 없습니다: %1"_s.arg(source));
    removeStaleWorkFolders(folder);
    const QTemporaryDir work(u"%1/%2XXXXXX"_s.arg(folder, kWorkFolder));
    if (!work.isValid())
        throw jetError(ErrorNumber::kWriteFailed, folder);
    const QString made = work.filePath(u"store"_s);
    convertJetFile({source, made, password, compareOfFile(source)}, program, options.talk);
    place(made);
}

void replaceFile(const QString& from, const QString& to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        throw jetError(ErrorNumber::kWriteFailed, to);
}

/// A free name for the original beside itself: "qt.mdb.jet", then "qt.mdb.2.jet" and so on.
QString nameForOriginal(const QString& source)
{
    QString name = source + u".jet"_s;
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = u"%1.%2.jet"_s.arg(source).arg(number);
    return name;
}

/// Gives the original a second name. A hard link leaves the first one valid at every moment; file
/// systems without links get a copy.
void keepOriginal(const QString& source, const QString& name)
{
    if (link(QFile::encodeName(source).constData(), QFile::encodeName(name).constData()) == 0)
        return;
    if (!QFile::copy(source, name)) {
        QFile::remove(name);
        throw jetError(ErrorNumber::kWriteFailed, name);
    }
}

/// False when something is missing and the user doesn't want it so: all is as before.
bool convertInPlace(const QString& source, const QString& password, const ImportOptions& options)
{
    const QString folder = QFileInfo(source).absolutePath();
    bool taken = false;
    convertInto(folder, source, password, options, [&](const QString& made) {
        const QStringList losses = isScratchDatabase(source) ? QStringList() : lossesOf(made);
        if (!losses.isEmpty() &&
            (options.talk == nullptr || !options.talk->takesIncomplete(source, losses)))
            return;
        const QString kept = nameForOriginal(source);
        keepOriginal(source, kept);
        try {
            replaceFile(made, source);
        } catch (const JetError&) {
            QFile::remove(kept);
            throw;
        }
        taken = true;
        qCInfo(jetLog) << source << "was converted, the original is" << kept;
    });
    return taken;
}

QString cacheFolderOf(const ImportOptions& options)
{
    if (!options.cacheFolder.isEmpty())
        return options.cacheFolder;
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           u"/lumenscript/modules"_s;
}

/// What all cached stores of one source begin with.
QString cachePrefix(const QString& canonicalPath)
{
    const QByteArray hash =
        QCryptographicHash::hash(canonicalPath.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(24)) + u'-';
}

QString cachedStore(const QString& source, const QString& password, const ImportOptions& options)
{
    const QFileInfo info(source);
    const QDir folder(cacheFolderOf(options));
    const QString prefix = cachePrefix(info.canonicalFilePath());
    const QString name =
        u"%1%2-%3.dts"_s.arg(prefix).arg(info.size()).arg(info.lastModified().toMSecsSinceEpoch());
    const QString store = folder.filePath(name);
    if (databaseKind(readDatabaseHead(store)) == DatabaseKind::Store)
        return store;

    if (!folder.mkpath(u"."_s))
        throw jetError(ErrorNumber::kWriteFailed, folder.path());
    convertInto(folder.path(), source, password, options,
                [&store](const QString& made) { replaceFile(made, store); });
    // Stores of what the source held before are of no use any more.
    for (const QString& former : folder.entryList({prefix + u'*'}, QDir::Files))
        if (former != name)
            QFile::remove(folder.filePath(former));
    return store;
}

/// A file that may not be written is replaced all the same: that is the folder's affair.
bool isReplaceable(const QString& nativePath)
{
    return isUserDatabase(nativePath) &&
           QFileInfo(QFileInfo(nativePath).absolutePath()).isWritable();
}

} // namespace

QString openableStore(const QString& nativePath, const QString& password,
                      const ImportOptions& options)
{
    if (!QFileInfo(nativePath).isFile())
        throw jetError(ErrorNumber::kFileNotFound, nativePath);
    const QByteArray head = readDatabaseHead(nativePath);
    if (databaseKind(head) == DatabaseKind::Store)
        return nativePath;
    const std::optional<JetHeader> header = readJetHeader(head);
    if (!header)
        throw jetError(ErrorNumber::kNotADatabase, nativePath);
    if (!header->password.isEmpty() && header->password != password)
        throw jetError(ErrorNumber::kWrongPassword, nativePath);

    const QString source = QFileInfo(nativePath).canonicalFilePath();
    if (isReplaceable(source) && convertInPlace(source, password, options))
        return nativePath;
    const QString store = cachedStore(source, password, options);
    if (options.talk != nullptr && isUserDatabase(source) && !isScratchDatabase(source))
        options.talk->isReadOnly(source, lossesOf(store));
    return store;
}

} // namespace lumen
