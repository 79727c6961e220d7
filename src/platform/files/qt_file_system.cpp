// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/files/qt_file_system.h"

#include "platform/files/safe_write.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr qint64 kCopyBlock = 1 << 20;

Failure fileFailure(const QFileDevice& file)
{
    const bool denied = file.error() == QFileDevice::PermissionsError ||
                        file.error() == QFileDevice::OpenError ||
                        file.error() == QFileDevice::WriteError;
    return {denied ? FailureKind::NoAccess : FailureKind::System,
            file.fileName() + u": "_s + file.errorString()};
}

} // namespace

QtFileSystem::QtFileSystem(const PathResolver& paths, OpenFiles& openFiles)
    : m_paths(paths), m_openFiles(openFiles)
{
}

bool QtFileSystem::FileExists(const QString& path) const
{
    return QFileInfo(m_paths.nativePath(path)).isFile();
}

bool QtFileSystem::FolderExists(const QString& path) const
{
    return QFileInfo(m_paths.nativePath(path)).isDir();
}

Result<Done> QtFileSystem::CreateFolder(const QString& path)
{
    const QString native = m_paths.nativePath(path);
    if (native.isEmpty())
        return Failure{FailureKind::Invalid, path};
    if (!QDir().mkpath(native))
        return Failure{FailureKind::NoAccess, native};
    return Done{};
}

// The native path of a file that may be replaced or removed.
Result<QString> QtFileSystem::writable(const QString& path) const
{
    const QString native = m_paths.nativePath(path);
    if (native.isEmpty() || QFileInfo(native).isDir())
        return Failure{FailureKind::Invalid, path};
    if (m_openFiles.isOpen(native))
        return Failure{FailureKind::InUse, native};
    return native;
}

Result<Done> QtFileSystem::DeleteFile(const QString& path)
{
    const Result<QString> native = writable(path);
    if (!native)
        return native.failure();
    QFile file(native.value());
    if (!file.exists())
        return Failure{FailureKind::NotFound, native.value()};
    if (!file.remove())
        return Failure{FailureKind::NoAccess, native.value() + u": "_s + file.errorString()};
    return Done{};
}

Result<Done> QtFileSystem::CopyFile(const QString& from, const QString& to)
{
    const QString source = m_paths.nativePath(from);
    if (!QFileInfo(source).isFile())
        return Failure{FailureKind::NotFound, from};
    const Result<QString> target = writable(to);
    if (!target)
        return target.failure();
    if (target.value() == source)
        return Failure{FailureKind::Invalid, source};
    m_openFiles.commitPending(source);

    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return fileFailure(in);
    SafeWrite out(target.value());
    while (!in.atEnd()) {
        const QByteArray block = in.read(kCopyBlock);
        if (block.isEmpty())
            return fileFailure(in);
        out.write(block);
    }
    return out.commit();
}

Result<Done> QtFileSystem::MoveFile(const QString& from, const QString& to)
{
    const Result<QString> source = writable(from);
    if (!source)
        return source.failure();
    const Result<QString> target = writable(to);
    if (!target)
        return target.failure();
    // QFile::rename() refuses to take the place of a file.
    if (std::rename(QFile::encodeName(source.value()).constData(),
                    QFile::encodeName(target.value()).constData()) != 0)
        return Failure{FailureKind::NoAccess, target.value() + u": "_s + qt_error_string(errno)};
    return Done{};
}

Result<FileStamp> QtFileSystem::stamp(const QString& path) const
{
    const QFileInfo file(m_paths.nativePath(path));
    if (!file.isFile())
        return Failure{FailureKind::NotFound, path};
    return FileStamp{file.size(), file.lastModified()};
}

Result<QByteArray> QtFileSystem::readAll(const QString& path) const
{
    const QString native = m_paths.nativePath(path);
    if (!QFileInfo(native).isFile())
        return Failure{FailureKind::NotFound, path};
    QFile file(native);
    if (!file.open(QIODevice::ReadOnly))
        return fileFailure(file);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fileFailure(file);
    return bytes;
}

Result<Done> QtFileSystem::writeAll(const QString& path, const QByteArray& bytes)
{
    const Result<QString> native = writable(path);
    if (!native)
        return native.failure();
    return writeSafely(native.value(), bytes);
}

} // namespace lumen
