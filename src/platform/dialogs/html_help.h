// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>

namespace lumen {

/// The program's help: pages, index and search page. NotFound when the help is not installed.
class HtmlHelp
{
public:
    virtual ~HtmlHelp() = default;
    virtual Result<Done> showPage(const QString& page) = 0;
    virtual Result<Done> showIndex() = 0;
    virtual Result<Done> showSearch() = 0;
};

} // namespace lumen
