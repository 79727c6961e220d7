// SPDX-License-Identifier: GPL-2.0-or-later
#include "tools/insert_dialog.h"

#include "forms/guarded.h"
#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/message_boxes.h"
#include "tools/messages.h"

#include <utility>

namespace lumen {

namespace {

constexpr VerseRangeFace kFace{u"dlog성구삽입", u"성구 삽입", u"cmd삽입", u"삽입(&I)",
                               messages::kNothingToInsert};

} // namespace

dlog성구삽입::dlog성구삽입(Services& services, const AppState& state,
                           std::function<void(const QString&)> insert, QWidget* parent)
    : VerseRangeDialog(services, state, kFace, parent), m_insert(std::move(insert))
{
    addButton(cmd넣기);
    connect(cmd넣기, &QPushButton::clicked, this, [this] {
        m_isForText = true;
        guarded(this->services(), this, [this] { takeVerses(); });
        m_isForText = false;
    });
}

void dlog성구삽입::deliver(const QString& text, const ExtractRange&)
{
    if (m_isForText) {
        // Line ends of a text are single ones.
        m_insert(QString(text).remove(u'\r'));
        accept();
        return;
    }
    services().clipboard.set({text, {}, {}});
    services().messages.show(this, messages::kInsertedToClipboard);
    accept();
}

} // namespace lumen
