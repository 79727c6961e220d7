// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace lumen {

/// What one copy puts on the clipboard; empty parts are left out.
struct ClipboardContent
{
    QString plain;
    QString html;
    QByteArray rtf; ///< code page 949
};

class Clipboard
{
public:
    virtual ~Clipboard() = default;
    virtual void set(const ClipboardContent& content) = 0;
    virtual QString plainText() const = 0;
};

} // namespace lumen
