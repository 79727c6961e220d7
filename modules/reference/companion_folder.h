// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// Where files lie that go with a module, such as "Hymn" or "maps": beside a folder "Data" as the
/// program looks for them, within any other.
QString companionFolder(const QString& moduleFolder, const QString& name);

} // namespace lumen
