// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>

class QMainWindow;

namespace lumen {

class ActiveToolBars;

/// Gives the tools of a window the icons of their rows, in colours that fit the desktop's, also
/// when those change later; the bars live as long as the window. Where no plug-in draws SVG the
/// tools keep their captions.
void setToolIcons(QMainWindow& window, const ActiveToolBars& bars);

/// The program's own icon; null where no plug-in draws SVG.
QIcon programIcon();

} // namespace lumen
