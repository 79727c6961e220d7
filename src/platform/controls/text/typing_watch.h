// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

class QCoreApplication;

namespace lumen {

/// Takes over the syllable that an input method is still composing before anything else happens:
/// a click, the wheel, a key of a menu, a change of focus, a window that closes, hides or is
/// minimised. Otherwise it would be lost, or go into whatever the box shows next. One for the
/// whole program, so that it holds for every box; it lives as long as it is to watch.
class TypingWatch : public QObject
{
    Q_OBJECT

public:
    explicit TypingWatch(QCoreApplication& application);

    /// Puts the syllable into its box now. Nothing when none is being composed.
    void commit();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QPointer<QObject> m_box; ///< that the syllable is composed in
    QString m_syllable;      ///< "" when none is being composed
};

} // namespace lumen
