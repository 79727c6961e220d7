// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "records/record_values.h"

#include <QDateTime>

#include <memory>
#include <vector>

namespace lumen {

class Database;
class Recordset;

/// A former state of a record, or its last one when it was deleted.
struct FormerState
{
    int number = 0; ///< of the state
    int key = 0;    ///< of the record
    QDateTime when; ///< it was replaced or deleted
    bool deleted = false;
    QString title; ///< plain
};

/// The table of former states that stands beside the records in their file. All writing belongs
/// into the transaction of the change that makes a state a former one. Errors are JetErrors.
class RecordHistory
{
public:
    static constexpr int kMostStates = 20; ///< of a record
    static constexpr int kApartMinutes = 10;
    static constexpr int kDaysOfDeleted = 30;

    /// Makes the table in a file that has none; `records` is a recordset of all columns.
    static void prepare(Database& database, Recordset& records);
    /// Keeps the current record as it is stored, unless a state younger than ten minutes stands
    /// there already; the oldest goes when there are too many.
    static void keep(Database& database, Recordset& records, const QDateTime& now);
    /// Keeps the current record, which is about to be deleted, with unsaved text put over it.
    static void keepDeleted(Database& database, Recordset& records, const RecordProfile& profile,
                            const std::vector<DraftPart>& unsaved, const QDateTime& now);
    /// Forgets what was deleted too long ago.
    static void forgetOld(Database& database, const QDateTime& now);

    /// Of one record, the latest first; of a file without the table none.
    static std::vector<FormerState> statesOf(Database& database, int key);
    /// All deleted records, the latest first.
    static std::vector<FormerState> deleted(Database& database);
    /// A recordset of one state with all columns of its record.
    static std::unique_ptr<Recordset> open(Database& database, int number);
    /// Copies a state into the edit buffer of `records`, all but its number.
    static void fill(Database& database, int number, Recordset& records);
    static void forget(Database& database, int number);
};

/// Puts a part into the edit buffer of a record: both columns of a text, else its one.
void putPart(Recordset& record, const RecordProfile& profile, const DraftPart& part);

} // namespace lumen
