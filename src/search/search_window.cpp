// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_window.h"

#include "data/settings.h"
#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "forms/reader_place.h"
#include "forms/right_to_left_typing.h"
#include "forms/tool_icons.h"
#include "forms/versions/version_combo.h"
#include "forms/wait_pointer.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/registry/registry_store.h"
#include "search/messages.h"
#include "search/search_tools.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// Heights of the tab control, twips.
constexpr int kHeightWithPages = 2235;
constexpr int kHeightWithoutPages = 1695;

constexpr QStringView kHelpPage = u"HowtoSearchBible.htm";

} // namespace

frm성서검색::frm성서검색(Services& services, AppState& state, ReaderPlace& reader, QWidget* parent)
    : QMainWindow(parent), m_services(services), m_state(state), m_reader(reader),
      m_model(services, state, this),
      m_original(services, state, *this, *parsing, parsingResults, m_model.lookUps()),
      m_inputAids(services, *this, *easy, *power, *parsing),
      m_results(*hflex결과,
                [this](const QString& text, const QString& font, int halfPoints, int width) {
                    return DivideHebrewCont(text, {font, halfPoints, width}, false, m_lineBreaker);
                })
{
    setObjectName(u"frm성서검색"_s);
    setWindowTitle(u"성서 검색"_s);
    layOut();
    addTools();
    bindTools();
    m_model.onChange = [this](const SearchChange& change) { showChange(change); };
    wireScopes();
    wireSearches();
    wirePages();
    wireResults();
}

void frm성서검색::layOut()
{
    sstSearch->addTab(easy, u"쉬운 검색"_s);
    sstSearch->addTab(power, u"파워 검색"_s);
    sstSearch->addTab(parsing, u"원전분해 검색"_s);
    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(sstSearch);
    column->addWidget(hflex결과, 1);
    column->addWidget(parsingResults.splitParsing, 1);
    setCentralWidget(central);
    sb상황판->addWidget(statusPanel1, 1);
    sb상황판->addPermanentWidget(statusPanel2);
    setStatusBar(sb상황판);
    parsingResults.splitParsing->hide();
}

void frm성서검색::addTools()
{
    atbar.add(kSearchFileMenu);
    m_editMenu.addRows();
    atbar.add(kSearchTools);
    atbar.add(kHelpMenu);
    for (const ScopeRow& scope : kScopes)
        atbar.add({scope.toolId, scope.text, ToolKind::Toggle, u"ID_Scope"});
    setToolIcons(*this, atbar);
}

void frm성서검색::bindTools()
{
    for (const QStringView id : {u"ID_미리보기", u"ID_인쇄"})
        m_tools.on(id, [this] { printResult(); });
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_tools.on(u"ID_종료", [] { QApplication::closeAllWindows(); });
    m_editMenu.bind(m_tools);
    m_editMenu.onCommand = [this](const QWidget* control, EditCommand command) {
        const bool copiesVerses = control == hflex결과 && command == EditCommand::Copy;
        if (copiesVerses)
            m_results.copyTo(m_services.clipboard);
        return copiesVerses;
    };
    for (int index = 0; index < static_cast<int>(kScopes.size()); ++index)
        m_tools.on(kScopes[static_cast<std::size_t>(index)].toolId,
                   [this, index] { m_model.chooseScope(index); });
    m_tools.onFamily(u"ID_대역본0-", [this](const QString& code) {
        m_model.chooseVersion(m_model.versions().indexOf(code.toInt()));
    });
    m_tools.on(u"ID_쉬운검색", [this] { sstSearch->setTab(static_cast<int>(SearchTab::Easy)); });
    m_tools.on(u"ID_파워검색", [this] { sstSearch->setTab(static_cast<int>(SearchTab::Power)); });
    m_tools.on(u"ID_원전분해검색",
               [this] { sstSearch->setTab(static_cast<int>(SearchTab::Parsing)); });
    m_tools.on(u"ID_MarkHits", [this] {
        m_settings.MarkHits = !m_settings.MarkHits;
        hflex결과->viewport()->update();
    });
    m_tools.on(u"ID_검색", [this] { startSearch(); });
    m_tools.on(u"ID_PreviousPage", [this] { m_model.turnPage(false); });
    m_tools.on(u"ID_NextPage", [this] { m_model.turnPage(true); });
    m_tools.on(u"ID_성경창으로이동", [this] { m_reader.bringToFront(); });
    bindHelpMenu(m_tools, m_services, this, kHelpPage);
    atbar.onToolClick = [this](const QString& toolId) { atbar_event9(toolId); };
}

void frm성서검색::wireSearches()
{
    for (ComboBox* versions : {easy->cb역본, power->cbPVersion})
        versions->onClick = [this, versions] { m_model.chooseVersion(versions->ListIndex()); };
    easy->cb검색->onClick = [this] {
        easy->tx검색->setText(easy->cb검색->Text());
        easy->tx검색->setFocus();
    };
    connect(easy->cmd검색, &QPushButton::clicked, this, [this] { cmd검색_Click(); });
    connect(power->cmdPSearch, &QPushButton::clicked, this, [this] { cmdPSearch_Click(); });
    connect(easy->tx검색, &QLineEdit::returnPressed, this, [this] { cmd검색_Click(); });
    power->installEventFilter(this);
    wireTextBox(*easy->tx검색);
    for (QLineEdit* box : power->boxes()) {
        connect(box, &QLineEdit::returnPressed, this, [this] { cmdPSearch_Click(); });
        wireTextBox(*box);
    }
    const auto searchOriginal = [this] { m_original.ProcParsingSearch(m_model.parsingScopeTag()); };
    connect(parsing->cmdParsingSearch, &QPushButton::clicked, this, searchOriginal);
    for (QLineEdit* box : parsing->txHGSearch) {
        connect(box, &QLineEdit::returnPressed, this, searchOriginal);
        wireTextBox(*box);
    }
    m_original.onState = [this](const QString& text) { statusPanel2->setText(text); };
    m_original.onAnalysisLost = [this] { m_model.chooseVersion(0); };
    m_original.onEditMenu = [this](const QPoint& at) { m_editMenu.popUp(at); };
    m_original.onOpenVerse = [this](const QString& reference) { openVerse(reference); };
    sstSearch->onTabClick = [this](int tab, int) { sstSearch_Click(static_cast<SearchTab>(tab)); };
}

void frm성서검색::wireTextBox(QLineEdit& box)
{
    box.installEventFilter(this);
    m_editMenu.offerOn(box);
}

void frm성서검색::wirePages()
{
    for (const PageMover* mover : {&easy->mover, &power->mover}) {
        ComboBox* pages = mover->pages;
        pages->onClick = [this, pages] { m_model.showPage(pages->ListIndex()); };
        connect(mover->previous, &QToolButton::clicked, this, [this] { m_model.turnPage(false); });
        connect(mover->next, &QToolButton::clicked, this, [this] { m_model.turnPage(true); });
    }
}

void frm성서검색::wireResults()
{
    const auto openRow = [this](int row) {
        if (row > 0)
            openVerse(m_results.reference(row));
    };
    hflex결과->onDblClick = [openRow](int row, int) { openRow(row); };
    hflex결과->onEnter = [this, openRow] { openRow(hflex결과->Row()); };
    hflex결과->onResizeEnded = [this] { m_results.divideAnew(); };
    m_editMenu.offerOn(*hflex결과);
    hflex결과->highlight = [this](int row, int col, const QString& text) {
        const bool marked = m_settings.MarkHits && row > 0 && col == ResultGrid::kTextColumn;
        return marked ? m_model.foundWords().ranges(text) : QList<TextRange>();
    };
}

void frm성서검색::Form_Load()
{
    Proc시동크기위치설정(m_services.registry, geometry::kBibleSearch, *this);
    m_settings = readSettings(m_services.registry, searchTable());
    // The tab is opened below, once everything is filled.
    const auto openTab = std::exchange(sstSearch->onTabClick, nullptr);
    sstSearch->setTab(static_cast<int>(SearchTab::Easy));
    sstSearch->onTabClick = openTab;
    Proc성서검색창버전설정();
    Proc검색범위초기화();
    for (ComboBox* condition : {power->cbCond1, power->cbCond2})
        condition->setListIndex(0);
    parsing->reset();
    parsing->cbParVer->setListIndex(0);
    m_original.Form_Load();
    for (QLineEdit* box : {easy->tx검색, power->txPSearch1, power->txPSearch2, power->txPSearch3})
        box->clear();
    m_model.open();
    sstSearch_Click(SearchTab::Easy);
}

void frm성서검색::Proc성서검색창버전설정()
{
    m_model.versions().fill(*easy->cb역본);
    m_model.versions().fill(*power->cbPVersion);
    setUpVersionMenu(atbar, u"ID_버전", SetupMenu(m_state.installed, 0));
    parsing->cbParVer->Clear();
    parsing->cbParVer->AddItem(u"히브리어"_s);
    parsing->cbParVer->AddItem(u"헬라어"_s);
}

void frm성서검색::Form_Unload()
{
    saveFormGeometry(m_services.registry, geometry::kBibleSearch, *this);
    parsingResults.store(m_settings);
    saveSettings(m_services.registry, searchTable(), m_settings);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep the window open");
    m_model.close();
    m_original.Form_Unload();
}

void frm성서검색::closeEvent(QCloseEvent* event)
{
    Form_Unload();
    QMainWindow::closeEvent(event);
}

void frm성서검색::Form_Resize()
{
    const bool parsingTab = m_model.tab() == SearchTab::Parsing;
    const bool paged = m_model.paged();
    easy->mover.panel->setVisible(paged);
    power->mover.panel->setVisible(paged);
    const int height = toPixels(paged ? kHeightWithPages : kHeightWithoutPages);
    // Large fonts need more than the usual height, and so do the conditions of the third tab.
    const QWidget* page = sstSearch->currentWidget();
    const QLayout& inputs = *page->layout();
    const int inputHeight = inputs.hasHeightForWidth() ? inputs.totalHeightForWidth(page->width())
                                                       : inputs.totalMinimumSize().height();
    const int needed = inputHeight + sstSearch->headerHeight() +
                       2 * sstSearch->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    sstSearch->setFixedHeight(std::max(height, needed));
    hflex결과->setVisible(!parsingTab);
    parsingResults.splitParsing->setVisible(parsingTab);
    for (const QStringView mover : {u"ID_PreviousPage", u"ID_NextPage"})
        atbar.tool(mover).setEnabled(paged && !parsingTab);
}

bool frm성서검색::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease)
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            stepBackAfterTyping(*box, *static_cast<QKeyEvent*>(event), typedVersion(*box));
    // The words of the power search stand in more rows in a narrower window.
    if (watched == power && event->type() == QEvent::Resize)
        Form_Resize();
    return QMainWindow::eventFilter(watched, event);
}

QString frm성서검색::typedVersion(const QLineEdit& box) const
{
    // The conditions have a language of their own, whatever version the other tabs search.
    if (const auto hebrew = parsing->takesHebrew(box))
        return *hebrew ? u"BHS"_s : QString();
    return m_model.versionName();
}

void frm성서검색::atbar_event9(const QString& toolId)
{
    m_tools.run(toolId);
    // A click has turned the tool's own check mark round.
    showToolStates();
}

void frm성서검색::showToolStates()
{
    const SearchTab tab = m_model.tab();
    atbar.tool(u"ID_쉬운검색").setChecked(tab == SearchTab::Easy);
    atbar.tool(u"ID_파워검색").setChecked(tab == SearchTab::Power);
    atbar.tool(u"ID_원전분해검색").setChecked(tab == SearchTab::Parsing);
    atbar.tool(u"ID_MarkHits").setChecked(m_settings.MarkHits);
    for (int index = 0; index < static_cast<int>(kScopes.size()); ++index)
        atbar.tool(kScopes[static_cast<std::size_t>(index)].toolId)
            .setChecked(m_model.scope() == index);
    atbar.checkOnly(u"ID_대역본0-", u"ID_대역본0-"_s + QString::number(m_model.code()));
    for (const QStringView id : {u"ID_미리보기", u"ID_인쇄"})
        atbar.tool(id).setEnabled(tab != SearchTab::Parsing && m_model.count() > 0);
}

} // namespace lumen
