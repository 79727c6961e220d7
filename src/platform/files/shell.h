// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>

namespace lumen {

/// Opens documents and web pages with the desktop's own programs.
class Shell
{
public:
    virtual ~Shell() = default;
    /// A path of the program or an http(s) address. NotFound when the file is missing.
    virtual Result<Done> open(const QString& target) = 0;
    /// Whether a program is there that writes with RTF texts.
    virtual bool hasWordProcessor() const = 0;
    /// Opens an RTF text in it as a new document without a name.
    virtual Result<Done> openInWordProcessor(const QByteArray& rtf) = 0;
};

} // namespace lumen
