// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/bible_window.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "data/module_path.h"
#include "forms/guarded.h"
#include "forms/tool_icons.h"
#include "forms/window_opener.h"
#include "panel/panel_host.h"
#include "panel/panel_tabs.h"
#include "platform/controls/combo_habits.h"
#include "platform/controls/twips.h"
#include "reader/personal_notes_tab.h"
#include "reader/reader_tools.h"

#include <QCloseEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr int kTabWidth = 350;       // twips: the indent behind the verse numbers
constexpr int kSidePaneWidth = 2500; // twips: two buttons abreast

} // namespace

frm성서::frm성서(Services& services, AppState& state, WindowOpener& windows)
    : model(services, state, this), panel(new ReferencePanel(services)), m_services(services),
      m_state(state), m_windows(windows), m_dacPersnote(services.jet), m_dacRefTab(services.jet),
      m_bookmarkFile(services.files, joinedPath(state.AppPath, u"\\data\\bmk.bmf"))
{
    setObjectName(u"frm성서"_s);
    setWindowTitle(u"루멘 스크립트"_s);
    atbar.add(kReaderTools);
    addGeneratedTools();
    setToolIcons(atbar);
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
    txCont->setTabWidth(kTabWidth);

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
        atbar.popUp(u"ID_편집", at);
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
    hflex본문->onMouseUp = [this](Qt::MouseButton button, const QPoint& position) {
        if (const int row = hflex본문->rowAtPoint(position); row >= 1) {
            m_tableView.markRow(row);
            reportStand();
        }
        // Behind the mark: what the menu does is done to the row under the pointer.
        if (button == Qt::RightButton)
            atbar.popUp(u"ID_편집", hflex본문->viewport()->mapToGlobal(position));
    };
    hflex본문->onKeyUp = [this](int) {
        m_tableView.markRow(hflex본문->RowSel());
        reportStand();
    };
    hflex본문->onSelChange = [this] {
        settle();
        guarded(m_services, this, [this] { panel->showSelection(); });
    };
    hflex본문->onContextMenu = [this](const QPoint& at) { atbar.popUp(u"ID_편집", at); };
    hflex본문->onCopy = [this] { copySelection(OriginalText::FontCodes); };
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

    panel->addTab(std::make_unique<PersonalNotesTab>(m_services, m_state, model, m_dacPersnote));
    addPanelTabs(*panel,
                 {.services = m_services,
                  .state = m_state,
                  .reader = model,
                  .dacRefTab = m_dacRefTab,
                  .baseModule = [this] { return model.baseModule(); },
                  .openStrongList =
                      [this](const QString& language, const QString& number) {
                          m_windows.openStrongList(language, number);
                      },
                  .popUpEditMenu = [this](const QPoint& at) { atbar.popUp(u"ID_편집", at); }});
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
    setWindowState(windowState() & ~Qt::WindowMinimized); // a maximised window stays so
    show();
    raise();
    activateWindow();
}

} // namespace lumen
