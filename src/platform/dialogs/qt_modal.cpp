// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/dialogs/qt_modal.h"

#include <QCoreApplication>
#include <QDialog>

namespace lumen {

int QtModal::run(QDialog& dialog)
{
    return dialog.exec();
}

void QtModal::letEventsRun()
{
    QCoreApplication::processEvents();
}

} // namespace lumen
