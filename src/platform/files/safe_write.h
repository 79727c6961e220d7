// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"
#include "platform/temporary_file.h"

#include <QByteArray>
#include <QString>

namespace lumen {

/// Writes a file anew: into a temporary one beside it, which is put to disk and only then takes the
/// name. Whatever fails on the way (a full disc at the very end, too) leaves the former file as it
/// was and no temporary one. Each system call's answer counts, as QSaveFile of Qt 6.4 reports
/// success although its last flush has failed.
class SafeWrite
{
public:
    /// `nativePath` of the file; a link is followed to the file that it names.
    explicit SafeWrite(const QString& nativePath);

    /// Adds bytes; after a failure nothing more is written.
    void write(const QByteArray& bytes);
    /// Puts the file in its place. NoAccess where the folder or the file refuses, System for a full
    /// disc and all else; the detail names the file and the system's reason.
    Result<Done> commit();

private:
    void followFormer();

    QString m_target;
    TemporaryFile m_file;
};

/// The whole content in one step.
Result<Done> writeSafely(const QString& nativePath, const QByteArray& bytes);

} // namespace lumen
