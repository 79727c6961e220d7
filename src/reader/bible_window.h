// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/settings.h"
#include "forms/edit_menu.h"
#include "forms/results/verse_copy.h"
#include "forms/services.h"
#include "palette/verse_texts.h"
#include "panel/reference_panel.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/named.h"
#include "platform/controls/splitter.h"
#include "platform/controls/text/text_control.h"
#include "print/print_request.h"
#include "reader/bookmarks/bookmark_file.h"
#include "reader/bookmarks/bookmark_pane.h"
#include "reader/move/quick_move_pane.h"
#include "reader/reader_model.h"
#include "reader/reader_tools.h"
#include "reader/views/chapter_views.h"

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

namespace lumen {

class HotMoveWindow;
class StartupProgress;
class WindowOpener;

/// The main window. It shows what its model holds; all its commands come in by atbar_event9 (tool
/// clicks) and atbar_event10 (tool combos).
class frm성서 : public QMainWindow // no Q_OBJECT: moc cannot read the name
{
public:
    frm성서(Services& services, AppState& state, WindowOpener& windows);
    ~frm성서() override;

    /// Brings everything up behind the splash window, up to the first chapter. False, after a
    /// message, when no version is installed: the program has to end.
    bool Form_Load(StartupProgress& splash);
    /// Takes the tool windows down at the end; false keeps the reader open.
    std::function<bool()> closeToolWindows;

    void atbar_event9(const QString& toolId);
    void atbar_event10(const QString& toolId);

    /// Shows the text that the model holds, in the look that the settings have.
    void FillBibleText();
    /// The chapter on show, as the preview asks for it.
    PrintRequest printRequest();
    /// Fills tx미리보기 with the chapter as the print preview takes it.
    void Proc텍스트미리보기채우기();

    /// Marks a verse in the open view and scrolls to it.
    void Proc절선택표시(int verse);
    /// Writes the place into the second panel of the status bar.
    void Proc현재위치표시();
    /// Selects the word under the pointer in the text view, blanks being its bounds.
    void SelectClickedWord();
    void SaveBibleSettings();
    void Load책갈피();
    void Save책갈피();

    ReaderModel model; // before the tabs, which ask it

    ActiveToolBars atbar{*this};
    TextControl* txCont = named<TextControl>(u"txCont", u"성서 본문");
    TextControl* tx미리보기 = named<TextControl>(u"tx미리보기"); ///< never shown
    FlexGrid* hflex본문 = named<FlexGrid>(u"hflex본문", u"성서 본문 표");
    QStatusBar* sb상황판 = named<QStatusBar>(u"sb상황판");
    QLabel* statusPanel1 = named<QLabel>(u"sb상황판(1)");
    QLabel* statusPanel2 = named<QLabel>(u"sb상황판(2)");
    QuickMovePane* quickMove = new QuickMovePane;
    BookmarkPane* bookmarks = new BookmarkPane;
    ReferencePanel* panel;

    const ToolDispatch& toolClicks() const { return m_tools; }
    /// The page that the settings name, or the program's own.
    void openHomePage();
    const ToolDispatch& toolCombos() const { return m_combos; }

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void layOutPanel();
    void addGeneratedTools();
    void bindTools();
    void bindViewTools();
    void bindMoveTools();
    void bindWindowTools();
    void wireTextView();
    void wireTableView();
    void wirePanes();

    // Form_Load, step by step
    void setUpVersionLists(StartupProgress& splash);
    void loadView();

    bool Form_Unload();
    /// What could not be copied into the backup.
    QStringList compactAndBackUp();
    void tellWhatWasNotStored();

    ComboBox& toolCombo(QStringView id) const { return atbar.tool(id).combo(); }
    ComboBox& versionCombo(int slot) const;
    void showChange(const ReaderChange& change);
    void showPlace();
    void showVersions();
    void showText();
    void showLineSpacing();
    void applySettings();
    void bringToFront();
    /// Tells the model where the view on show stands; reportStand also that the user went there.
    void settle();
    void reportStand();
    void openHotMove(int book);
    void setViewMode(ViewMode mode);
    void showViewMode();
    QWidget& shownView() const;
    /// Opens or closes a pane; `turn` does it and says whether the pane is open then.
    void turnPane(const QWidget& pane, const std::function<bool()>& turn);
    void setLineSpacing(int percent);
    void setFontSize(int step);
    void applyColors();
    void setBarVisible(QStringView barTool, bool visible);
    void openPage(QStringView file);
    void printChapter();
    void copySelection(OriginalText originals);
    bool holdsVerses(const QWidget* control) const;
    bool editVerses(const QWidget* control, EditCommand command);

    void tellUnreadVersions();

    Services& m_services;
    AppState& m_state;
    WindowOpener& m_windows;
    ReaderSettings m_settings; ///< as they are in use now
    ChapterViews m_views{*txCont, *hflex본문, model, m_settings, m_state};
    VerseTexts m_verses;     ///< of the base version, for the palette
    DataControl m_dacRefTab; ///< shared by the tabs of the panel, which point it anew
    BookmarkFile m_bookmarkFile;
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kReaderEditTools};
    ToolDispatch m_tools;
    ToolDispatch m_combos;
    Splitter* m_split = named<Splitter>(u"RefBarSplit");
    QWidget* m_sidePane = named<QWidget>(u"SidePane");

    QStringList m_unreadTold; // what the user knows of versions that can't be read
    bool m_isMinimized = false;
    QStringList m_storedBookmarks;   ///< as the file holds them
    bool m_bookmarksRefused = false; ///< the user knows that they can't be stored
    QStringList m_notStored;         // files of this end that could not be written, with the reason
    bool m_unloaded = false;
};

} // namespace lumen
