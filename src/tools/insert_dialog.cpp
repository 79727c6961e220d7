// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/insert_dialog.h"

#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/message_boxes.h"
#include "tools/messages.h"

namespace lumen {

namespace {

constexpr VerseRangeFace kFace{u"dlog성구삽입", u"성구 삽입", u"cmd삽입", u"삽입(&I)",
                               messages::kNothingToInsert};

} // namespace

dlog성구삽입::dlog성구삽입(Services& services, const AppState& state, QWidget* parent)
    : VerseRangeDialog(services, state, kFace, parent)
{
}

void dlog성구삽입::deliver(const QString& text, const ExtractRange&)
{
    services().clipboard.set({text, {}, {}});
    services().messages.show(this, messages::kInsertedToClipboard);
    accept();
}

} // namespace lumen
