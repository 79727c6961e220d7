// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/results/result_grid.h"
#include "forms/services.h"
#include "forms/versions/version_choice.h"
#include "jet/data_control.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/named.h"
#include "platform/controls/vs_awk.h"
#include "search/original/strong_list_tools.h"
#include "search/verses/easy_panel.h"
#include "text/original/hebrew_division.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace lumen {

class ReaderPlace;

/// The query for the verses of a Strong's number; the language is "히브리어" or "헬라어".
QString strongListQuery(const QString& language, const QString& number);

/// The key of an item of a list of occurrences: one that begins with a digit is the key itself, any
/// other a short reference.
QString occurrenceKey(const QString& item);

/// Lists all verses with a Strong's number, 50 a page, in a version of the user's choice. A click
/// on a verse leads the reader there.
class frm스트롱관주목록 : public QMainWindow // no Q_OBJECT: moc cannot read the name
{
public:
    frm스트롱관주목록(Services& services, AppState& state, ReaderPlace& reader,
                      QWidget* parent = nullptr);

    /// Shows the verses of a number and brings the window to the front. A number without verses
    /// gets a message and leaves the window empty.
    void FillBibleIndex(const QString& language, const QString& strongNumber);
    void atbar_event9(const QString& toolId);
    const ToolDispatch& toolClicks() const { return m_tools; }
    const ToolDispatch& toolCombos() const { return m_combos; }

    ActiveToolBars atbar{*this};
    FlexGrid* flex결과 = named<FlexGrid>(u"flex결과", u"관주 목록");
    PageMover mover{u"pbxPageMover", u"img이전", u"cb페이지", u"img이후"};
    QStatusBar* sb상황판 = named<QStatusBar>(u"sb상황판");
    QLabel* statusPanel1 = named<QLabel>(u"sb상황판(1)");

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void bindTools();
    void wire();
    void chooseReadersVersion();
    void chooseVersion();
    bool readOccurrences(const QString& language, const QString& number);
    void clear();
    void fillPageCombo();
    void fillPage(FillPlace place);
    void readPage(int page, QList<ResultVerse>& verses);
    void turnPage(bool forward);
    int verseCount() const { return vsAwk1.NF(); }
    void openRow();

    Services& m_services;
    AppState& m_state;
    ReaderPlace& m_reader;
    VersionChoice m_versions;
    ChosenVersion m_version; ///< whose texts are shown
    DataControl m_verses;
    FontLineBreaker m_lineBreaker;
    ResultGrid m_results;
    VsAwk vsAwk1; ///< the occurrences
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kStrongListEditTools};
    ToolDispatch m_tools;
    ToolDispatch m_combos;
};

} // namespace lumen
