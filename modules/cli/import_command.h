// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace lumen {

/// `lumen-modules import SOURCE DESTINATION`: converts one genuine Jet file into a store. Returns
/// an ImportExit.
int runImport(const QStringList& args);

} // namespace lumen
