// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// The form of a table that a user can write: text in UTF-8, a record a line, its cells parted by
/// tabs. Empty lines and lines that begin with "#" are passed over.
struct TableForm
{
    QStringList columns;    ///< Korean names, for messages
    qsizetype required = 0; ///< cells that a line must have; those behind them may be left out
};

/// One record.
struct TableLine
{
    int number = 0;    ///< of the line in its file, from 1
    QStringList cells; ///< as many as the form has columns, blanks at the ends taken off
};

/// What is wrong with a table, told line by line. All of it is collected, so that a user mends a
/// table in one go.
class TableFaults
{
public:
    explicit TableFaults(const QString& file) : m_file(file) {}

    void add(int line, const QString& reason);
    bool isEmpty() const { return m_count == 0; }
    /// Damaged, with file, line and reason of each of the first faults and how many more there are.
    Failure failure() const;

private:
    QString m_file;
    QStringList m_shown;
    int m_count = 0;
};

/// The records of a table in composed Unicode. NotFound without the file, Damaged when lines are no
/// UTF-8, have too few or too many cells, or there is no record at all.
Result<std::vector<TableLine>> readUserTable(const QString& file, const TableForm& form);

} // namespace lumen
