// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/flat_spin.h"

namespace lumen {

FlatSpin::FlatSpin(QWidget* parent) : QSpinBox(parent)
{
    setFrame(false);
    connect(this, &QSpinBox::valueChanged, this, [this] {
        if (onChange)
            onChange();
    });
}

} // namespace lumen
