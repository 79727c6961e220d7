// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/item_boxes.h"

#include <QStringView>
#include <QToolButton>
#include <QWidget>

namespace lumen {

/// The buttons and the combo that turn the pages of a result; `panel` holds the three.
struct PageMover
{
    PageMover(QStringView panelName, QStringView previousName, QStringView comboName,
              QStringView nextName);

    QWidget* panel;
    QToolButton* previous;
    ComboBox* pages;
    QToolButton* next;
};

} // namespace lumen
