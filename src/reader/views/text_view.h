// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reader/views/chapter_document.h"

namespace lumen {

class TextControl;

/// The chapter as one flowing document in `txCont`, and the way between its caret and the verses.
class TextView
{
public:
    explicit TextView(TextControl& txCont);

    /// Shows a composed chapter; one without a row empties the view.
    void show(const ComposedChapter& chapter);

    /// The verse of the caret.
    int currentVerse() const;
    /// "3", or "3-5" for a selection over several verses.
    QString currentRange() const;
    /// The verses that the selection holds something of.
    VerseRange selectedRange() const;
    /// Selects verses whole, without scrolling to them; when one end is not there nothing changes.
    void selectRange(const VerseRange& range);
    /// Selects a verse and scrolls to it; a verse that is not there changes nothing.
    void selectVerse(int verse);
    /// The verse at the top of the view; 0 at the head of the chapter.
    int topVerse() const;
    bool isInView(int verse) const;
    /// Brings a verse up to the top, 0 the head of the chapter; nothing is selected.
    void scrollToVerse(int verse);
    /// What the selection holds of each verse; without a selection the current verse, whole.
    std::vector<SelectedVerse> selectedVerses() const;

private:
    TextControl& m_txCont;
    VersePositions m_positions;
    std::vector<ComposedRow> m_rows;
};

/// "3" or "3-5" of two verses in either order.
QString verseRangeText(int first, int last);

} // namespace lumen
