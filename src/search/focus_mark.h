// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLineEdit>
#include <QObject>

namespace lumen {

/// Remembers which of some text boxes had the focus last, as it leaves them for the button that
/// opens the keyboard. Lives as long as its parent.
class FocusMark : public QObject // no Q_OBJECT: nothing here emits
{
public:
    /// The first box bears the mark until another has had the focus.
    FocusMark(const QList<QLineEdit*>& boxes, QObject* parent);

    QLineEdit* box() const { return m_marked; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_marked;
};

} // namespace lumen
