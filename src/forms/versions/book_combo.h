// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

class ComboBox;

/// Fills a combo with the 66 full names; the list index is the zero-based book.
void FillBookCombo(ComboBox& combo);
/// Fills a combo with 1 to the chapter count of a zero-based book; the list index is the chapter
/// minus 1. In both nothing is chosen afterwards and no event runs.
void fillChapterCombo(ComboBox& combo, int book);

} // namespace lumen
