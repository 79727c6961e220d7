// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace lumen {

/// `lumen-modules build` with the arguments behind the command; returns the exit code.
int runBuild(const QStringList& args);
/// `lumen-modules list`: the modules that can be built, and whether their sources are there.
int runList(const QStringList& args);

} // namespace lumen
