// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/picture_box.h"

#include "platform/controls/colors.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace lumen {

PictureBox::PictureBox(QWidget* parent) : QFrame(parent)
{
    setFrameStyle(StyledPanel | Sunken);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(24, 18);
}

void PictureBox::setBackColor(RgbLong color)
{
    m_color = color;
    update();
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) &&
        onClick)
        onClick();
}

void PictureBox::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool click = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (click && onClick)
        onClick();
    else
        QFrame::keyPressEvent(event);
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(contentsRect(), toColor(m_color));
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = contentsRect().adjusted(2, 2, -2, -2);
        focus.backgroundColor = toColor(m_color);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
    painter.end();
    QFrame::paintEvent(event);
}

} // namespace lumen
