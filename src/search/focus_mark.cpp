// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/focus_mark.h"

#include <QEvent>

namespace lumen {

FocusMark::FocusMark(const QList<QLineEdit*>& boxes, QObject* parent)
    : QObject(parent), m_marked(boxes.first())
{
    for (QLineEdit* box : boxes)
        box->installEventFilter(this);
}

bool FocusMark::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        m_marked = static_cast<QLineEdit*>(watched);
    return QObject::eventFilter(watched, event);
}

} // namespace lumen
