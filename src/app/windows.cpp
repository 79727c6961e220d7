// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/windows.h"

#include "forms/guarded.h"
#include "platform/dialogs/modal.h"
#include "reader/bible_window.h"
#include "search/original/strong_list_window.h"
#include "search/search_window.h"
#include "tools/about_window.h"
#include "tools/extract_dialog.h"
#include "tools/preferences_dialog.h"
#include "tools/user_version_dialog.h"

namespace lumen {

Windows::Windows(Services& services, AppState& state) : m_services(services), m_state(state) {}

Windows::~Windows() = default;

void Windows::setReader(frm성서& reader)
{
    m_reader = &reader;
    reader.closeToolWindows = [this] { return closeAll(); };
}

void Windows::open(WindowId window)
{
    switch (window) {
    case WindowId::Search:
        if (!m_search)
            m_search = std::make_unique<frm성서검색>(m_services, m_state, m_reader->model);
        if (!m_search->isVisible())
            m_search->Form_Load();
        raiseWindow(*m_search);
        break;
    case WindowId::Extract: {
        dlog성서추출 dialog(m_services, m_state);
        dialog.Form_Load();
        m_services.modal.run(dialog);
        break;
    }
    case WindowId::Preferences: {
        dlog환경설정 dialog(m_services, m_reader->model);
        m_services.modal.run(dialog);
        break;
    }
    case WindowId::UserVersionPreferences: {
        dlogUserVersionPref dialog(m_services, m_reader->model);
        m_services.modal.run(dialog);
        break;
    }
    case WindowId::About: {
        frmAbout about;
        m_services.modal.run(about);
        break;
    }
    }
}

void Windows::openStrongList(const QString& language, const QString& number)
{
    if (!m_strongList)
        m_strongList = std::make_unique<frm스트롱관주목록>(m_services, m_state, m_reader->model);
    m_strongList->FillBibleIndex(language, number);
}

bool Windows::closeAll()
{
    if (m_strongList && !m_strongList->close())
        return false;
    return !m_search || m_search->close();
}

} // namespace lumen
