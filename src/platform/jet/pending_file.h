// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// A new file that comes into being beside its destination under a name of its own and takes the
/// destination's name in one step. Destroyed before that it is removed. Paths are native.
class PendingFile
{
public:
    /// Makes an empty file; error 3183 when the folder takes none.
    explicit PendingFile(const QString& destination);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    const QString& path() const { return m_path; }

    enum class Existing { Replace, Refuse };
    /// Brings the bytes to the disc and renames. Errors: 3183; 3204 when the destination exists and
    /// is not to be replaced.
    void takeName(Existing existing);

private:
    QString m_destination;
    QString m_path;
    bool m_done = false;
};

} // namespace lumen
