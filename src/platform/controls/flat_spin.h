// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSpinBox>

#include <functional>

namespace lumen {

/// A flat number box with two small arrows.
class FlatSpin : public QSpinBox
{
    Q_OBJECT

public:
    explicit FlatSpin(QWidget* parent = nullptr);

    int Value() const { return value(); }
    /// Runs onChange when the number changes, as a change of the user does.
    void setNumber(int number) { setValue(number); }

    /// Shows the arrows alone, for a number that has a box of its own; keys don't come here then.
    void showArrowsOnly();

    std::function<void()> onChange;
};

} // namespace lumen
