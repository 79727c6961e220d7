// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "build/module_task.h"

#include <QString>

namespace lumen {

/// The version of the rules by which modules are made; a module of other rules is made anew.
inline constexpr int kBuilderVersion = 4;

/// The key of the origin line that holds the stamp.
inline constexpr QStringView kStampKey = u"stamp";

/// Tells a module's making apart: the rules, the options and the state of the source's files.
QString taskStamp(const ModuleTask& task);

/// The stamp that a finished module holds, "" when there is none or the file is no module.
QString storedStamp(const QString& moduleFile);

} // namespace lumen
