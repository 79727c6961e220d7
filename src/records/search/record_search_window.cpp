// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/search/record_search_window.h"

#include "forms/form_geometry.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "forms/tool_icons.h"
#include "forms/wait_pointer.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/clock.h"
#include "platform/registry/registry_store.h"
#include "print/preview_window.h"
#include "records/messages.h"
#include "records/record_print.h"

#include <QApplication>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kCellFrame = 8; // pixels beside a cell's text
constexpr QStringView kToolBar = u"도구 막대";
// How long rows are filled in one go, milliseconds: before the result is shown, which is more than
// a page of them, and then between events.
constexpr int kFirstFill = 40;
constexpr int kNextFill = 8;

// clang-format off
constexpr std::array kFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_인쇄", u"인쇄(&P)...", ToolKind::Button, u"ID_파일", u"Ctrl+P"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_파일"},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
    ToolRow{u"ID_종료", u"종료(&X)", ToolKind::Button, u"ID_파일", u"Ctrl+Q"},
};
constexpr std::array kTools{
    ToolRow{u"ID_보기", u"보기(&V)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_날짜및분류별검색", u"날짜 및 분류별 검색(&1)", ToolKind::Button, u"ID_보기", u"Ctrl+1"},
    ToolRow{u"ID_내용별쉬운검색", u"내용별 쉬운 검색(&2)", ToolKind::Button, u"ID_보기", u"Ctrl+2"},
    ToolRow{u"ID_내용별파워검색", u"내용별 파워 검색(&3)", ToolKind::Button, u"ID_보기", u"Ctrl+3"},
    ToolRow{u"ID_전체목록보기", u"전체 목록 보기(&L)", ToolKind::Button, u"ID_보기", u"Ctrl+L", u"record-list"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_도구막대", u"도구 막대(&T)", ToolKind::Toggle, u"ID_보기"},
    ToolRow{u"ID_도구", u"도구(&T)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_검색", u"검색(&S)", ToolKind::Button, u"ID_도구", u"Ctrl+Return", u"search"},
    ToolRow{u"ID_OpenRecord", u"자료 열기(&O)", ToolKind::Button, u"ID_도구", u"Ctrl+O"},
    ToolRow{u"ID_검색", u"검색", ToolKind::Button, kToolBar},
    ToolRow{u"ID_전체목록보기", u"전체 목록", ToolKind::Button, kToolBar},
    ToolRow{u"ID_복사", u"복사", ToolKind::Button, kToolBar},
};
// clang-format on

QString tidied(const QString& text)
{
    return text.trimmed();
}

} // namespace

RecordSearchWindow::RecordSearchWindow(const RecordProfile& profile, Services& services,
                                       AppState& state, QWidget* parent)
    : QMainWindow(parent), days(new DaySearchPanel(profile)),
      easy(new EasyRecordSearchPanel(profile)), power(new PowerRecordSearchPanel(profile)),
      m_profile(profile), m_services(services), m_state(state),
      m_search(profile, services.jet, state)
{
    setObjectName(profile.names.search.toString());
    setWindowTitle(profile.searchCaption.toString());
    layOut();
    addTools();
    bindTools();
    wire();
}

void RecordSearchWindow::layOut()
{
    sstSearch->addTab(days, u"날짜 및 분류별 검색"_s);
    sstSearch->addTab(easy, u"내용별 쉬운 검색"_s);
    sstSearch->addTab(power, u"내용별 파워 검색"_s);
    auto* central = new QWidget;
    auto* column = new QVBoxLayout(central);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(sstSearch);
    column->addWidget(flex결과, 1);
    setCentralWidget(central);
    sstSearch->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    sb상황판->addWidget(statusPanel1, 1);
    setStatusBar(sb상황판);
}

void RecordSearchWindow::addTools()
{
    atbar.add(kFileMenu);
    m_editMenu.addRows();
    atbar.add(kTools);
    atbar.add(kHelpMenu);
    setToolIcons(*this, atbar);
}

void RecordSearchWindow::bindTools()
{
    m_tools.on(u"ID_인쇄", [this] { printResult(); });
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_tools.on(u"ID_종료", [] { QApplication::closeAllWindows(); });
    m_editMenu.bind(m_tools);
    m_editMenu.onState = [this](const QWidget* control, EditState& state) {
        Proc편집(control, state);
    };
    const QStringView tabTools[] = {u"ID_날짜및분류별검색", u"ID_내용별쉬운검색",
                                    u"ID_내용별파워검색"};
    for (int tab = 0; tab < 3; ++tab)
        m_tools.on(tabTools[tab], [this, tab] {
            sstSearch->setTab(tab);
            focusInput();
        });
    m_tools.on(u"ID_전체목록보기", [this] { showAll(); });
    m_tools.on(u"ID_도구막대", [this] {
        const bool visible = !atbar.barVisible(kToolBar);
        atbar.setBarVisible(kToolBar, visible);
        atbar.tool(u"ID_도구막대").setChecked(visible);
    });
    m_tools.on(u"ID_검색", [this] { startSearch(); });
    m_tools.on(u"ID_OpenRecord", [this] { openRow(flex결과->Row()); });
    bindHelpMenu(m_tools, m_services, this, m_profile.searchHelpPage);
    atbar.onToolClick = [this](const QString& toolId) { m_tools.run(toolId); };
}

void RecordSearchWindow::wire()
{
    connect(days->cmd검색, &QPushButton::clicked, this, [this] { Proc날짜분류별검색(); });
    connect(easy->cmd검색, &QPushButton::clicked, this, [this] { Proc내용별쉬운검색(); });
    connect(power->cmd검색, &QPushButton::clicked, this, [this] { Proc내용별파워검색(); });
    connect(easy->cb검색->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { Proc내용별쉬운검색(); });
    connect(days->cb분류->lineEdit(), &QLineEdit::returnPressed, this,
            [this] { Proc날짜분류별검색(); });
    for (QLineEdit* box : power->boxes()) {
        connect(box, &QLineEdit::returnPressed, this, [this] { Proc내용별파워검색(); });
        m_editMenu.offerOn(*box);
    }
    m_editMenu.offerOn(*easy->cb검색->lineEdit());
    m_editMenu.offerOn(*days->cb분류->lineEdit());
    m_editMenu.offerOn(*flex결과);
    sstSearch->onTabClick = [this](int, int) { focusInput(); };
    flex결과->onDblClick = [this](int row, int) { openRow(row); };
    flex결과->onEnter = [this] { openRow(flex결과->Row()); };
    m_fillTimer.setInterval(0);
    m_fillTimer.callOnTimeout(this, [this] {
        if (!guarded(m_services, this, [this] { fillRows(kNextFill); }))
            m_fillTimer.stop();
    });
}

void RecordSearchWindow::InitFlex결과()
{
    const auto& columns = m_profile.resultColumns;
    flex결과->setSelectionMode(GridSelection::Cells);
    flex결과->setCols(static_cast<int>(columns.size()));
    flex결과->setRows(1);
    flex결과->setSingleLines(true);
    flex결과->setHeaderStyle({.align = GridAlign::Center});
    // With large letters a day needs more than its usual width.
    const int dayWidth = toTwips(fontMetrics().horizontalAdvance(u"2000-00-00 "_s) + kCellFrame);
    for (int col = 0; col < flex결과->Cols(); ++col) {
        const RecordResultColumn& column = columns[static_cast<std::size_t>(col)];
        flex결과->setTextMatrix(0, col, column.header.toString());
        flex결과->setColStyle(col, {.family = u"굴림"_s});
        flex결과->setColWidth(col, std::max(column.width, column.isDay ? dayWidth : 0));
        flex결과->setColHidden(col, column.width == 0);
    }
}

void RecordSearchWindow::Form_Load()
{
    InitFlex결과();
    days->cb분류->Clear();
    guarded(m_services, this, [this] {
        for (const QString& category : m_search.categories())
            days->cb분류->AddItem(category);
    });
    days->reset(m_services.clock.now().date());
    statusPanel1->setText(QString());
    atbar.tool(u"ID_도구막대").setChecked(atbar.barVisible(kToolBar));
    Proc시동크기위치설정(m_services.registry, m_profile.searchGeometry, *this);
}

void RecordSearchWindow::focusInput()
{
    if (sstSearch->Tab() == 1)
        easy->cb검색->setFocus();
    else if (sstSearch->Tab() == 2)
        power->txPSearch1->setFocus();
}

void RecordSearchWindow::startSearch()
{
    if (sstSearch->Tab() == 0)
        Proc날짜분류별검색();
    else if (sstSearch->Tab() == 1)
        Proc내용별쉬운검색();
    else
        Proc내용별파워검색();
}

void RecordSearchWindow::showAll()
{
    guarded(m_services, this, [this] {
        const WaitPointer wait;
        m_search.showAll();
        Proc결과표시();
    });
}

void RecordSearchWindow::Proc날짜분류별검색()
{
    guarded(m_services, this, [this] {
        const WaitPointer wait;
        if (days->op날짜일치->isChecked()) {
            m_search.byDay(days->dayColumn(*days->cb날짜일치), days->dtp날짜일치->date());
        } else if (days->op날짜범위->isChecked()) {
            QDate first = days->dtp날짜시작->date();
            QDate last = days->dtp날짜끝->date();
            if (putInOrder(first, last)) {
                days->dtp날짜시작->setDate(first);
                days->dtp날짜끝->setDate(last);
            }
            m_search.byDays(days->dayColumn(*days->cb날짜범위), first, last);
        } else {
            m_search.byCategory(days->cb분류->Text());
        }
        Proc결과표시();
    });
}

// Without a result to look within it says so and looks through all.
void RecordSearchWindow::search(const std::function<RecordSearch::Outcome()>& ask, ComboBox& scope,
                                const MessageText& nothingBefore,
                                const std::function<void()>& again)
{
    guarded(m_services, this, [&] {
        RecordSearch::Outcome outcome{};
        {
            const WaitPointer wait;
            outcome = ask();
            if (outcome == RecordSearch::Outcome::Searched)
                Proc결과표시();
        }
        if (outcome != RecordSearch::Outcome::NothingFound)
            return;
        m_services.messages.show(this, nothingBefore);
        scope.setListIndex(0);
        again();
    });
}

void RecordSearchWindow::Proc내용별쉬운검색()
{
    const QString word = tidied(easy->cb검색->Text());
    if (word != easy->cb검색->Text())
        easy->cb검색->setEditText(word);
    if (word.isEmpty())
        return;
    const auto scope = static_cast<RecordScope>(easy->cb범위->ListIndex());
    search([&] { return m_search.easy(easy->cb대상->Text(), word, scope); }, *easy->cb범위,
           m_profile.messages.nothingFoundBefore, [this] { Proc내용별쉬운검색(); });
    if (m_search.count() > 0 && easy->cb검색->findItem(word) < 0)
        easy->cb검색->AddItem(word);
    easy->cb검색->lineEdit()->selectAll();
}

void RecordSearchWindow::Proc내용별파워검색()
{
    for (QLineEdit* box : power->boxes())
        if (tidied(box->text()) != box->text())
            box->setText(tidied(box->text()));
    if (power->txPSearch1->text().isEmpty()) {
        m_services.messages.show(this, messages::kNoFirstTerm);
        return;
    }
    const auto scope = static_cast<RecordScope>(power->cbP범위->ListIndex());
    search([&] { return m_search.power(power->cbP대상->Text(), power->terms(), scope); },
           *power->cbP범위, m_profile.messages.nothingFoundBeforePower,
           [this] { Proc내용별파워검색(); });
}

void RecordSearchWindow::Proc결과표시()
{
    m_fillTimer.stop();
    m_filled = 0;
    const int count = m_search.count();
    flex결과->setRows(1);
    // An empty result is an empty line, not a bare header.
    flex결과->setRows(std::max(count, 1) + 1);
    if (count == 0) {
        statusPanel1->setText(u"검색된 항목이 없습니다."_s);
        return;
    }
    fillRows(kFirstFill);
    statusPanel1->setText(u"총 %1개의 항목이 검색되었습니다."_s.arg(count));
    flex결과->setCell(1, 0);
    flex결과->ShowRow(1);
}

// A record that another program has deleted since leaves its line empty.
void RecordSearchWindow::fillRows(int budgetMs)
{
    QElapsedTimer timer;
    timer.start();
    const int count = m_search.count();
    {
        const RedrawHold hold(*flex결과);
        while (m_filled < count && !timer.hasExpired(budgetMs)) {
            const std::optional<QStringList> cells = m_search.row(m_filled++);
            for (int col = 0; cells && col < flex결과->Cols(); ++col)
                flex결과->setTextMatrix(m_filled, col, cells->at(col));
        }
    }
    if (m_filled < count)
        m_fillTimer.start();
    else
        m_fillTimer.stop();
}

void RecordSearchWindow::openRow(int row)
{
    const int key = flex결과->TextMatrix(row, flex결과->Cols() - 1).toInt();
    if (row > 0 && key > 0 && onOpenRecord)
        onOpenRecord(key);
}

void RecordSearchWindow::Proc편집(const QWidget* control, EditState& state) const
{
    const bool isText = control == days->cb분류 || control == easy->cb검색 ||
                        control == power->txPSearch1 || control == power->txPSearch2 ||
                        control == power->txPSearch3;
    if (control == flex결과)
        state = {.copy = true};
    else if (!isText)
        state = {};
}

void RecordSearchWindow::closeEvent(QCloseEvent* event)
{
    m_fillTimer.stop();
    saveFormGeometry(m_services.registry, m_profile.searchGeometry, *this);
    ignoreFailure(m_services.registry.flush(), "unsaved settings never keep the window open");
    m_search.close();
    flex결과->setRows(1);
    QMainWindow::closeEvent(event);
}

void RecordSearchWindow::printResult()
{
    PrintRequest request;
    request.source = m_profile.searchPrintSource.toString();
    request.footerLeft = m_profile.caption.toString() + u" 검색 결과 "_s;
    request.docName = m_profile.caption.toString() + u" 검색 결과"_s;
    request.hasSelection = flex결과->Row() > 0;
    request.layOut = [this](VSPrinter& vp, bool whole) {
        const int last = std::max(flex결과->Row(), flex결과->RowSel());
        const int first = std::min(flex결과->Row(), flex결과->RowSel());
        layOutRecordList(vp, whole ? recordListSheet(m_profile, m_search, 0, m_search.count())
                                   : recordListSheet(m_profile, m_search, first - 1, last));
    };
    openPreview(m_services, m_state.print, std::move(request), this);
}

} // namespace lumen
