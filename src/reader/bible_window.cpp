// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/bible_window.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/check_data.h"
#include "data/compact_and_backup.h"
#include "data/messages.h"
#include "data/module_path.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "forms/startup_progress.h"
#include "forms/tool_icons.h"
#include "forms/versions/book_combo.h"
#include "forms/versions/version_combo.h"
#include "forms/wait_pointer.h"
#include "forms/window_opener.h"
#include "panel/panel_host.h"
#include "panel/panel_tabs.h"
#include "platform/controls/combo_habits.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/clipboard.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/dialogs/modal.h"
#include "platform/files/process_list.h"
#include "platform/registry/registry_store.h"
#include "reader/copy_tail.h"
#include "reader/messages.h"
#include "reader/reader_tools.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr int kSidePaneWidth = 2500; // twips: two buttons abreast

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

frm성서::frm성서(Services& services, AppState& state, WindowOpener& windows)
    : model(services, state, this), panel(new ReferencePanel(services)), m_services(services),
      m_state(state), m_windows(windows), m_dacRefTab(services.jet),
      m_bookmarkFile(services.files, joinedPath(state.AppPath, u"\\data\\bmk.bmf"))
{
    setObjectName(u"frm성서"_s);
    setWindowTitle(u"루멘 스크립트"_s);
    atbar.add(kReaderFileMenu);
    m_editMenu.addRows();
    atbar.add(kReaderTools);
    atbar.add(kHelpMenu);
    atbar.add(kReaderHelpTools);
    addGeneratedTools();
    setToolIcons(*this, atbar);
    layOut();
    bindTools();
    atbar.onToolClick = [this](const QString& toolId) { atbar_event9(toolId); };
    atbar.onComboChange = [this](const QString& toolId) {
        atbar_event10(toolId);
        // Whoever has picked wants to read on; the arrow keys may go on through the list.
        if (pickedFromList(toolCombo(toolId)))
            shownView().setFocus();
    };
    model.onChange = [this](const ReaderChange& change) { showChange(change); };
    model.onApplySettings = [this] { applySettings(); };
    model.onBringToFront = [this] { bringToFront(); };
    wireTextView();
    wireTableView();
    wirePanes();
}

frm성서::~frm성서() = default;

void frm성서::layOut()
{
    auto* texts = new QWidget;
    auto* textLayout = new QVBoxLayout(texts);
    textLayout->setContentsMargins(0, 0, 0, 0);
    textLayout->addWidget(txCont);
    textLayout->addWidget(hflex본문);
    tx미리보기->setParent(texts);
    tx미리보기->hide();
    hflex본문->hide();
    hflex본문->setSelectionMode(GridSelection::Rows);
    txCont->setTabWidth(kChapterTabWidth);

    auto* sideLayout = new QVBoxLayout(m_sidePane);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addWidget(quickMove, 1);
    sideLayout->addWidget(bookmarks, 1);
    m_sidePane->setFixedWidth(toPixels(kSidePaneWidth));

    m_split->addWidget(texts);
    m_split->addWidget(panel);
    m_split->setChildrenCollapsible(false);

    auto* center = new QWidget;
    auto* row = new QHBoxLayout(center);
    row->setContentsMargins(2, 2, 2, 2);
    row->addWidget(m_sidePane);
    row->addWidget(m_split, 1);
    setCentralWidget(center);

    statusPanel1->setMinimumWidth(220);
    sb상황판->addWidget(statusPanel1);
    sb상황판->addPermanentWidget(statusPanel2);
    setStatusBar(sb상황판);
}

void frm성서::layOutPanel()
{
    // Collapsed, the headers lie below the text as a strip; expanded, the panel stands beside it.
    const bool expanded = panel->state() == PanelState::Expanded;
    m_split->setOrientation(expanded ? Qt::Horizontal : Qt::Vertical);
    panel->setMaximumHeight(expanded ? QWIDGETSIZE_MAX : panel->sst관주사전->headerHeight());
    m_split->handle(1)->setEnabled(expanded);
    m_split->setRatio(expanded ? m_settings.RefBarRatio : 1.0);
    atbar.tool(u"ID_Panel").setChecked(expanded);
}

void frm성서::wireTextView()
{
    txCont->onMouseUp = [this](Qt::MouseButton button, const QPoint&) {
        if (button == Qt::RightButton)
            return;
        reportStand();
    };
    txCont->onKeyUp = [this](int, Qt::KeyboardModifiers) { reportStand(); };
    txCont->onContextMenu = [this](const QPoint& at) {
        reportStand(); // the button has moved the caret
        m_editMenu.popUp(at);
    };
    txCont->onSelectionChange = [this] {
        settle();
        guarded(m_services, this, [this] { panel->showSelection(); });
    };
    txCont->onCopy = [this] { copySelection(OriginalText::FontCodes); };
    txCont->onResizeEnded = [this] {
        // The lines of Hebrew verses are cut to the width of the view.
        if (model.view() == ViewMode::Text && model.holdsHebrew())
            FillBibleText();
    };
}

void frm성서::wireTableView()
{
    // What the menu behind the right button does is done to the row that is marked here.
    hflex본문->onMouseUp = [this](Qt::MouseButton, const QPoint& position) {
        if (const int row = hflex본문->rowAtPoint(position); row >= 1) {
            m_views.markRow(row);
            reportStand();
        }
    };
    hflex본문->onKeyUp = [this](int) {
        m_views.markRow(hflex본문->RowSel());
        reportStand();
    };
    hflex본문->onSelChange = [this] {
        settle();
        guarded(m_services, this, [this] { panel->showSelection(); });
    };
    m_editMenu.offerOn(*hflex본문);
    hflex본문->onResizeEnded = [this] {
        if (model.view() == ViewMode::Table && model.holdsHebrew())
            FillBibleText();
    };
}

void frm성서::wirePanes()
{
    quickMove->onMove = [this](QString& reference) { model.Proc이동(reference); };
    bookmarks->onMove = [this](const QString& reference) {
        QString target = reference;
        model.Proc이동(target);
    };
    // Not at the end alone: a power cut must not take marks away.
    bookmarks->onChanged = [this] { Save책갈피(); };
    bookmarks->currentReference = [this] { return model.reference(); };

    addPanelTabs(*panel, {.services = m_services,
                          .state = m_state,
                          .reader = model,
                          .dacRefTab = m_dacRefTab,
                          .baseModule = [this] { return model.baseModule(); },
                          .openStrongList =
                              [this](const QString& language, const QString& number) {
                                  m_windows.openStrongList(language, number);
                              },
                          .popUpEditMenu = [this](const QPoint& at) { m_editMenu.popUp(at); }});
    panel->onStatus = [this](const QString& text) { statusPanel1->setText(text); };
    panel->onLayout = [this] { layOutPanel(); };
    m_split->onMoved = [this] {
        if (panel->state() == PanelState::Expanded)
            m_settings.RefBarRatio = m_split->ratio();
    };
}

void frm성서::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    model.appear();
}

void frm성서::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    // At minimising, and once more when the window comes back if that has failed.
    if (isMinimized() != m_isMinimized)
        guarded(m_services, this, [this] { panel->leave(); });
    m_isMinimized = isMinimized();
}

void frm성서::closeEvent(QCloseEvent* event)
{
    if (m_unloaded || Form_Unload()) {
        m_unloaded = true;
        event->accept();
        return;
    }
    event->ignore();
}

void frm성서::bringToFront()
{
    raiseWindow(*this);
}

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

void frm성서::SelectClickedWord()
{
    txCont->SelectClickedWord();
}

void frm성서::showChange(const ReaderChange& change)
{
    if (change.versions)
        showVersions();
    if (change.view)
        showViewMode();
    if (change.text) {
        showPlace();
        tellUnreadVersions();
    }
    if (change.text || change.view)
        showText();
    if (change.marked != 0)
        Proc절선택표시(change.marked);
    if (change.text || change.view || change.stand) {
        guarded(m_services, this, [this] { panel->showPlace(); });
        Proc현재위치표시();
    }
    if (change.moved.isEmpty())
        return;
    quickMove->remember(change.moved);
    // Whoever has typed a place wants to read, mark and copy there.
    if (quickMove->isTyping())
        shownView().setFocus();
}

void frm성서::showPlace()
{
    // The events of combos that are set here ask the model for what it has already.
    ComboBox& books = toolCombo(u"ID_cb책명");
    ComboBox& chapters = toolCombo(u"ID_cb장");
    if (books.ListIndex() != model.book() || chapters.ListCount() != chapterCount(model.book()))
        fillChapterCombo(chapters, model.book());
    books.setListIndex(model.book());
    chapters.setListIndex(model.chapter() - 1);
}

void frm성서::settle()
{
    model.settle(m_views.currentVerse(), m_views.currentRange());
}

void frm성서::reportStand()
{
    settle();
    model.stand();
}

void frm성서::Proc절선택표시(int verse)
{
    m_views.selectVerse(verse);
    settle();
}

void frm성서::Proc현재위치표시()
{
    const int verse = model.GetCurVerse();
    QString place;
    if (verse != 0)
        place = u"%1 %2장"_s.arg(bookName(model.book())).arg(model.chapter());
    // An empty page has no verse to stand at.
    if (verse != 0 && model.hasText())
        place += u" %1절"_s.arg(verse);
    statusPanel2->setText(place);
}

void frm성서::FillBibleText()
{
    showText();
    guarded(m_services, this, [this] { panel->showPlace(); });
    Proc현재위치표시();
}

void frm성서::showText()
{
    const WaitPointer wait;
    m_views.show();
    settle();
}

void frm성서::tellUnreadVersions()
{
    QStringList unread;
    QStringList problems;
    for (const ChapterSource& source : model.text()) {
        if (source.problem.isEmpty())
            continue;
        unread << model.versionName(source.slot);
        problems << unread.last() + u": "_s + source.problem;
    }
    // Once for as long as the same modules fail, not with each chapter.
    if (std::exchange(m_unreadTold, unread) != unread && !unread.isEmpty())
        m_services.messages.show(this, messages::kVersionUnread, {problems.join(u"\r\n"_s)});
}

void frm성서::Proc텍스트미리보기채우기()
{
    m_views.showPreview(*tx미리보기, model.readPreview());
}

void frm성서::applyColors()
{
    txCont->setBackColor(m_settings.colors.BackColor);
    hflex본문->setBackColor(m_settings.colors.BackColor);
}

void frm성서::applySettings()
{
    const ReaderSettings stored = readReaderSettings(m_services.registry, kPanelTabCount);
    m_settings.MainFont = stored.MainFont;
    m_settings.colors = stored.colors;
    m_settings.copy = stored.copy;
    m_state.fonts.mainFont = stored.MainFont;
    m_state.fonts.userFonts = GetUserFontSize(m_services.registry);
    applyColors();
    FillBibleText();
}

void frm성서::copySelection(OriginalText originals)
{
    settle(); // a key may copy while the button that selects is still down
    const std::vector<SelectedVerse> selected = m_views.selectedVerses();
    if (selected.empty())
        return;
    std::vector<CopiedVerse> copied;
    for (const SelectedVerse& verse : selected) {
        const VersionFont font = GetVersionFont(verse.code, m_state.fonts);
        const auto slot = static_cast<std::size_t>(verse.slot);
        const QString label = verse.verse > 0 ? QString::number(verse.verse) : QString();
        copied.push_back({verse.code, label, verse.text, font.font,
                          scaledSize(font.factor, rtfSizes(m_settings.FontSize).text),
                          verse.slot == 0 ? m_settings.colors.DefVerColor
                                          : m_settings.colors.verColors[slot - 1]});
    }
    CopyOptions options = readCopyOptions(m_services.registry);
    options.crLf = m_settings.copy.crLf; // unlike the others it counts as it was at the start
    CopySource source;
    for (int slot = 0; slot < kSlotCount; ++slot)
        if (slot == 0 || model.versionCode(slot) != 0)
            source.versions << model.versionName(slot);
    source.bookName = bookName(model.book());
    source.abbreviation = bookAbbreviation(model.book());
    source.chapter = QString::number(model.chapter());
    source.verseRange = model.GetCurVerseRange();
    m_services.clipboard.set(composeVerseCopy(copied, copyEnding(options, source), originals));
}

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
    panel->closeTabs();
    m_dacRefTab.Close();
    QStringList notCopied;
    for (const UserFile& file : {user_file::kNotes, user_file::kBookmarks})
        notCopied << CompactAndBackup(m_state.AppPath, file, m_services.jet, m_services.files);
    return notCopied;
}

} // namespace lumen
