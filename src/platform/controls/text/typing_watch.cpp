// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/typing_watch.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

#include <utility>

namespace lumen {
namespace {

/// Whether an event begins something other than typing on.
bool endsTyping(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Shortcut:
    case QEvent::FocusAboutToChange:
    case QEvent::FocusOut:
    case QEvent::Close:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
    case QEvent::WindowBlocked:
        return true;
    default:
        return false;
    }
}

} // namespace

TypingWatch::TypingWatch(QCoreApplication& application)
{
    application.installEventFilter(this);
}

void TypingWatch::commit()
{
    if (m_syllable.isEmpty())
        return;
    // Most input methods answer with an event of their own, which has come when this returns.
    QGuiApplication::inputMethod()->commit();
    const QString left = std::exchange(m_syllable, QString());
    if (left.isEmpty() || m_box.isNull())
        return;
    QInputMethodEvent event;
    event.setCommitString(left);
    QCoreApplication::sendEvent(m_box, &event);
    // The input method must not bring it a second time.
    QGuiApplication::inputMethod()->reset();
}

bool TypingWatch::eventFilter(QObject* receiver, QEvent* event)
{
    if (event->type() == QEvent::InputMethod) {
        m_syllable = static_cast<QInputMethodEvent*>(event)->preeditString();
        m_box = receiver;
    } else if (endsTyping(event->type())) {
        commit();
    }
    return false;
}

} // namespace lumen
