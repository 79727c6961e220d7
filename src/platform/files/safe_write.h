// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

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
    ~SafeWrite();
    SafeWrite(const SafeWrite&) = delete;
    SafeWrite& operator=(const SafeWrite&) = delete;

    /// Adds bytes; after a failure nothing more is written.
    void write(const QByteArray& bytes);
    /// Puts the file in its place. NoAccess where the folder or the file refuses, System for a full
    /// disc and all else; the detail names the file and the system's reason.
    Result<Done> commit();

private:
    bool create();
    void fail();
    void closeFile();

    QString m_target;
    QByteArray m_temporary; // "" when none exists
    int m_descriptor = -1;
    int m_error = 0; // errno of the first failure
};

/// The whole content in one step.
Result<Done> writeSafely(const QString& nativePath, const QByteArray& bytes);

} // namespace lumen
