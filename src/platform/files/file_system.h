// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace lumen {

/// What tells a file that was written since from one that was not.
struct FileStamp
{
    qint64 size = 0; ///< bytes
    QDateTime modified;
};

/// File operations on the program's paths ("C:\lumenscript\data\bmk.bmf"). What is open in the
/// database engine is neither overwritten nor deleted (FailureKind::InUse); a pending transaction
/// on it is written before it is copied.
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    virtual bool FileExists(const QString& path) const = 0;
    virtual bool FolderExists(const QString& path) const = 0;
    virtual Result<Done> CreateFolder(const QString& path) = 0;
    virtual Result<Done> DeleteFile(const QString& path) = 0;
    /// Through a temporary file in the destination's folder, renamed over an existing one.
    virtual Result<Done> CopyFile(const QString& from, const QString& to) = 0;
    /// Within a drive, over an existing file: a step that is done or not.
    virtual Result<Done> MoveFile(const QString& from, const QString& to) = 0;
    virtual Result<FileStamp> stamp(const QString& path) const = 0;
    virtual Result<QByteArray> readAll(const QString& path) const = 0;
    /// The whole file anew, atomically: a failure leaves the old one.
    virtual Result<Done> writeAll(const QString& path, const QByteArray& bytes) = 0;
};

} // namespace lumen
