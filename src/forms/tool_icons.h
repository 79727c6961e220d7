// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>

namespace lumen {

class ActiveToolBars;

/// Gives the tools of a window the icons that there are for them, by tool id. Tools without one,
/// and all tools where no plug-in draws SVG, keep their caption.
void setToolIcons(const ActiveToolBars& bars);

/// The program's own icon; null where no plug-in draws SVG.
QIcon programIcon();

} // namespace lumen
