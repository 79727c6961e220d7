// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/views/verse_positions.h"

#include <algorithm>

namespace lumen {

int VersePositions::verseAt(int caret) const
{
    if (m_positions.empty())
        return 1;
    const auto behind = std::upper_bound(
        m_positions.begin(), m_positions.end(), caret,
        [](int position, const VersePosition& entry) { return position < entry.start; });
    return behind == m_positions.begin() ? m_positions.front().verse : std::prev(behind)->verse;
}

std::optional<VersePosition> VersePositions::find(int verse) const
{
    const auto found =
        std::find_if(m_positions.begin(), m_positions.end(),
                     [verse](const VersePosition& entry) { return entry.verse == verse; });
    if (found == m_positions.end())
        return std::nullopt;
    return *found;
}

} // namespace lumen
