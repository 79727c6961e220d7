// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/dialogs/clipboard.h"

namespace lumen {

/// The desktop's clipboard; RTF goes under "text/rtf" and "application/rtf".
class QtClipboard : public Clipboard
{
public:
    void set(const ClipboardContent& content) override;
    QString plainText() const override;
};

} // namespace lumen
