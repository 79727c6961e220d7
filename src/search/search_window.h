// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/settings.h"
#include "forms/edit_menu.h"
#include "forms/results/result_grid.h"
#include "forms/services.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/tab_control.h"
#include "search/input_aids.h"
#include "search/original/original_tab.h"
#include "search/original/parsing_panel.h"
#include "search/search_model.h"
#include "search/search_tools.h"
#include "search/verses/easy_panel.h"
#include "search/verses/power_panel.h"
#include "text/original/hebrew_division.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace lumen {

class ReaderPlace;

/// The window in which the Bible is searched: three kinds of search, a result in pages of 50
/// verses, the way from a verse to the reader. It may be closed and loaded again.
class frm성서검색 : public QMainWindow // no Q_OBJECT: moc cannot read the name
{
public:
    frm성서검색(Services& services, AppState& state, ReaderPlace& reader,
                QWidget* parent = nullptr);

    /// Fills the window afresh; the opener calls it before it shows the window.
    void Form_Load();
    void atbar_event9(const QString& toolId);
    /// Searches words in the version of a code, as if they had been typed on the first tab; Hebrew
    /// and Greek are given as Unicode.
    void searchFor(int version, const QString& words);
    const ToolDispatch& toolClicks() const { return m_tools; }
    /// The module and the query behind the open result.
    const DataControl& dacSearch() const { return m_model.lookUps().dacSearch; }

    ActiveToolBars atbar{*this};
    EasyPanel* easy = new EasyPanel;
    PowerPanel* power = new PowerPanel;
    ParsingPanel* parsing = new ParsingPanel;
    ParsingResults parsingResults;
    TabControl* sstSearch = named<TabControl>(u"sstSearch", u"검색 종류");
    FlexGrid* hflex결과 = named<FlexGrid>(u"hflex결과", u"검색 결과");
    QStatusBar* sb상황판 = named<QStatusBar>(u"sb상황판");
    ElidedLabel* statusPanel1 = named<ElidedLabel>(u"sb상황판(1)");
    QLabel* statusPanel2 = named<QLabel>(u"sb상황판(2)");

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // search_window.cpp: building, loading, unloading, tools
    void layOut();
    void addTools();
    void bindTools();
    void wireSearches();
    void wirePages();
    void wireResults();
    void wireTextBox(QLineEdit& box);
    QString typedVersion(const QLineEdit& box) const;
    void Form_Unload();
    void Form_Resize();
    void Proc성서검색창버전설정();
    void Proc검색범위초기화();
    void showToolStates();

    // search_run.cpp: what the controls report to the model, and what it shows in them
    void wireScopes();
    std::optional<QString> askBooks(std::optional<Testament> only);
    void sstSearch_Click(SearchTab tab);
    void startSearch();
    void cmd검색_Click();
    void cmdPSearch_Click();
    static void tidy(QLineEdit& box);
    void showChange(const SearchChange& change);
    void showVersion();
    void showScope();
    void showPages();
    void showPage();
    void openVerse(const QString& reference);

    // search_print.cpp
    QString printedQuery() const;
    void printResult();

    Services& m_services;
    AppState& m_state;
    ReaderPlace& m_reader;
    SearchModel m_model;
    OriginalTab m_original;
    InputAids m_inputAids;
    FontLineBreaker m_lineBreaker;
    ResultGrid m_results;
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kSearchEditTools};
    ToolDispatch m_tools;
    SearchSettings m_settings;
};

} // namespace lumen
