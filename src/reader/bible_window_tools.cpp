// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "data/module_path.h"
#include "forms/guarded.h"
#include "forms/help_menu.h"
#include "forms/results/page_failure.h"
#include "forms/versions/book_combo.h"
#include "forms/versions/version_combo.h"
#include "forms/window_opener.h"
#include "palette/palette_window.h"
#include "platform/dialogs/message_boxes.h"
#include "platform/files/shell.h"
#include "platform/registry/registry_store.h"
#include "print/preview_window.h"
#include "reader/bible_window.h"
#include "reader/chapter_print.h"
#include "reader/messages.h"
#include "reader/move/hot_move_window.h"
#include "reader/reader_tools.h"

#include <QActionGroup>
#include <QToolBar>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

namespace {

constexpr std::array kSlotCombos{u"ID_cb기본버전", u"ID_cb대역본1", u"ID_cb대역본2",
                                 u"ID_cb대역본3"};
constexpr std::array kVersionMenus{u"ID_기본버전", u"ID_대역본1", u"ID_대역본2", u"ID_대역본3"};
/// The product's web page; the value HomePage of the reader's settings names another one.
constexpr QStringView kHomePage = u"https://lumenscript.example/";

/// A tool that opens a window of its own.
struct WindowTool
{
    QStringView id;
    WindowId window;
};
constexpr std::array kWindowTools{
    WindowTool{u"ID_검색", WindowId::Search},
    WindowTool{u"ID_본문추출", WindowId::Extract},
    WindowTool{u"ID_설교매니저", WindowId::Sermons},
    WindowTool{u"ID_QT매니저", WindowId::QuietTime},
    WindowTool{u"ID_예화사전", WindowId::Illustrations},
    WindowTool{u"ID_성서지도", WindowId::Map},
    WindowTool{u"ID_환경설정", WindowId::Preferences},
    WindowTool{u"ID_사용자역본환경설정", WindowId::UserVersionPreferences},
    WindowTool{u"ID_루멘스크립트에대하여", WindowId::About},
};

struct LineSpacingTool
{
    QStringView id;
    int percent;
};
constexpr std::array kLineSpacings{LineSpacingTool{u"ID_줄간격1배", 100},
                                   LineSpacingTool{u"ID_줄간격1.5배", 150},
                                   LineSpacingTool{u"ID_줄간격2배", 200}};
constexpr int kFontSizes = 5;    // steps of the menu
constexpr int kWheelNotch = 120; // eighths of a degree

/// Tells the notches of a wheel that is turned over a view while Ctrl is held; the view, which
/// would enlarge its letters in a way of its own, doesn't see them.
class SizeWheel : public QObject
{
public:
    SizeWheel(QAbstractScrollArea& view, std::function<void(int notches)> onNotches)
        : QObject(&view), m_onNotches(std::move(onNotches))
    {
        view.viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        const auto& wheel = static_cast<QWheelEvent&>(*event);
        if (!wheel.modifiers().testFlag(Qt::ControlModifier)) {
            m_turned = 0;
            return false;
        }
        // Smooth wheels come in parts of a notch.
        m_turned += wheel.angleDelta().y();
        const int notches = m_turned / kWheelNotch;
        m_turned -= notches * kWheelNotch;
        if (notches != 0)
            m_onNotches(notches);
        return true;
    }

private:
    std::function<void(int)> m_onNotches;
    int m_turned = 0;
};

/// Marks tools as a choice of one of them.
void makeChoice(QObject* window, const ActiveToolBars& atbar, const QList<QStringView>& ids)
{
    auto* group = new QActionGroup(window);
    for (const QStringView id : ids)
        group->addAction(atbar.tool(id).action());
}

} // namespace

void frm성서::addGeneratedTools()
{
    for (int tab = 0; tab < kPanelTabCount; ++tab) {
        const QString id = u"ID_PanelTab%1"_s.arg(tab);
        const QString caption = kPanelCaptions[static_cast<std::size_t>(tab)].toString();
        const QString shortcut = u"Alt+%1"_s.arg((tab + 1) % 10);
        atbar.add({id, caption, ToolKind::Button, u"ID_PanelTab", shortcut});
    }
    for (int book = 0; book < kBookCount; ++book) {
        const bool isOld = book < kFirstNewTestamentBook;
        const QString menuTool = u"ID_성서책%1"_s.arg(book);
        const QString button = u"ID_%1"_s.arg(book);
        const QString name = bookName(book);
        const QString abbreviation = bookAbbreviation(book);
        atbar.add(
            {menuTool, name, ToolKind::Button, isOld ? u"ID_OldTestament" : u"ID_NewTestament"});
        atbar.add({button, abbreviation, ToolKind::Button,
                   isOld ? reader_bar::kMove1 : reader_bar::kMove2});
        atbar.tool(button).action()->setToolTip(name);
    }
    // All books of a testament fit into the smallest window.
    atbar.packButtons(reader_bar::kMove1);
    atbar.packButtons(reader_bar::kMove2);
}

ComboBox& frm성서::versionCombo(int slot) const
{
    return toolCombo(kSlotCombos[static_cast<std::size_t>(slot)]);
}

void frm성서::atbar_event9(const QString& toolId)
{
    m_tools.run(toolId);
}

void frm성서::atbar_event10(const QString& toolId)
{
    m_combos.run(toolId);
}

void frm성서::bindTools()
{
    bindViewTools();
    bindMoveTools();
    bindWindowTools();

    m_tools.on(u"ID_인쇄", [this] { printChapter(); });
    m_tools.on(u"ID_닫기", [this] { close(); });
    m_tools.on(u"ID_종료", [this] { close(); });
    m_editMenu.bind(m_tools);
    m_editMenu.onState = [this](const QWidget* control, EditState& state) {
        if (holdsVerses(control)) // without a selection the current verse is copied
            state.copy = state.copyUnicode = state.selectAll;
    };
    m_editMenu.onCommand = [this](const QWidget* control, EditCommand command) {
        return editVerses(control, command);
    };
    for (int slot = 0; slot < kSlotCount; ++slot) {
        const auto at = static_cast<std::size_t>(slot);
        m_combos.on(kSlotCombos[at],
                    [this, slot] { model.chooseVersion(slot, versionCombo(slot).ListIndex()); });
        // The tool's tag is the place of its version in the slot's combo.
        m_tools.onFamily(u"ID_대역본%1-"_s.arg(slot), [this, slot](const QString& version) {
            const Tool tool = atbar.tool(u"ID_대역본%1-"_s.arg(slot) + version);
            model.chooseVersion(slot, tool.tag().toInt());
        });
    }
}

void frm성서::bindViewTools()
{
    makeChoice(this, atbar, {u"ID_텍스트형식", u"ID_테이블형식"});
    makeChoice(this, atbar, {u"ID_줄간격1배", u"ID_줄간격1.5배", u"ID_줄간격2배"});
    makeChoice(
        this, atbar,
        {u"ID_글자크기1", u"ID_글자크기2", u"ID_글자크기3", u"ID_글자크기4", u"ID_글자크기5"});
    m_tools.on(u"ID_표준도구모음", [this] {
        setBarVisible(u"ID_표준도구모음", !atbar.barVisible(reader_bar::kStandard));
    });
    m_tools.on(u"ID_대조도구모음", [this] {
        setBarVisible(u"ID_대조도구모음", !atbar.barVisible(reader_bar::kVersions));
    });
    m_tools.on(u"ID_성서이동도구모음", [this] {
        setBarVisible(u"ID_성서이동도구모음", !atbar.barVisible(reader_bar::kMove1));
    });
    m_tools.on(u"ID_SidePane", [this] {
        turnPane(*m_sidePane, [this] {
            m_sidePane->setVisible(m_sidePane->isHidden());
            return !m_sidePane->isHidden();
        });
        atbar.tool(u"ID_SidePane").setChecked(!m_sidePane->isHidden());
    });
    m_tools.on(u"ID_Panel", [this] {
        turnPane(*panel, [this] {
            panel->toggle();
            return panel->state() == PanelState::Expanded;
        });
    });
    m_tools.onNumbered(u"ID_PanelTab", [this](int tab) { panel->showTab(tab); });
    m_tools.on(u"ID_텍스트형식", [this] { setViewMode(ViewMode::Text); });
    m_tools.on(u"ID_테이블형식", [this] { setViewMode(ViewMode::Table); });
    for (const LineSpacingTool& spacing : kLineSpacings)
        m_tools.on(spacing.id, [this, percent = spacing.percent] { setLineSpacing(percent); });
    m_tools.onNumbered(u"ID_글자크기", [this](int step) { setFontSize(step); });
    const auto turned = [this](int notches) {
        const int step = std::clamp(m_settings.FontSize + notches, 1, kFontSizes);
        if (step != m_settings.FontSize)
            setFontSize(step);
    };
    new SizeWheel(*txCont, turned);
    new SizeWheel(*hflex본문, turned);
    m_tools.on(u"ID_소주제표시", [this] {
        m_settings.ShowMiniTitle = !m_settings.ShowMiniTitle;
        atbar.tool(u"ID_소주제표시").setChecked(m_settings.ShowMiniTitle);
        FillBibleText();
    });
}

void frm성서::bindMoveTools()
{
    m_tools.on(u"ID_이전장", [this] { model.stepChapter(-1); });
    m_tools.on(u"ID_다음장", [this] { model.stepChapter(1); });
    m_tools.on(u"ID_QuickMove", [this] {
        m_sidePane->show();
        atbar.tool(u"ID_SidePane").setChecked(true);
        quickMove->startTyping();
    });
    m_tools.on(u"ID_Palette", [this] {
        runPalette(
            {m_services, m_state, *this, atbar, model, m_verses,
             [this](const QString& words) { m_windows.search(model.versionCode(0), words); }});
    });
    m_tools.on(u"ID_ToText", [this] { shownView().setFocus(); });
    m_tools.on(u"ID_AddBookmark", [this] { bookmarks->cmd책갈피추가_Click(); });
    const auto goToChapter = [this](int book, int chapter) {
        // What shows the place comes here too.
        if (book != model.book() || chapter != model.chapter())
            model.moveTo({book, chapter, 0});
    };
    const auto goToBook = [this, goToChapter](int book) {
        if (book != model.book())
            goToChapter(book, 1);
    };
    m_tools.onNumbered(u"ID_성서책", goToBook);
    m_tools.onNumbered(u"ID_", [this](int book) { openHotMove(book); });
    m_combos.on(u"ID_cb책명", [this, goToBook] { goToBook(toolCombo(u"ID_cb책명").ListIndex()); });
    m_combos.on(u"ID_cb장", [this, goToChapter] {
        goToChapter(model.book(), toolCombo(u"ID_cb장").ListIndex() + 1);
    });
}

void frm성서::bindWindowTools()
{
    for (const WindowTool& tool : kWindowTools)
        m_tools.on(tool.id, [this, window = tool.window] { m_windows.open(window); });
    m_tools.on(u"ID_인터넷", [this] { openHomePage(); });
    for (const ReferencePage& page : kReferencePages)
        m_tools.on(page.tool, [this, file = page.file] { openPage(file); });
    bindHelpMenu(m_tools, m_services, this, u"Lumens_Intro.htm");
}

PrintRequest frm성서::printRequest()
{
    PrintRequest request = chapterRequest(model.book(), model.chapter());
    request.hasSelection = m_views.hasSelection();
    request.layOut = [this](VSPrinter& vp, bool whole) { m_views.layOutForPrint(vp, whole); };
    return request;
}

void frm성서::printChapter()
{
    openPreview(m_services, m_state.print, printRequest(), this);
}

void frm성서::openHomePage()
{
    const QString& own = m_settings.HomePage;
    openPage(own.isEmpty() ? kHomePage : QStringView(own));
}

void frm성서::openPage(QStringView file)
{
    const QString target =
        file.startsWith(u'\\') ? joinedPath(m_state.AppPath, file) : file.toString();
    const Result<Done> opened = m_services.shell.open(target);
    if (!opened)
        tellPageFailure(m_services, this, messages::kPageMissing, {opened.failure().kind, target});
}

void frm성서::setBarVisible(QStringView barTool, bool visible)
{
    if (barTool == u"ID_표준도구모음") {
        atbar.setBarVisible(reader_bar::kStandard, visible);
    } else if (barTool == u"ID_대조도구모음") {
        atbar.setBarVisible(reader_bar::kVersions, visible);
    } else {
        atbar.setBarVisible(reader_bar::kMove1, visible);
        atbar.setBarVisible(reader_bar::kMove2, visible);
        m_settings.BookToolbar = visible;
    }
    atbar.tool(barTool).setChecked(visible);
}

void frm성서::setViewMode(ViewMode mode)
{
    const bool atText = focusWidget() == &shownView();
    model.setView(mode);
    if (atText)
        shownView().setFocus();
}

void frm성서::turnPane(const QWidget& pane, const std::function<bool()>& turn)
{
    const QWidget* const focused = focusWidget();
    const bool within = focused != nullptr && pane.isAncestorOf(focused);
    const bool open = turn();
    // What has gone takes no more keys: the text does.
    if (within && !open)
        shownView().setFocus();
}

QWidget& frm성서::shownView() const
{
    return model.view() == ViewMode::Text ? static_cast<QWidget&>(*txCont) : *hflex본문;
}

void frm성서::showViewMode()
{
    const bool table = model.view() == ViewMode::Table;
    // Never both: what goes is hidden first.
    (table ? static_cast<QWidget*>(txCont) : hflex본문)->hide();
    shownView().show();
    atbar.tool(u"ID_테이블형식").setChecked(table);
    atbar.tool(u"ID_텍스트형식").setChecked(!table);
    for (const LineSpacingTool& spacing : kLineSpacings)
        atbar.tool(spacing.id).setEnabled(!table);
}

void frm성서::setLineSpacing(int percent)
{
    m_settings.LineSpacing = percent;
    showLineSpacing();
    FillBibleText();
}

void frm성서::showLineSpacing()
{
    for (const LineSpacingTool& spacing : kLineSpacings)
        atbar.tool(spacing.id).setChecked(spacing.percent == m_settings.LineSpacing);
    txCont->setLineSpacing(m_settings.LineSpacing);
}

void frm성서::setFontSize(int step)
{
    m_settings.FontSize = step;
    atbar.checkOnly(u"ID_글자크기", u"ID_글자크기%1"_s.arg(step));
    FillBibleText();
}

void frm성서::showVersions()
{
    for (int slot = 0; slot < kSlotCount; ++slot) {
        versionCombo(slot).setListIndex(model.choice(slot).previousIndex());
        const int code = model.versionCode(slot);
        const QString family = u"ID_대역본%1-"_s.arg(slot);
        atbar.checkOnly(family, family + (code == 0 ? u"없음"_s : QString::number(code)));
    }
}

void frm성서::openHotMove(int book)
{
    auto* chapters = new HotMoveWindow(book, this);
    chapters->onChapter = [this, book](int chapter) { model.moveTo({book, chapter, 0}); };
    const QString bar =
        (book < kFirstNewTestamentBook ? reader_bar::kMove1 : reader_bar::kMove2).toString();
    const QWidget* const button =
        atbar.bar(bar)->widgetForAction(atbar.tool(u"ID_%1"_s.arg(book)).action());
    const QPoint corner = button != nullptr ? button->mapToGlobal(QPoint(0, button->height()))
                                            : mapToGlobal(QPoint(0, 0));
    chapters->openAt(corner);
}

bool frm성서::holdsVerses(const QWidget* control) const
{
    return control == txCont || control == hflex본문;
}

bool frm성서::editVerses(const QWidget* control, EditCommand command)
{
    if (command == EditCommand::CopyUnicode) {
        copySelection(OriginalText::Unicode);
        return true;
    }
    if (!holdsVerses(control))
        return false;
    if (command == EditCommand::Copy) {
        copySelection(OriginalText::FontCodes);
        return true;
    }
    if (command != EditCommand::SelectAll)
        return false;
    runEditCommand(command, &shownView(), m_services.clipboard);
    // No key or button of the view's own has told of the new place.
    if (model.view() == ViewMode::Table)
        m_views.markRow(hflex본문->RowSel());
    reportStand();
    return true;
}

} // namespace lumen
