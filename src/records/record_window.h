// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "forms/edit_menu.h"
#include "forms/services.h"
#include "platform/controls/bars/active_tool_bars.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/item_boxes.h"
#include "platform/controls/named.h"
#include "platform/controls/tab_control.h"
#include "platform/controls/text/rich_text_box.h"
#include "records/export/record_export.h"
#include "records/record_manager.h"
#include "records/record_tools.h"

#include <QDateEdit>
#include <QMainWindow>
#include <QStatusBar>

namespace lumen {

class RecordSearchWindow;
class WindowOpener;

/// The notebook of sermons or of quiet time, as the profile says: a record's five texts edited in
/// place, stored whenever the user moves on. It may be closed and loaded again.
class RecordWindow : public QMainWindow, private RecordBoxes // no Q_OBJECT: moc can't read names
{
public:
    RecordWindow(const RecordProfile& profile, Services& services, AppState& state,
                 WindowOpener& windows, QWidget* parent = nullptr);
    ~RecordWindow() override;

    /// Opens the notebook at its first record; the opener calls it before it shows the window.
    void Form_Load();
    const ToolDispatch& toolClicks() const { return m_tools; }
    const ToolDispatch& toolCombos() const { return m_combos; }
    RecordManager& manager() { return m_manager; }
    /// The record as it stands in the boxes, stored or not.
    const RecordBoxes& texts() const { return *this; }
    /// Keeps what was not stored, for an end that closes no windows.
    void keepUnsaved();
    /// Stores, then shows the record of a number; false when it could not be stored.
    bool showRecord(int key);
    /// The search over the notebook, in front; made at its first use.
    RecordSearchWindow& openSearch();

    ActiveToolBars atbar{*this};
    std::array<RichTextBox*, kRecordTexts> boxes{};
    QLabel* lbl제목 = named<QLabel>(u"lbl제목", u"제목(&1)");
    TabControl* tabs = nullptr;
    ComboBox* cb분류 = named<ComboBox>(u"cb분류");
    QDateEdit* dtp설교일 = named<QDateEdit>(u"dtp설교일", u"설교일");
    QDateEdit* dtp작성일 = named<QDateEdit>(u"dtp작성일", u"작성일");
    QStatusBar* sb상황판 = named<QStatusBar>(u"sb상황판");
    ElidedLabel* statusPanel1 = named<ElidedLabel>(u"sb상황판(1)");
    QLabel* statusPanel2 = named<QLabel>(u"sb상황판(2)");

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // record_window_layout.cpp: controls and tools
    void makeBoxes();
    void layOut();
    QWidget* makeInfo();
    void addTools();
    void bindTools();
    void bindRecordTools();
    void bindFormatTools();
    void bindExports();
    void bindEditing();

    // record_window.cpp: the record in hand
    QString plainText(int text) const override;
    QString rtf(int text) const override;
    QString category() const override { return cb분류->Text(); }
    QDate preachedDay() const override { return dtp설교일->date(); }
    QDate writtenDay() const override { return dtp작성일->date(); }
    void openNotebook();
    void offerDrafts();
    bool Form_Unload();
    void closeNotebook();
    void Proc필드표시();
    bool Proc저장확인(SaveOutcome outcome);
    void storeHere();
    void moveTo(RecordMove move);
    void addRecord();
    void removeRecord();
    void openHistory();
    void changed(RecordPart part);
    void showPosition();

    // record_window_print.cpp
    void printRecord();
    void printAllRecords();
    void printEach(int count);

    // record_window_format.cpp: what the tools do to the current box
    void ProcUpdateToolBar();
    void Proc선택해제();
    void makeCurrent(RichTextBox& box);
    RichTextBox* activeBox() const;
    void chooseFont();
    void chooseSize(bool keepsSelection);
    void popUpColors();
    void showInsertionState();
    void Form_Resize();

    const RecordProfile& m_profile;
    Services& m_services;
    AppState& m_state;
    WindowOpener& m_windows;
    RecordManager m_manager;
    RecordExport m_export;
    EditMenu m_editMenu{*this, atbar, m_services.clipboard, kRecordEditTools};
    ToolDispatch m_tools;
    ToolDispatch m_combos;
    RichTextBox* m_current = nullptr;
    std::unique_ptr<RecordSearchWindow> m_search;
    bool m_isLoading = true; ///< controls are filled by code
};

} // namespace lumen
