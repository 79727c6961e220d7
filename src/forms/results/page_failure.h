// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/message_text.h"
#include "platform/result.h"

class QWidget;

namespace lumen {

struct Services;

/// Tells why a page could not be shown: `missing`, whose %1 is the file, or that there is no
/// program on this desktop that shows pages.
void tellPageFailure(Services& services, QWidget* parent, const MessageText& missing,
                     const Failure& failure);

} // namespace lumen
