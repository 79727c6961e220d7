// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/flat_spin.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>

namespace lumen {

FlatSpin::FlatSpin(QWidget* parent) : QSpinBox(parent)
{
    setFrame(false);
    connect(this, &QSpinBox::valueChanged, this, [this] {
        if (onChange)
            onChange();
    });
}

void FlatSpin::showArrowsOnly()
{
    lineEdit()->hide();
    setFocusPolicy(Qt::NoFocus);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(0, 0), sizeHint());
    const QRect arrows =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    setFixedWidth(option.rect.width() - arrows.left());
}

} // namespace lumen
