// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/edit_menu.h"
#include "forms/services.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/tab_control.h"
#include "records/search/record_search.h"
#include "records/search/record_search_panels.h"

#include <QMainWindow>
#include <QStatusBar>
#include <QTimer>

#include <functional>

namespace lumen {

inline constexpr EditToolIds kRecordSearchEditTools{.paste = u"ID_붙여넣기"};

/// The search over a notebook: by day and category, by a word, by up to three words; a grid of
/// previews that leads to the records. It may be closed and loaded again.
class RecordSearchWindow : public QMainWindow // no Q_OBJECT: moc cannot read the members' names
{
public:
    RecordSearchWindow(const RecordProfile& profile, Services& services, AppState& state,
                       QWidget* parent = nullptr);

    /// Fills the window afresh; to be called before it is shown.
    void Form_Load();
    /// Lists every record.
    void showAll();
    const ToolDispatch& toolClicks() const { return m_tools; }

    /// A record was chosen by its number.
    std::function<void(int key)> onOpenRecord;

    ActiveToolBars atbar{*this};
    DaySearchPanel* days;
    EasyRecordSearchPanel* easy;
    PowerRecordSearchPanel* power;
    TabControl* sstSearch = named<TabControl>(u"sstSearch", u"검색 종류");
    FlexGrid* flex결과 = named<FlexGrid>(u"flex결과", u"검색 결과");
    QStatusBar* sb상황판 = named<QStatusBar>(u"sb상황판");
    ElidedLabel* statusPanel1 = named<ElidedLabel>(u"sb상황판(1)");

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void addTools();
    void bindTools();
    void wire();
    void InitFlex결과();
    void focusInput();
    void Proc날짜분류별검색();
    void Proc내용별쉬운검색();
    void Proc내용별파워검색();
    void Proc결과표시();
    void Proc편집(const QWidget* control, EditState& state) const;
    void search(const std::function<RecordSearch::Outcome()>& ask, ComboBox& scope,
                const MessageText& nothingBefore, const std::function<void()>& again);
    void startSearch();
    void fillRows(int budgetMs);
    void openRow(int row);
    void printResult();

    const RecordProfile& m_profile;
    Services& m_services;
    AppState& m_state;
    RecordSearch m_search;
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kRecordSearchEditTools};
    ToolDispatch m_tools;
    QTimer m_fillTimer;
    int m_filled = 0; ///< rows of the result that the grid has
};

} // namespace lumen
