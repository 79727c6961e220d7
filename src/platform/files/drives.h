// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// The drive table of the platform.
class Drives
{
public:
    virtual ~Drives() = default;

    /// Root paths, each ended by a NUL character, such as "C:\<NUL>D:\<NUL>".
    virtual QString driveStrings() const = 0;
    /// 3 a fixed disc, 5 a CD-ROM, 1 no such root.
    virtual int driveType(const QString& root) const = 0;
    /// The program's directory; ends in a backslash only when it is a drive's root.
    virtual QString appPath() const = 0;
};

} // namespace lumen
