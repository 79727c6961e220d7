// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QComboBox;

namespace lumen {

/// Gives a combo the habits of the program's lists: the wheel leaves a combo without focus alone,
/// arrow keys and wheel pass the items over that setPassedOver has named, and the list drops down
/// and ends at the screen.
void keepComboHabits(QComboBox& combo);

/// Keys and wheel don't stop at an item; it can still be picked from the open list.
void setPassedOver(QComboBox& combo, int index);

/// Whether the list was opened for the choice that is told now: a choice by arrow keys or wheel
/// may go on.
bool pickedFromList(const QComboBox& combo);

} // namespace lumen
