// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/versions/book_combo.h"

#include "canon/canon_table.h"
#include "platform/controls/item_boxes.h"

namespace lumen {

void FillBookCombo(ComboBox& combo)
{
    combo.Clear();
    for (int book = 0; book < kBookCount; ++book)
        combo.AddItem(bookName(book));
}

void fillChapterCombo(ComboBox& combo, int book)
{
    combo.Clear();
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
        combo.AddItem(QString::number(chapter));
}

} // namespace lumen
