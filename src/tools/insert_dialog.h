// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tools/verse_range_dialog.h"

#include <functional>

namespace lumen {

/// Puts a verse range on the clipboard for pasting into a record, or straight into the record, and
/// closes. It shares the range of the last time with dlog성서추출.
class dlog성구삽입 : public VerseRangeDialog
{
public:
    /// `insert` puts text at the caret of the record.
    dlog성구삽입(Services& services, const AppState& state,
                 std::function<void(const QString&)> insert, QWidget* parent = nullptr);

    QPushButton* cmd넣기 = named<QPushButton>(u"cmd넣기", u"글에 넣기(&P)");

protected:
    void deliver(const QString& text, const ExtractRange& range) override;

private:
    std::function<void(const QString&)> m_insert;
    bool m_isForText = false;
};

} // namespace lumen
