// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "records/record_values.h"

#include <QDateTime>

#include <memory>
#include <optional>
#include <vector>

namespace lumen {

class Database;
class FileSystem;
class JetEngine;

/// Unsaved text as a former run has left it.
struct Draft
{
    int key = 0; ///< of its record, which may be gone
    QDateTime when;
    std::vector<DraftPart> parts;
};

/// When unsaved text goes to disk: in the first pause of the user, and after two seconds at the
/// latest, so that a power cut costs no more.
class DraftSchedule
{
public:
    static constexpr int kPauseMs = 500;
    static constexpr int kLongestMs = 1800;

    void changed(const QDateTime& now);
    void written() { m_first = m_last = QDateTime(); }
    /// Invalid while there is nothing to write.
    QDateTime due() const;

private:
    QDateTime m_first;
    QDateTime m_last;
};

/// The file of unsaved text beside a database: the changed parts of the record in hand, put there
/// while the user types and gone once they are stored. Errors are JetErrors.
class RecordDraft
{
public:
    /// The program's path of the file, which is made when there is something to keep.
    RecordDraft(JetEngine& jet, FileSystem& files, QString path);
    ~RecordDraft();
    RecordDraft(const RecordDraft&) = delete;
    RecordDraft& operator=(const RecordDraft&) = delete;

    /// What was left, oldest record first. A file that can't be read holds nothing: it is put
    /// aside.
    std::vector<Draft> read();
    /// In one step, in place of what the record had before.
    void write(const Draft& draft);
    void clear(int key);
    /// Closes the file, and removes it when it holds nothing.
    void close();

private:
    void open();
    bool isThere() const;

    JetEngine& m_jet;
    FileSystem& m_files;
    QString m_path;
    std::unique_ptr<Database> m_database;
};

} // namespace lumen
