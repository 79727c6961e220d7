// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/note_list.h"

#include <algorithm>
#include <iterator>

namespace lumen {

QString NoteList::editedText() const
{
    return m_editedRow < 0 ? QString() : m_notes[static_cast<std::size_t>(m_editedRow)].text;
}

void NoteList::fill(std::vector<Note> notes)
{
    m_notes = std::move(notes);
    m_editedRow = m_notes.empty() ? -1 : 0;
}

void NoteList::edit(int row)
{
    if (row >= 0 && row <= lastRow())
        m_editedRow = row;
}

bool NoteList::add(const QString& place)
{
    const bool taken = std::any_of(m_notes.cbegin(), m_notes.cend(),
                                   [&](const Note& note) { return note.place == place; });
    if (taken)
        return false;
    m_notes.push_back({place, QString()});
    m_editedRow = lastRow();
    return true;
}

void NoteList::setText(const QString& text)
{
    if (m_editedRow >= 0)
        m_notes[static_cast<std::size_t>(m_editedRow)].text = text;
}

void NoteList::remove()
{
    if (m_editedRow < 0)
        return;
    m_notes.erase(m_notes.begin() + m_editedRow);
    m_editedRow = std::min(m_editedRow, lastRow());
}

bool NoteList::moveUp()
{
    if (m_editedRow <= 0)
        return false;
    swapWith(m_editedRow - 1);
    return true;
}

bool NoteList::moveDown()
{
    if (m_editedRow < 0 || m_editedRow >= lastRow())
        return false;
    swapWith(m_editedRow + 1);
    return true;
}

void NoteList::swapWith(int row)
{
    std::swap(m_notes[static_cast<std::size_t>(m_editedRow)],
              m_notes[static_cast<std::size_t>(row)]);
    m_editedRow = row;
}

std::vector<Note> storableNotes(const std::vector<Note>& notes)
{
    std::vector<Note> storable;
    std::copy_if(notes.cbegin(), notes.cend(), std::back_inserter(storable),
                 [](const Note& note) { return !note.text.isEmpty(); });
    return storable;
}

} // namespace lumen
