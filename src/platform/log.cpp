// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/log.h"

#include "platform/result.h"

namespace lumen {

Q_LOGGING_CATEGORY(platformLog, "lumen.platform", QtWarningMsg)
Q_LOGGING_CATEGORY(jetLog, "lumen.jet", QtWarningMsg)
Q_LOGGING_CATEGORY(dataLog, "lumen.data", QtWarningMsg)
Q_LOGGING_CATEGORY(formsLog, "lumen.forms", QtWarningMsg)
Q_LOGGING_CATEGORY(searchLog, "lumen.search", QtWarningMsg)

void setUpLogging()
{
    if (qEnvironmentVariableIntValue("LUMENSCRIPT_DEBUG") == 1)
        QLoggingCategory::setFilterRules(QStringLiteral("lumen.*=true"));
}

void logIgnoredFailure(const Failure& failure, const char* reason)
{
    qCInfo(platformLog) << "passed over:" << failure.detail << "because" << reason;
}

} // namespace lumen
