// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reader/note_list.h"

#include <QString>

#include <vector>

namespace lumen {

class DataControl;

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
