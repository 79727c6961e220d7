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

#include <utility>

namespace lumen {

Windows::Windows(Services& services, AppState& state) : m_services(services), m_state(state) {}

Windows::~Windows() = default;

void Windows::setReader(frm성서& reader)
{
    m_reader = &reader;
    reader.closeToolWindows = [this] { return closeAll(); };
}

template <typename Window>
void Windows::raise(std::unique_ptr<Window>& window)
{
    if (!window)
        window = std::make_unique<Window>(m_services, m_state, m_reader->model);
    if (!window->isVisible())
        window->Form_Load();
    raiseWindow(*window);
}

template <typename Dialog, typename... Arguments>
void Windows::runModally(Arguments&&... arguments)
{
    Dialog dialog(std::forward<Arguments>(arguments)...);
    if constexpr (requires { dialog.Form_Load(); })
        dialog.Form_Load();
    m_services.modal.run(dialog);
}

void Windows::open(WindowId window)
{
    switch (window) {
    case WindowId::Search:
        return raise(m_search);
    case WindowId::Extract:
        return runModally<dlog성서추출>(m_services, m_state);
    case WindowId::Preferences:
        return runModally<dlog환경설정>(m_services, m_reader->model);
    case WindowId::UserVersionPreferences:
        return runModally<dlogUserVersionPref>(m_services, m_reader->model);
    case WindowId::About:
        return runModally<frmAbout>();
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
