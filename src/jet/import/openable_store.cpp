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
void convertInto(const QString& folder, const ImportSource& source, const ImportOptions& options,
                 const Place& place)
{
    if (const QFileInfo program(options.importProgram); !program.isExecutable())
        throw JetError(ErrorNumber::kNotADatabase,
                       u"데이터베이스를 가져오는 프로그램 %1을(를) 찾을 수 없습니다: %2"_s.arg(
                           program.fileName(), source.path));
    removeStaleWorkFolders(folder);
    const QTemporaryDir work(u"%1/%2XXXXXX"_s.arg(folder, kWorkFolder));
    if (!work.isValid())
        throw jetError(ErrorNumber::kWriteFailed, folder);
    const QString made = work.filePath(u"store"_s);
    convertJetFile({source.path, made, source.password, source.policy.compare},
                   options.importProgram, options.talk);
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
bool convertInPlace(const ImportSource& source, const ImportOptions& options)
{
    const QString folder = QFileInfo(source.path).absolutePath();
    bool taken = false;
    convertInto(folder, source, options, [&](const QString& made) {
        const QStringList losses = source.policy.isIrreplaceable() ? lossesOf(made) : QStringList();
        if (!losses.isEmpty() &&
            (options.talk == nullptr || !options.talk->takesIncomplete(source.path, losses)))
            return;
        const QString kept = nameForOriginal(source.path);
        keepOriginal(source.path, kept);
        try {
            replaceFile(made, source.path);
        } catch (const JetError&) {
            QFile::remove(kept);
            throw;
        }
        taken = true;
        qCInfo(jetLog) << source.path << "was converted, the original is" << kept;
    });
    return taken;
}

/// What all cached stores of one source begin with.
QString cachePrefix(const QString& canonicalPath)
{
    const QByteArray hash =
        QCryptographicHash::hash(canonicalPath.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(24)) + u'-';
}

QString cachedStore(const ImportSource& source, const ImportOptions& options)
{
    const QFileInfo info(source.path);
    const QDir folder(options.cacheFolder);
    const QString prefix = cachePrefix(info.canonicalFilePath());
    const QString name = u"%1%2-%3.store"_s.arg(prefix)
                             .arg(info.size())
                             .arg(info.lastModified().toMSecsSinceEpoch());
    const QString store = folder.filePath(name);
    if (databaseKind(readDatabaseHead(store)) == DatabaseKind::Store)
        return store;

    if (!folder.mkpath(u"."_s))
        throw jetError(ErrorNumber::kWriteFailed, folder.path());
    convertInto(folder.path(), source, options,
                [&store](const QString& made) { replaceFile(made, store); });
    // Stores of what the source held before are of no use any more.
    for (const QString& former : folder.entryList({prefix + u'*'}, QDir::Files))
        if (former != name)
            QFile::remove(folder.filePath(former));
    return store;
}

/// A file that may not be written is replaced all the same: that is the folder's affair.
bool isReplaceable(const ImportSource& source)
{
    return !source.policy.readOnly && QFileInfo(QFileInfo(source.path).absolutePath()).isWritable();
}

} // namespace

QString openableStore(const ImportSource& database, const ImportOptions& options)
{
    const QString& path = database.path;
    if (!QFileInfo(path).isFile())
        throw jetError(ErrorNumber::kFileNotFound, path);
    const QByteArray head = readDatabaseHead(path);
    if (databaseKind(head) == DatabaseKind::Store)
        return path;
    const std::optional<JetHeader> header = readJetHeader(head);
    if (!header)
        throw jetError(ErrorNumber::kNotADatabase, path);
    if (!header->password.isEmpty() && header->password != database.password)
        throw jetError(ErrorNumber::kWrongPassword, path);

    const ImportSource source{QFileInfo(path).canonicalFilePath(), database.password,
                              database.policy};
    if (isReplaceable(source) && convertInPlace(source, options))
        return path;
    const QString store = cachedStore(source, options);
    if (options.talk != nullptr && source.policy.isIrreplaceable())
        options.talk->isReadOnly(source.path, lossesOf(store));
    return store;
}

} // namespace lumen
