// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/sword/sword_reader.h"

#include <QString>

namespace lumen {

/// The command of lumen-modules that reads a module for another process; it is not for users.
inline constexpr QStringView kReadSwordCommand = u"read-sword";

/// Reads a module as readSwordModule() does, in a process of its own: on damaged files the library
/// may crash, fill the memory or never end. Limits on memory, computing time and output grow with
/// the module. Cancelled when the user interrupts; Damaged when the process doesn't end well.
VersionResult readSwordApart(const SwordModule& module);

/// The other side: reads the module named by the two arguments, its root and its name, and writes
/// the result to the standard output in the form that readSwordApart() takes. Returns the exit
/// code.
int runReadSword(const QStringList& args);

} // namespace lumen
