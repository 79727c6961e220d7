// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/compact_and_backup.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "reader/bible_window.h"
#include "reader/messages.h"

using namespace Qt::StringLiterals;

namespace lumen {

bool frm성서::Form_Unload()
{
    // A note that can't be saved keeps the window open, so that its text can be taken elsewhere.
    if (!guarded(m_services, this, [this] { panel->leave(); }))
        return false;
    if (closeToolWindows && !closeToolWindows())
        return false;
    Save책갈피();
    SaveBibleSettings();
    m_notStored << compactAndBackUp();
    tellWhatWasNotStored();
    return true;
}

void frm성서::Save책갈피()
{
    const QStringList& references = bookmarks->references();
    if (m_bookmarkFile.save(references)) {
        m_storedBookmarks = references;
        return;
    }
    // A list that is as it was read has nothing to lose.
    if (references == m_storedBookmarks || m_bookmarksRefused)
        return;
    m_bookmarksRefused = true;
    m_services.messages.show(this, messages::kBookmarksNotSaved);
}

void frm성서::SaveBibleSettings()
{
    m_settings.BookNum = model.book();
    m_settings.ChapNum = model.chapter() - 1;
    m_settings.ViewMode = model.view();
    m_settings.DefVerNum = model.choice(0).previousIndex();
    for (int slot = 1; slot < kSlotCount; ++slot)
        m_settings.Interlinear[static_cast<std::size_t>(slot - 1)] =
            model.choice(slot).previousIndex();
    m_settings.TabNum = panel->sst관주사전->Tab();
    m_settings.RefBarMode = panel->state();
    saveFormGeometry(m_services.registry, geometry::kBible, *this);
    m_settings.TableColumns = hflex본문->StretchShares();
    m_settings.Path = m_state.AppPath;
    saveSettings(m_services.registry, readerTable(), m_settings);
    const Result<Done> stored = m_services.registry.flush();
    m_notStored = stored ? QStringList() : QStringList{stored.failure().detail};
}

void frm성서::tellWhatWasNotStored()
{
    m_notStored.removeAll(QString());
    // A full disc must not keep the program from ending, nor be told again to who knows of it.
    if (!m_notStored.isEmpty() && m_state.canStore)
        m_services.messages.show(this, messages::kNotStored, {m_notStored.join(u"\r\n"_s)});
}

QStringList frm성서::compactAndBackUp()
{
    // What is open can't be compacted.
    model.close();
    m_dacPersnote.Close();
    m_dacRefTab.Close();
    QStringList notCopied;
    for (const UserFile& file : {user_file::kNotes, user_file::kBookmarks})
        notCopied << CompactAndBackup(m_state.AppPath, file, m_services.jet, m_services.files);
    return notCopied;
}

} // namespace lumen
