// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/views/verse_selection.h"

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

bool holdsPartOf(const ComposedRow& row, int start, int end)
{
    if (row.textStart == row.textEnd)
        return start <= row.start && end > row.textEnd;
    return std::max(start, row.textStart) < std::min(end, row.textEnd);
}

/// The text of a stretch that touches no row, which is part of a heading.
QString headingBetween(const std::vector<ComposedRow>& rows, const QString& shown, int start,
                       int end)
{
    for (const ComposedRow& row : rows)
        if (start < row.textEnd && end > row.start)
            return {};
    return shown.mid(start, end - start).trimmed();
}

} // namespace

VerseRange rangeBetween(const std::vector<ComposedRow>& rows, int start, int end)
{
    VerseRange range;
    for (const ComposedRow& row : rows)
        if (holdsPartOf(row, start, end))
            range.add(row.verse);
    return range;
}

std::vector<SelectedVerse> versesBetween(const std::vector<ComposedRow>& rows, const QString& shown,
                                         int start, int end)
{
    std::vector<SelectedVerse> selected;
    for (const ComposedRow& row : rows) {
        if (!holdsPartOf(row, start, end))
            continue;
        const int from = std::max(start, row.textStart);
        const int to = std::min(end, row.textEnd);
        const bool whole = from == row.textStart && to == row.textEnd;
        selected.push_back({row.slot, row.code, start <= row.start ? row.verse : 0,
                            whole ? row.text : joinedLines(shown.mid(from, to - from))});
    }
    if (const QString heading = headingBetween(rows, shown, start, end);
        selected.empty() && !heading.isEmpty())
        selected.push_back({0, rows.empty() ? 0 : rows.front().code, 0, heading});
    return selected;
}

} // namespace lumen
