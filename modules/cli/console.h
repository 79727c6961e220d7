// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// One line to standard output in UTF-8, whatever the locale is.
void printLine(const QString& line);
/// One line to standard error, behind the program's name.
void printError(const QString& line);

/// The exit codes that all commands share.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;

} // namespace lumen
