// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/move/move_history.h"

namespace lumen {

bool MoveHistory::add(const QString& entry)
{
    if (m_entries.contains(entry))
        return false;
    m_entries.prepend(entry);
    if (m_entries.size() > kMaxEntries)
        m_entries.removeLast();
    return true;
}

} // namespace lumen
