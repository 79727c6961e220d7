// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/services.h"
#include "jet/data_control.h"
#include "panel/notes/personal_notes.h"
#include "panel/panel_host.h"
#include "panel/panel_tab.h"
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/named.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

namespace lumen {

/// The tab "개인주석": the user's notes on the verses of the chapter on show. The grid holds place
/// and text (hidden) of each note; the notes are stored as a whole when the tab is left.
class PersonalNotesTab : public PanelTab
{
public:
    /// The host outlives the tab.
    explicit PersonalNotesTab(const PanelHost& host);

    QStringView caption() const override { return panel_caption::kPersonalNotes; }
    QWidget* page() override { return m_page; }
    void enter() override;
    void showPlace() override;
    void showSelection() override;
    void leave() override { Proc개인주석저장(); }
    void close() override { dacPersnote.Close(); }

    /// Shows the notes of the reader's chapter; those of a chapter shown before are saved first.
    /// What fails leaves all as it was, under the former chapter's label.
    void Proc개인주석표시();
    /// Adds a note at the place that label and range box tell.
    void Proc개인주석추가();
    /// Saves the notes for the chapter that the list was filled with, unless the table holds the
    /// same already or nobody has touched them.
    void Proc개인주석저장();

    DataControl dacPersnote;

private:
    QWidget* m_page; // before the controls, which it takes over

public:
    QLabel* lbl개인주석책장 = named<QLabel>(u"lbl개인주석책장");
    QLineEdit* tx개인주석절범위 = named<QLineEdit>(u"tx개인주석절범위");
    FlexGrid* flex개인주석목록 = named<FlexGrid>(u"flex개인주석목록");
    QPlainTextEdit* tx개인주석본문 = named<QPlainTextEdit>(u"tx개인주석본문");
    QPushButton* cmd개인주석추가 = named<QPushButton>(u"cmd개인주석추가", u"추가(&I)");
    QPushButton* cmd개인주석삭제 = named<QPushButton>(u"cmd개인주석삭제", u"삭제(&L)");
    QPushButton* cmd개인주석위로 = named<QPushButton>(u"cmd개인주석위로", u"위로(&P)");
    QPushButton* cmd개인주석아래로 = named<QPushButton>(u"cmd개인주석아래로", u"아래로(&W)");

private:
    void layOut();
    void wire();
    void enableControls();
    bool showsReadersChapter() const;
    void tellingOnce(const std::function<void()>& work);
    void fillGrid();
    void showGridRow(int row);
    void rowChanged();
    void textChanged();
    void saveInBetween();
    void cmd개인주석삭제_Click();
    void moved(bool hasMoved);

    Services& m_services;
    const AppState& m_state;
    const ReaderPlace& m_reader;
    PersonalNotes m_notes;
    NoteList m_list;
    std::vector<Note> m_stored; ///< what the table holds for m_chapter
    QString m_chapter;          ///< that the list was filled with, "" before the first fill
    QString
        m_told; ///< why the last place was not shown, or notes not stored; "" when all went well
    bool m_showing = false;
    QTimer* m_typingPause = nullptr; ///< owned by the page
};

} // namespace lumen
