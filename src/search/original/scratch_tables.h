// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/database.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace lumen {

class FileSystem;
class JetEngine;

/// The scratch database z199.dts of the original-language search: eleven tables of verse keys, each
/// key once in a table. Failures are JetErrors unless told.
///
/// 0 to 4 hold the verses of the five conditions, 5 to 8 what their combining gave, 9 the list that
/// is shown, 10 the last list for a search within results.
class ScratchTables
{
public:
    static constexpr int kShown = 9;
    static constexpr int kLast = 10;

    ScratchTables(JetEngine& jet, FileSystem& files, QString appPath);

    bool exists() const;
    /// Replaces what an earlier run has left, be it full or damaged, by empty tables. A missing
    /// file stays missing. False when the file can't be written anew.
    bool startAfresh();

    /// Opens the database with tables 0 to 9 empty and begins a transaction. False when the file
    /// can't be used.
    bool prepare();
    /// Writes what has been done since prepare() in one step and lets go of the file.
    void close();
    /// Lets go of the file with the tables as they were before prepare().
    void abandon();

    /// "delete * from Table9" and the like.
    void empty(int table);
    /// Adds the keys of a list parted by ";". An empty piece, as behind a last ";", is a key too.
    void StringToDB(const QString& positions, int table);
    /// Adds the column "index" of all records.
    void fill(int table, const Recordset& records);
    std::unique_ptr<Recordset> query(const QString& sql);
    /// The keys of a table in stored order.
    QStringList keys(int table);

    /// What the end of the window does: all tables empty, the file compact again. Failures are only
    /// logged; they never keep the window open.
    void cleanUp();

private:
    QString path() const;
    Database& open();

    JetEngine& m_jet;
    FileSystem& m_files;
    QString m_appPath;
    std::unique_ptr<Database> m_database;
    bool m_searching = false; ///< between prepare() and its end
};

} // namespace lumen
