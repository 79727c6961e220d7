// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tools/verse_range_dialog.h"

namespace lumen {

/// Puts a verse range on the clipboard for pasting into a record, and closes. It shares the range
/// of the last time with dlog성서추출.
class dlog성구삽입 : public VerseRangeDialog
{
public:
    dlog성구삽입(Services& services, const AppState& state, QWidget* parent = nullptr);

protected:
    void deliver(const QString& text, const ExtractRange& range) override;
};

} // namespace lumen
