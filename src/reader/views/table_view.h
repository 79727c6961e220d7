// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/settings.h"
#include "data/version_font.h"
#include "reader/views/chapter_document.h"

#include <QStringList>

#include <vector>

namespace lumen {

class FlexGrid;

/// What the table takes from the settings and the window.
struct TableStyle
{
    int fontSize = 3; ///< step 1 to 5
    bool showMiniTitle = true;
    ReaderColors colors = kDefaultColors;
    FontSettings fonts;
    /// Breaks a stored Hebrew verse into lines parted by "\r\n"; width in twips, `part` stands in
    /// front of its first line.
    std::function<QString(const QString& stored, const QString& fontName, int halfPoints, int width,
                          const QString& part)>
        divideHebrew;
};

/// A version as a screen reader names it: with its language.
QString spokenVersion(const QString& name, int code);

/// The chapter as a table in `hflex본문`: a mark, the verse number and a column for each open
/// version. The row of the current verse is the grid's Tag.
class TableView
{
public:
    explicit TableView(FlexGrid& hflex본문);

    /// Fills the grid; `headers` has one text for each source. The mark goes to the row in the
    /// Tag, a heading row standing for the verse below it.
    void show(const std::vector<ChapterSource>& sources, const QStringList& headers,
              const TableStyle& style);
    /// Only the header row remains.
    void clear();

    /// The verse of the marked row; 1 while nothing is marked.
    int currentVerse();
    /// "3", or "3-5" for several selected rows.
    QString currentRange();
    /// The verses of the selected rows; a heading row between or behind them adds none.
    VerseRange selectedRange() const;
    /// Selects the rows of verses; when one end is not there nothing changes. The mark stays.
    void selectRange(const VerseRange& range);
    /// The verses of the selected rows in all columns, without the rows' headings; that below for a
    /// heading row alone.
    std::vector<SelectedVerse> selectedVerses(const std::vector<ChapterSource>& sources,
                                              bool withPart) const;
    /// Marks and selects a verse and scrolls to it and its heading; a verse that is not there
    /// changes nothing.
    void selectVerse(int verse);
    /// The verse at the top of the view; 0 at the head of the chapter.
    int topVerse() const;
    bool isInView(int verse) const;
    /// Brings a verse up to the top with its heading, 0 the head of the chapter; nothing is marked.
    void scrollToVerse(int verse);
    /// Moves the mark to a row; rows outside the verses change nothing.
    void markRow(int row);
    /// The verse of a row, that of the verse below for a heading row; 0 outside.
    int verseOfRow(int row) const;

private:
    int verseRowFrom(int row) const;
    int rowOfVerse(int verse) const;
    void addHeading(const ChapterVerse& verse, const TableStyle& style);
    void addVerse(const std::vector<ChapterSource>& sources, const ChapterVerse& base,
                  const TableStyle& style);
    QString cellText(const ChapterSource& source, const ChapterVerse& verse, int col,
                     const TableStyle& style) const;
    void setUpColumns(const std::vector<ChapterSource>& sources, const QStringList& headers,
                      const TableStyle& style);

    void describeCells(const std::vector<ChapterSource>& sources, const QStringList& headers);

    FlexGrid& m_grid;
    std::vector<int> m_verseOfRow; // by grid row; 0 for the header and the heading rows
};

} // namespace lumen
