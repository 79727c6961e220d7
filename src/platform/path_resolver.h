// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// Maps the program's own paths, such as "C:\lumenscript\data\101.dts", to native files.
/// Backslashes separate, a doubled one counts as one, case is ignored.
class PathResolver
{
public:
    virtual ~PathResolver() = default;

    /// The native path: that of the existing file whatever its case, else the one that creating it
    /// would give. "" when the drive is not known. A native absolute path ("/...") passes
    /// unchanged.
    virtual QString nativePath(const QString& path) const = 0;
};

} // namespace lumen
