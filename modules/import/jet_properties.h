// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "import/jet_handle.h"

#include <QStringList>

namespace lumen {

/// The columns whose property "Required" is set, out of the property block that the catalogue keeps
/// for a table. A damaged block gives what stands before the damage.
QStringList requiredColumns(const JetHandle& file, const QByteArray& block);

} // namespace lumen
