// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "search/verses/power_search.h"

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace lumen {

/// What a condition of the original-language search looks for; the values are the list indexes.
enum class ConditionKind { Root, Literal, Lemma, Strong, Parsing };

/// The values are the list indexes.
enum class OriginalLanguage { Hebrew, Greek };

inline constexpr int kConditionCount = 5;

/// One of the five conditions as the user left it.
struct OriginalCondition
{
    ConditionKind kind = ConditionKind::Root;
    QString word;    ///< as typed, for all kinds but Parsing
    QString pattern; ///< the parsing code, "_" for a position that may be anything

    bool isEmpty() const;
};

/// All that the original-language search reads from its tab.
struct OriginalQuestion
{
    OriginalLanguage language = OriginalLanguage::Hebrew;
    std::array<OriginalCondition, kConditionCount> conditions;
    /// The one at k stands between conditions k and k + 1.
    std::array<Conjunction, kConditionCount - 1> conjunctions{};
    QString scopeTag;

    /// The last condition that isn't empty; 0 when all are.
    int last() const;
    /// The condition that should have been filled: the first, or one with a filled one behind it.
    /// Nothing when the question can be asked.
    std::optional<int> missing() const;
};

/// A typed word between the quotes of a query: blanks cut, as the modules store it, wildcards and
/// quotes protected.
QString conditionLiteral(const QString& word);

/// A parsing code between the quotes of a query. Open positions become "?"; what else of the stored
/// form would be a wildcard stands for itself.
QString patternLiteral(const QString& code);

/// The module that a condition is looked up in, such as "\Data\z102.dts".
QString conditionModule(ConditionKind kind, OriginalLanguage language);

/// The query of a condition; `literal` is what conditionLiteral or patternLiteral gave.
QString conditionQuery(ConditionKind kind, OriginalLanguage language, const QString& literal);

/// The query for the verses of the Strong's number that a word was found under.
QString strongVersesQuery(OriginalLanguage language, const QString& strong);

/// Combines what the conditions before `stage` (1 to 4) gave with that condition's own table.
QString stageQuery(int stage, Conjunction conjunction);

/// The scratch table that a stage fills: 5 to 8.
constexpr int stageTable(int stage)
{
    return stage + kConditionCount - 1;
}

/// The part of scratch table `table` that lies in the scope.
QString originalScopeQuery(int table, const QString& scopeTag);

} // namespace lumen
