// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <vector>

namespace lumen {

/// Where one verse stands in the text view: UTF-16 units of the plain text, a paragraph end being
/// one. It spans its heading to the end of its last parallel row.
struct VersePosition
{
    int start = 0;
    int length = 0;
    int verse = 0;
};

/// The verse position array of the chapter on show, in text order.
class VersePositions
{
public:
    void add(const VersePosition& position) { m_positions.push_back(position); }
    bool empty() const { return m_positions.empty(); }
    const std::vector<VersePosition>& all() const { return m_positions; }

    /// The verse at a caret position: the last that starts at or before it, the first one before
    /// all of them. 1 in an empty chapter.
    int verseAt(int caret) const;
    /// The place of a verse by its number.
    std::optional<VersePosition> find(int verse) const;

private:
    std::vector<VersePosition> m_positions;
};

} // namespace lumen
