// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

namespace lumen {

class OsisCollector;

/// Feeds a piece of OSIS mark-up that need not be well-formed, as the entries of SWORD modules
/// are: elements reach over verses, and converters leave markers of USFM behind, which are dropped.
void scanMarkup(QStringView markup, OsisCollector& collector);

} // namespace lumen
