// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// What the file layer asks of the database engine before it touches a file: copying over an open
/// database would corrupt it.
class OpenFiles
{
public:
    virtual ~OpenFiles() = default;

    /// True while a database object or data control uses the file.
    virtual bool isOpen(const QString& nativePath) const = 0;
    /// Writes a pending implicit transaction on the file to disk, if there is one.
    virtual void commitPending(const QString& nativePath) = 0;
};

} // namespace lumen
