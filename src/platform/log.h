// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLoggingCategory>

namespace lumen {

Q_DECLARE_LOGGING_CATEGORY(platformLog)
Q_DECLARE_LOGGING_CATEGORY(jetLog)
Q_DECLARE_LOGGING_CATEGORY(dataLog)
Q_DECLARE_LOGGING_CATEGORY(formsLog)
Q_DECLARE_LOGGING_CATEGORY(searchLog)

/// Prints all categories to stderr when LUMENSCRIPT_DEBUG=1; silent (but for warnings) otherwise.
void setUpLogging();

} // namespace lumen
