// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/verse_selection.h"

#include <QStringList>

#include <algorithm>

namespace lumen {

namespace {

/// A cut piece of a verse. The display lines of a Hebrew verse run from the end of its stored form
/// to the head.
QString joinedLines(const QString& piece)
{
    QStringList lines = piece.split(u'\n');
    std::reverse(lines.begin(), lines.end());
    return lines.join(QString());
}

} // namespace

std::vector<SelectedVerse> versesBetween(const std::vector<ComposedRow>& rows, const QString& shown,
                                         int start, int end)
{
    std::vector<SelectedVerse> selected;
    for (const ComposedRow& row : rows) {
        const int from = std::max(start, row.textStart);
        const int to = std::min(end, row.textEnd);
        const bool empty = row.textStart == row.textEnd && start <= row.start && end > row.textEnd;
        if (from >= to && !empty)
            continue;
        const bool whole = from == row.textStart && to == row.textEnd;
        selected.push_back({row.slot, row.code, start <= row.start ? row.verse : 0,
                            whole ? row.text : joinedLines(shown.mid(from, to - from))});
    }
    return selected;
}

} // namespace lumen
