// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/exit_codes.h"

#include <QString>

namespace lumen {

/// One line to standard output in UTF-8, whatever the locale is.
void printLine(const QString& line);
/// One line to standard error, behind the program's name.
void printError(const QString& line);

} // namespace lumen
