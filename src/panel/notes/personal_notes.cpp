// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/notes/personal_notes.h"

#include "canon/canon_table.h"
#include "jet/data_control.h"
#include "jet/transaction.h"

#include <algorithm>
#include <iterator>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

QString chapterQuery(const QString& chapter)
{
    return u"select * from myc where index like '"_s + chapter + u"*'"_s;
}

void deleteAll(Recordset& records)
{
    while (!records.Eof()) {
        records.Delete();
        records.MoveNext();
    }
}

void addAll(Recordset& records, const std::vector<Note>& notes)
{
    int sequence = 0;
    for (const Note& note : storableNotes(notes)) {
        records.AddNew();
        records.Fields(u"seq").setValue(sequence++);
        records.Fields(u"Index").setValue(note.place);
        records.Fields(u"note").setValue(note.text);
        records.Update();
    }
}

} // namespace

QString noteChapter(int book, int chapter)
{
    return bookAbbreviation(book) + QString::number(chapter) + u':';
}

PersonalNotes::PersonalNotes(DataControl& dacPersnote, QString databasePath)
    : m_dacPersnote(dacPersnote), m_databasePath(std::move(databasePath))
{
}

bool PersonalNotes::isOpen() const
{
    return m_dacPersnote.Recordset() != nullptr;
}

bool PersonalNotes::isReadOnly() const
{
    return m_dacPersnote.Database() != nullptr && m_dacPersnote.Database()->isReadOnly();
}

std::vector<Note> PersonalNotes::load(const QString& chapter)
{
    open(chapterQuery(chapter) + u" order by seq"_s);
    std::vector<Note> notes;
    Recordset& records = *m_dacPersnote.Recordset();
    while (!records.Eof()) {
        notes.push_back({Text(records.Fields(u"Index")), Text(records.Fields(u"note"))});
        records.MoveNext();
    }
    return notes;
}

void PersonalNotes::save(const QString& chapter, const std::vector<Note>& notes)
{
    open(chapterQuery(chapter));
    Transaction saving(*m_dacPersnote.Database());
    deleteAll(*m_dacPersnote.Recordset());
    addAll(*m_dacPersnote.Recordset(), notes);
    saving.commit();
    m_dacPersnote.Refresh();
}

void PersonalNotes::open(const QString& query)
{
    m_dacPersnote.DatabaseName = m_databasePath;
    m_dacPersnote.RecordSource = query;
    m_dacPersnote.Refresh();
}

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
