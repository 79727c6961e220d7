// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/data_control.h"
#include "records/record_profile.h"

#include <QDate>
#include <QStringList>

#include <array>
#include <optional>

namespace lumen {

class JetEngine;
struct AppState;

/// The conditions of the record searches, as texts of the engine's language. Words stand for
/// themselves: wildcards and quotation marks of the user's are escaped.
namespace record_condition {

/// One day of a date column.
QString onDay(const QString& column, const QDate& day);
/// From the first to the last of two days, which must be in order.
QString betweenDays(const QString& column, const QDate& first, const QDate& last);
/// The trimmed category; "" also fits records without any.
QString ofCategory(const QString& category);
/// A word anywhere in a text.
QString holds(const QString& column, const QString& word);

enum class Connector { And, Or };

/// Up to three words in one text. A connector stands before its word and goes with it when that is
/// empty.
struct Terms
{
    std::array<QString, 3> words;
    std::array<Connector, 2> connectors{Connector::And, Connector::And};
};
QString holdsTerms(const QString& column, const Terms& terms);

} // namespace record_condition

/// Exchanged when they stand the wrong way round; true when they did.
bool putInOrder(QDate& first, QDate& last);

/// Where a search looks.
enum class RecordScope { All, WithinResult };

/// The search over a manager's database, with a result of its own. Errors are JetErrors and leave
/// the result as it was.
class RecordSearch
{
public:
    enum class Outcome {
        Searched,
        NoWord,      ///< nothing to look for
        NothingFound ///< to look within: the caller says so and asks again for all
    };

    RecordSearch(const RecordProfile& profile, JetEngine& jet, const AppState& state);

    /// Each category that a record has, "" for records without one.
    QStringList categories();

    void showAll();
    void byDay(const QString& column, const QDate& day);
    void byDays(const QString& column, const QDate& first, const QDate& last);
    void byCategory(const QString& category);
    Outcome easy(const QString& column, const QString& word, RecordScope scope);
    Outcome power(const QString& column, const record_condition::Terms& terms, RecordScope scope);

    /// Exact at once; rows are read when they are asked for.
    int count() const;
    /// A row of the grid in the order of the profile's columns, its number last; nothing for a
    /// record that another program has deleted since.
    std::optional<QStringList> row(int index);
    DataControl& data() { return m_data; }
    void close() { m_data.Close(); }

private:
    void query(const QString& text);
    void queryWhere(const QString& condition);
    Outcome narrow(const QString& condition);
    QString cell(const RecordResultColumn& column) const;

    const RecordProfile& m_profile;
    DataControl m_data;
};

/// A long text as a cell of the grid shows it: its first thirty characters on one line.
QString recordPreview(const QString& text);

} // namespace lumen
