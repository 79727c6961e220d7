// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/basic_text.h"

#include <QFrame>

#include <functional>

namespace lumen {

/// A box filled with a colour that can be clicked, as the preferences show them. Works by keyboard:
/// blank and Enter are a click.
class PictureBox : public QFrame
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    RgbLong BackColor() const { return m_color; }
    void setBackColor(RgbLong color);

    std::function<void()> onClick;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    RgbLong m_color = 0xFFFFFF;
};

} // namespace lumen
