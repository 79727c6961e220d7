// SPDX-License-Identifier: GPL-2.0-or-later
// The unsaved text of record_manager.h: written while the user types, offered after a crash.
#include "forms/services.h"
#include "jet/engine.h"
#include "jet/error.h"
#include "platform/files/clock.h"
#include "platform/log.h"
#include "records/record_manager.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

void RecordManager::writeDraftWhenDue()
{
    const QDateTime due = m_schedule.due();
    if (!due.isValid())
        return;
    const qint64 wait = m_services.clock.now().msecsTo(due);
    if (wait > 0)
        m_draftTimer.start(static_cast<int>(wait));
    else
        writeDraft();
}

void RecordManager::writeDraft()
{
    if (!isChanged())
        return;
    m_schedule.written();
    m_draftTimer.stop();
    try {
        m_draft.write({m_values.key, m_services.clock.now(), changedParts()});
        m_isDrafted = true;
        m_draftFails = false;
    } catch (const JetError& error) {
        qCWarning(dataLog) << "no draft:" << error.number() << error.text();
        if (!std::exchange(m_draftFails, true) && onDraftFailed)
            onDraftFailed(error);
    }
}

void RecordManager::forgetDraft(int key)
{
    try {
        m_draft.clear(key);
    } catch (const JetError& error) {
        // It would be offered once more, and be found to be what is stored.
        qCWarning(dataLog) << "draft not cleared:" << error.number() << error.text();
    }
}

void RecordManager::collectOffers()
{
    m_offers.clear();
    for (const Draft& draft : m_draft.read()) {
        const RecordValues stored = storedValues(draft.key);
        RecordValues unsaved = stored;
        for (const DraftPart& part : draft.parts)
            applyPart(unsaved, part);
        if (unsaved == stored)
            forgetDraft(draft.key);
        else
            m_offers.push_back(draft);
    }
}

std::optional<Draft> RecordManager::offeredDraft() const
{
    return m_offers.empty() ? std::nullopt : std::optional(m_offers.front());
}

void RecordManager::takeDraft()
{
    const Draft draft = m_offers.front();
    goTo(draft.key);
    if (m_values.key != draft.key)
        addEmptyRecord();
    for (const DraftPart& part : draft.parts) {
        applyPart(m_values, part);
        m_changed.set(static_cast<std::size_t>(part.part));
    }
    // It stays in the file until it is stored, under the number of the record that has it now.
    try {
        if (m_values.key != draft.key)
            m_draft.write({m_values.key, draft.when, draft.parts});
        m_isDrafted = true;
    } catch (const JetError& error) {
        m_offers.erase(m_offers.begin());
        throw;
    }
    if (m_values.key != draft.key)
        forgetDraft(draft.key);
    m_offers.erase(m_offers.begin());
}

void RecordManager::dropDraft()
{
    forgetDraft(m_offers.front().key);
    m_offers.erase(m_offers.begin());
}

} // namespace lumen
