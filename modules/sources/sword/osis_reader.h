// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/sword/osis_collector.h"
#include "sources/version_text.h"

#include <QString>

namespace lumen {

/// Reads a Bible in one OSIS file, with verses as containers or as milestones. A verse element with
/// several ids fills the first; the others have no words. A book outside the canon is passed over.
VersionResult readOsisFile(const QString& file, StrongNumbers numbers = StrongNumbers::Drop);

} // namespace lumen
