// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/check_data.h"
#include "data/messages.h"
#include "forms/book_combo.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/startup_progress.h"
#include "forms/version_combo.h"
#include "forms/wait_pointer.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "platform/files/process_list.h"
#include "platform/registry/registry_store.h"
#include "reader/bible_window.h"
#include "reader/reader_tools.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

// The splash window's bar at the steps of the start, percent.
constexpr int kProgressStart = 20;
constexpr std::array kProgressLists{25, 40, 50, 60, 70, 80};
constexpr int kProgressView = 85;
constexpr int kProgressColors = 90;
constexpr int kProgressText = 95;
constexpr int kProgressDone = 100;

/// True while the language bar of an input method may lie over the first line of the text.
bool languageBarRuns(const ProcessList& processes)
{
    const QStringList names = processes.names();
    return std::any_of(names.begin(), names.end(), [](const QString& name) {
        return name.contains(u"ctfmon"_s, Qt::CaseInsensitive) ||
               name.contains(u"TF_Float"_s, Qt::CaseInsensitive);
    });
}

} // namespace

bool frm성서::Form_Load(StartupProgress& splash)
{
    m_state.LanguageBarRunning = languageBarRuns(m_services.processes);
    CheckData(m_state, m_services.files, m_services.jet);
    model.takeStock();
    m_state.fonts.userFonts = GetUserFontSize(m_services.registry);
    splash.showSplash();
    splash.setProgress(kProgressStart);
    setUpdatesEnabled(false);
    if (m_state.installed.versionCount == 0) {
        splash.hideSplash();
        m_services.messages.show(this, messages::kNoModules);
        return false;
    }

    const WaitPointer wait;
    m_settings = readReaderSettings(m_services.registry, kPanelTabCount);
    atbar.checkOnly(u"ID_글자크기", u"ID_글자크기%1"_s.arg(m_settings.FontSize));
    setUpVersionLists(splash);
    Load책갈피();
    splash.setProgress(kProgressView);
    loadView();
    splash.setProgress(kProgressColors);
    m_state.fonts.mainFont = m_settings.MainFont;
    applyColors();
    hflex본문->setStretchShares(m_settings.TableColumns);
    FillBookCombo(toolCombo(u"ID_cb책명"));
    panel->sst관주사전->setTab(m_settings.TabNum);
    splash.setProgress(kProgressText);
    showLineSpacing();
    model.open(m_settings);
    splash.setProgress(kProgressDone);
    // The splash window draws its full bar before the reader comes up.
    m_services.modal.letEventsRun();
    setUpdatesEnabled(true);
    Proc시동크기위치설정(m_services.registry, geometry::kBible, *this);
    setBarVisible(u"ID_성서이동도구모음", m_settings.BookToolbar);
    layOutPanel();
    shownView().setFocus();
    splash.hideSplash();
    return true;
}

void frm성서::Load책갈피()
{
    const Result<QStringList> references = m_bookmarkFile.load();
    if (references)
        bookmarks->setReferences(m_storedBookmarks = references.value());
    else
        logIgnoredFailure(references.failure(), "the list of bookmarks starts empty then");
}

void frm성서::setUpVersionLists(StartupProgress& splash)
{
    constexpr std::array<QStringView, kSlotCount> kMenus{u"ID_기본버전", u"ID_대역본1",
                                                         u"ID_대역본2", u"ID_대역본3"};
    splash.setProgress(kProgressLists[0]);
    for (int slot = 0; slot < kSlotCount; ++slot) {
        model.choice(slot).fill(versionCombo(slot));
        setUpVersionMenu(atbar, kMenus[static_cast<std::size_t>(slot)],
                         SetupMenu(m_state.installed, slot));
        splash.setProgress(kProgressLists[static_cast<std::size_t>(slot) + 1]);
    }
    splash.setProgress(kProgressLists.back());
}

void frm성서::loadView()
{
    atbar.tool(u"ID_소주제표시").setChecked(m_settings.ShowMiniTitle);
    atbar.tool(u"ID_표준도구모음").setChecked(true);
    atbar.tool(u"ID_대조도구모음").setChecked(true);
    atbar.tool(u"ID_SidePane").setChecked(true);
    panel->setState(m_settings.RefBarMode);
}

} // namespace lumen
