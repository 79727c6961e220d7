// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/wait_pointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace lumen {

WaitPointer::WaitPointer()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitPointer::~WaitPointer()
{
    QGuiApplication::restoreOverrideCursor();
}

} // namespace lumen
