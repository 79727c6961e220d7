// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace lumen {

/// One row of the text view: a verse of one version. Positions are those of the shown text.
struct ComposedRow
{
    int slot = 0;
    int code = 0;
    int verse = 0;
    int start = 0;     ///< of the verse number
    int textStart = 0; ///< behind number and separator
    int textEnd = 0;
    QString text; ///< undivided, as it was unscrambled
};

/// What a selection holds of one verse of one version.
struct SelectedVerse
{
    int slot = 0;
    int code = 0;
    int verse = 0; ///< 0 when the selection begins behind the verse number
    QString text;  ///< Hebrew in stored order, its display lines joined again
};

/// The first and the last verse of a selection.
struct VerseRange
{
    int first = 0; ///< 0 when there is none
    int last = 0;

    bool empty() const { return first == 0; }
    void add(int verse)
    {
        if (empty())
            first = verse;
        last = verse;
    }
};

/// The verses that a stretch of the shown text holds something of. One that reaches no further than
/// a verse's heading or number does not hold that verse.
VerseRange rangeBetween(const std::vector<ComposedRow>& rows, int start, int end);

/// The verses of a stretch of the shown text (paragraphs parted by "\n"), cut to the stretch;
/// headings are left out, unless the stretch lies within one: its text then comes as verse 0.
std::vector<SelectedVerse> versesBetween(const std::vector<ComposedRow>& rows, const QString& shown,
                                         int start, int end);

} // namespace lumen
