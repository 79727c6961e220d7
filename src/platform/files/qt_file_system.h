// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/files/file_system.h"
#include "platform/open_files.h"
#include "platform/path_resolver.h"

namespace lumen {

/// The file operations on the machine's own files. Every write goes to a temporary file in the
/// destination's folder, is put to disk and renamed.
class QtFileSystem : public FileSystem
{
public:
    QtFileSystem(const PathResolver& paths, OpenFiles& openFiles);

    bool FileExists(const QString& path) const override;
    bool FolderExists(const QString& path) const override;
    Result<Done> CreateFolder(const QString& path) override;
    Result<Done> DeleteFile(const QString& path) override;
    Result<Done> CopyFile(const QString& from, const QString& to) override;
    Result<Done> MoveFile(const QString& from, const QString& to) override;
    Result<FileStamp> stamp(const QString& path) const override;
    Result<QByteArray> readAll(const QString& path) const override;
    Result<Done> writeAll(const QString& path, const QByteArray& bytes) override;

private:
    Result<QString> writable(const QString& path) const;

    const PathResolver& m_paths;
    OpenFiles& m_openFiles;
};

} // namespace lumen
