// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/right_to_left_typing.h"

#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace lumen {

bool typesCharacter(const QKeyEvent& release)
{
    if (release.modifiers().testFlag(Qt::ControlModifier))
        return false;
    const int key = release.key();
    if (release.modifiers().testFlag(Qt::KeypadModifier))
        return (key >= Qt::Key_0 && key <= Qt::Key_9) || key == Qt::Key_Plus ||
               key == Qt::Key_Minus;
    return key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde && key != Qt::Key_Equal &&
           key != Qt::Key_Plus;
}

void stepBackAfterTyping(QLineEdit& box, const QKeyEvent& release, const QString& version)
{
    if (!version.startsWith(u"BHS"_s) || !typesCharacter(release))
        return;
    if (box.cursorPosition() >= 1)
        box.setCursorPosition(box.cursorPosition() - 1);
}

} // namespace lumen
