// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/settings.h"
#include "forms/edit_commands.h"
#include "forms/results/result_grid.h"
#include "forms/services.h"
#include "forms/versions/version_choice.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/tab_control.h"
#include "search/input_aids.h"
#include "search/original/original_tab.h"
#include "search/original/parsing_panel.h"
#include "search/verses/bible_search.h"
#include "search/verses/easy_panel.h"
#include "search/verses/found_words.h"
#include "search/verses/power_panel.h"
#include "search/verses/scope_choice.h"
#include "search/verses/search_scope.h"
#include "text/original/hebrew_division.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace lumen {

class ReaderPlace;

/// The tabs of the search window; the values are their numbers.
enum class SearchTab { Easy, Power, Parsing };

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
    const ToolDispatch& toolClicks() const { return m_tools; }
    /// The module and the query behind the open result.
    const DataControl& dacSearch() const { return m_search.dacSearch; }

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
    void bindHelp();
    void wireSearches();
    void wirePages();
    void wireResults();
    void wireTextBox(QLineEdit& box);
    QString typedVersion(const QLineEdit& box) const;
    void Form_Unload();
    void Form_Resize();
    void Proc성서검색창버전설정();
    void edit(EditCommand command);
    void UpdateEditMenu();
    void showToolStates();

    // search_run.cpp: versions, searches, pages
    void cb역본_Click();
    void showVersionFont(int code);
    bool findModule();
    void sstSearch_Click(SearchTab tab);
    void openVerseTab(SearchTab tab);
    void openParsingTab();
    void startSearch();
    void cmd검색_Click();
    void cmdPSearch_Click();
    void run(SearchKind kind, const QString& criterion, const QStringList& words);
    static void tidy(QLineEdit& box);
    void dropResult();
    void ProcFillPageCombo();
    void ProcFillResultPage(int page);
    void showPage(int page);
    void turnPage(bool forward);
    void openVerse(const QString& reference);
    SearchTab currentTab() const { return static_cast<SearchTab>(sstSearch->Tab()); }

    Services& m_services;
    AppState& m_state;
    ReaderPlace& m_reader;
    VersionChoice m_versions;
    ScopeChoice m_scopes;
    BibleSearch m_search;
    OriginalTab m_original;
    InputAids m_inputAids;
    FontLineBreaker m_lineBreaker;
    ResultGrid m_results;
    FoundWords m_foundWords;
    ToolDispatch m_tools;
    SearchSettings m_settings;
    int m_resultCode = 0;   ///< the version of the open result, whichever is chosen since
    bool m_loading = false; ///< the LoadingFlag
    bool m_paged = false;   ///< the PagedFlag: the result spans more than one page
};

} // namespace lumen
