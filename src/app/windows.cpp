// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/windows.h"

#include "forms/guarded.h"
#include "platform/dialogs/modal.h"
#include "reader/bible_window.h"
#include "records/illustrations/illustration_window.h"
#include "records/mail/address_dialogs.h"
#include "records/mail/mail_settings_dialog.h"
#include "records/mail/send_mail_window.h"
#include "records/record_window.h"
#include "search/original/strong_list_window.h"
#include "search/search_window.h"
#include "tools/about_window.h"
#include "tools/extract_dialog.h"
#include "tools/insert_dialog.h"
#include "tools/map/map_window.h"
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

template <typename Window, typename... Arguments>
void Windows::raise(std::unique_ptr<Window>& window, Arguments&&... arguments)
{
    if (!window)
        window = std::make_unique<Window>(std::forward<Arguments>(arguments)...);
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
    case WindowId::Reader:
        return raiseWindow(*m_reader);
    case WindowId::Search:
        return raise(m_search, m_services, m_state, m_reader->model);
    case WindowId::Extract:
        return runModally<dlog성서추출>(m_services, m_state);
    case WindowId::Preferences:
        return runModally<dlog환경설정>(m_services, m_reader->model);
    case WindowId::UserVersionPreferences:
        return runModally<dlogUserVersionPref>(m_services, m_reader->model);
    case WindowId::About:
        return runModally<frmAbout>();
    case WindowId::Sermons:
        return raise(m_sermons, record_profile::kSermon, m_services, m_state, *this);
    case WindowId::QuietTime:
        return raise(m_quietTime, record_profile::kQuietTime, m_services, m_state, *this);
    case WindowId::Illustrations:
        return raise(m_illustrations, m_services, m_state);
    case WindowId::AddressBook:
        return raise(m_addresses, m_services, m_state);
    case WindowId::SendSermon:
        if (m_sermons)
            raise(m_sending, m_services, m_state, m_sermons->texts());
        return;
    case WindowId::MailSettings:
        return runModally<dlog전자우편환경설정>(m_services);
    case WindowId::Map:
        return raise(m_map, m_services, m_state, m_reader->model, *this);
    }
}

void Windows::search(int version, const QString& words)
{
    open(WindowId::Search);
    m_search->searchFor(version, words);
}

void Windows::openStrongList(const QString& language, const QString& number)
{
    if (!m_strongList)
        m_strongList = std::make_unique<frm스트롱관주목록>(m_services, m_state, m_reader->model);
    m_strongList->FillBibleIndex(language, number);
}

void Windows::openVerseInsertion(QWidget* parent, const std::function<void(const QString&)>& insert)
{
    runModally<dlog성구삽입>(m_services, m_state, insert, parent);
}

void Windows::openHomePage()
{
    m_reader->openHomePage();
}

void Windows::endAtOnce()
{
    for (const auto& notebook : {m_sermons.get(), m_quietTime.get()})
        if (notebook)
            notebook->keepUnsaved();
    QCoreApplication::exit();
}

bool Windows::closeAll()
{
    for (QWidget* mail : std::initializer_list<QWidget*>{m_sending.get(), m_addresses.get()})
        if (mail)
            mail->close();
    for (const auto& notebook : {m_sermons.get(), m_quietTime.get()})
        if (notebook && !notebook->close())
            return false;
    if (m_illustrations && !m_illustrations->close())
        return false;
    if (m_strongList && !m_strongList->close())
        return false;
    if (m_map && !m_map->close())
        return false;
    return !m_search || m_search->close();
}

} // namespace lumen
