// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/original/original_query.h"
#include "search/original/scratch_tables.h"
#include "search/verses/bible_search.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>

namespace lumen {

/// What a search has found. The keys themselves stand in the scratch tables.
struct OriginalOutcome
{
    int count = 0;
    /// The Strong's number that a word of kind Root was found under, else "".
    std::array<QString, kConditionCount> strongNumbers;
};

/// Runs a question: the verses of each condition from the inverted lists go into tables of their
/// own, which are combined from left to right without precedence between AND and OR; what lies in
/// the scope is the result. A condition that finds nothing empties an AND and leaves an OR as it
/// is.
class OriginalSearch
{
public:
    /// Gives the full path of a module such as "\Data\z102.dts".
    using ModulePath = std::function<QString(QStringView module)>;

    /// `lookUps` runs the queries on the modules and keeps the last one open.
    OriginalSearch(BibleSearch& lookUps, ScratchTables& tables, ModulePath modulePath);

    /// Percentages of the work done; set before run.
    std::function<void(int percent)> onProgress = [](int) {};

    /// The tables must be prepared and the question complete. Errors leave the last list.
    OriginalOutcome run(const OriginalQuestion& question);

private:
    QString findWord(int place, const OriginalCondition& condition);
    QString findRoot(int place, const QString& literal);
    void addVerses(int place);
    bool lookUp(ConditionKind kind, const QString& query);
    QString firstField(QStringView name) const;
    void combine(const OriginalQuestion& question);
    int keepResult(Recordset& result);

    BibleSearch& m_lookUps;
    ScratchTables& m_tables;
    ModulePath m_modulePath;
    OriginalLanguage m_language = OriginalLanguage::Hebrew;
};

} // namespace lumen
