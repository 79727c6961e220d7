// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace lumen {

class DataControl;

/// A note of the user on a verse range: the place reads "요3:16" or "요3:16-18".
struct Note
{
    QString place;
    QString text;

    friend bool operator==(const Note&, const Note&) = default;
};

/// The notes of one chapter in the user's order, and the one that is being edited, without the grid
/// that shows them. Rows are zero-based; -1 means that none is edited.
class NoteList
{
public:
    const std::vector<Note>& notes() const { return m_notes; }
    bool empty() const { return m_notes.empty(); }
    int editedRow() const { return m_editedRow; }
    /// The text of the edited note, "" when there is none.
    QString editedText() const;

    /// Takes over the notes of a chapter; the first is edited.
    void fill(std::vector<Note> notes);
    void edit(int row);
    /// Adds an empty note at the end and edits it; false when the place has one already.
    bool add(const QString& place);
    void setText(const QString& text);
    /// Removes the edited note; the one behind it, else the new last one is edited.
    void remove();
    /// False when the edited note stands at the end already.
    bool moveUp();
    bool moveDown();

private:
    int lastRow() const { return static_cast<int>(m_notes.size()) - 1; }
    void swapWith(int row);

    std::vector<Note> m_notes;
    int m_editedRow = -1;
};

/// The notes that a save stores, in their order: all but those without text.
std::vector<Note> storableNotes(const std::vector<Note>& notes);

/// What the places of a chapter begin with, "창1:". Books are zero-based.
QString noteChapter(int book, int chapter);

/// The table of notes behind the data control `dacPersnote`. Failures are JetErrors.
class PersonalNotes
{
public:
    /// `databasePath` is the program's path of myc.mdb.
    PersonalNotes(DataControl& dacPersnote, QString databasePath);

    /// True when the data control stands on the table of notes.
    bool isOpen() const;
    /// True when the open table can't be written.
    bool isReadOnly() const;
    /// The notes of a chapter in their order.
    std::vector<Note> load(const QString& chapter);
    /// Puts `notes` in the place of all notes of the chapter, in one step on disk: after a failure
    /// or a crash the old ones are there. Notes without text aren't stored.
    void save(const QString& chapter, const std::vector<Note>& notes);

private:
    void open(const QString& query);

    DataControl& m_dacPersnote;
    QString m_databasePath;
};

} // namespace lumen
