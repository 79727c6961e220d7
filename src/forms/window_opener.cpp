// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/window_opener.h"

#include <QWidget>

namespace lumen {

void raiseWindow(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace lumen
