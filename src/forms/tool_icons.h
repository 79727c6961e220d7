// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>

namespace lumen {

class ActiveToolBars;

/// Gives the tools of a window the icons of their rows, in colours that fit a dark desktop too.
/// Where no plug-in draws SVG they keep their captions.
void setToolIcons(const ActiveToolBars& bars);

/// The program's own icon; null where no plug-in draws SVG.
QIcon programIcon();

} // namespace lumen
