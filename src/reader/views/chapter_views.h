// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/app_state.h"
#include "data/settings.h"
#include "reader/reader_model.h"
#include "reader/views/table_view.h"
#include "reader/views/text_view.h"
#include "text/original/hebrew_division.h"

#include <vector>

namespace lumen {

class FlexGrid;
class TextControl;
class VSPrinter;

/// The chapter in the view that the model names, in the look that the settings have. Another look
/// of the same chapter keeps verse, selection and scroll place.
class ChapterViews
{
public:
    /// What is given outlives the views.
    ChapterViews(TextControl& txCont, FlexGrid& hflex본문, const ReaderModel& model,
                 const ReaderSettings& settings, const AppState& state);

    /// Paints what the model holds.
    void show();
    /// The chapter on show for paper: all of it, or what the view holds selected.
    void layOutForPrint(VSPrinter& vp, bool whole);
    bool hasSelection() const;
    /// Fills a control with a chapter as the print preview takes it.
    void showPreview(TextControl& tx미리보기, const std::vector<ChapterSource>& sources);

    /// Where the view on show stands.
    int currentVerse();
    QString currentRange();
    /// Marks a verse in the view on show and scrolls to it.
    void selectVerse(int verse);
    /// The table's mark goes to a row.
    void markRow(int row) { m_tableView.markRow(row); }
    /// What the view on show holds selected, as a copy takes it.
    std::vector<SelectedVerse> selectedVerses() const;

private:
    /// What has been painted last.
    struct Shown
    {
        int book = -1; ///< -1 before the first
        int chapter = 0;
        ViewMode view = ViewMode::Text;
    };

    /// Where the reader stands in a chapter that comes anew in another look.
    struct KeptPlace
    {
        int verse = 0;       ///< 0: another chapter comes
        VerseRange selected; ///< what the selection spans
        int top = 0;         ///< the verse at the top of the view, 0 the chapter's head
        bool isInView = false;
    };

    bool isText() const { return m_model.view() == ViewMode::Text; }
    KeptPlace placeToKeep();
    void keepPlace(const KeptPlace& kept);
    ChapterStyle textStyle() const;
    TableStyle tableStyle() const;
    QString divideHebrew(const QString& stored, const HebrewTarget& target, bool asRtf) const;
    QStringList versionNames() const;
    void showText();
    void showTable();

    TextControl& m_txCont;
    FlexGrid& m_grid;
    const ReaderModel& m_model;
    const ReaderSettings& m_settings;
    const AppState& m_state;
    mutable FontLineBreaker m_lineBreaker; // remembers widths
    TextView m_textView;
    TableView m_tableView;
    Shown m_shown;
};

} // namespace lumen
