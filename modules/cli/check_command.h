// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace lumen {

/// `lumen-modules check FILE`: tells what a store or a genuine Jet file holds and what is wrong
/// with it. Returns 0 when nothing is, 1 otherwise, 2 for wrong arguments.
int runCheck(const QStringList& args);

} // namespace lumen
