// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/guarded.h"

#include "platform/dialogs/message_boxes.h"
#include "platform/jet/jet_engine.h"
#include "platform/log.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kCritical = 16;

} // namespace

void handleEngineError(Services& services, QWidget* parent, const JetError& error)
{
    try {
        services.jet.rollbackAll();
    } catch (const JetError& second) {
        // The first error is the one that tells the user something.
        qCWarning(formsLog) << "rollback failed:" << second.text();
    }
    services.messages.show(parent, u"Lumenscript"_s, error.text(), kCritical);
}

} // namespace lumen
