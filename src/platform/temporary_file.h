// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace lumen {

/// A new file that comes into being beside its target, as ".bmk.bmf.new-4711-0" in process 4711,
/// and takes the target's name in one step. Destroyed before that it is removed, and the engine's
/// journal of it. Each system call's answer counts.
class TemporaryFile
{
public:
    /// Makes the empty file; the folder may take none, which error() tells. `target` is native.
    explicit TemporaryFile(const QString& target);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const QString& path() const { return m_path; }
    /// For writing; closed by takeName().
    int descriptor() const { return m_descriptor; }
    /// The errno of the first failure, 0 when all went well.
    int error() const { return m_error; }
    /// Notes that the system call just made has failed, for reason of errno.
    void fail();

    /// Brings the bytes to the disc and takes the target's name; false, with all as it was, after
    /// any failure.
    bool takeName();

private:
    void closeFile();

    QString m_target;
    QString m_path;
    int m_descriptor = -1;
    int m_error = 0;
    bool m_made = false; // and not yet under the target's name
};

/// Takes away what killed programs have left of half-written files in a folder, and the engine's
/// journals of them. `isOwn` tells the names of the files that the caller writes: all others stay,
/// as do those of a process that still runs.
void removeLeftovers(const QString& folder, const std::function<bool(const QString& name)>& isOwn);

} // namespace lumen
