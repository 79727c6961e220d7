// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/bookmarks/bookmark_list.h"

#include "text/basic_text.h"

#include <algorithm>

namespace lumen {

void BookmarkList::select(int position)
{
    m_selected = position >= 0 && position < m_references.size() ? position : -1;
}

void BookmarkList::add(const QString& reference)
{
    const QStringView wanted = Trim(reference);
    const bool known = std::any_of(m_references.cbegin(), m_references.cend(),
                                   [&](const QString& item) { return Trim(item) == wanted; });
    if (known)
        return;
    m_references.prepend(reference);
    m_selected = 0;
}

void BookmarkList::remove()
{
    if (m_selected < 0)
        return;
    m_references.removeAt(m_selected);
    m_selected = std::min(m_selected, static_cast<int>(m_references.size()) - 1);
}

void BookmarkList::moveUp()
{
    if (m_selected > 0)
        moveTo(m_selected - 1);
}

void BookmarkList::moveDown()
{
    if (m_selected >= 0 && m_selected < m_references.size() - 1)
        moveTo(m_selected + 1);
}

void BookmarkList::moveTo(int position)
{
    m_references.move(m_selected, position);
    m_selected = position;
}

} // namespace lumen
