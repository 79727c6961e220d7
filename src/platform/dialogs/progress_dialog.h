// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/named.h"

#include <QDialog>
#include <QProgressBar>

namespace lumen {

class Modal;

/// How far a long work has come, from its construction until it is destroyed. While it is shown the
/// program's windows take no input, so that the events it lets run to be painted begin no other
/// work; the user can't close it.
class dlog진행정도 : public QDialog // no Q_OBJECT: moc cannot read the name
{
public:
    /// Shown over `owner` with the bar at `minimum`.
    dlog진행정도(Modal& modal, const QString& caption, int minimum, int maximum, QWidget* owner);

    void setValue(int value);

    QProgressBar* bar = named<QProgressBar>(u"bar");

    /// Esc and the close button do nothing.
    void reject() override {}

private:
    Modal& m_modal;
};

} // namespace lumen
