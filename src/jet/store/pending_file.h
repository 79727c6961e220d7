// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/temporary_file.h"

namespace lumen {

/// A store that comes into being beside its destination and takes its name in one step. Destroyed
/// before that it is removed. Paths are native.
class PendingFile
{
public:
    /// Makes an empty file; error 3183 when the folder takes none.
    explicit PendingFile(const QString& destination);

    const QString& path() const { return m_file.path(); }

    enum class Existing { Replace, Refuse };
    /// Brings the bytes to the disc and renames. Errors: 3183; 3204 when the destination exists and
    /// is not to be replaced.
    void takeName(Existing existing);

private:
    [[noreturn]] void throwFailure() const;

    QString m_destination;
    TemporaryFile m_file;
};

} // namespace lumen
