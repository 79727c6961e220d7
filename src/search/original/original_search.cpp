// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/original_search.h"

#include "jet/rows/recordset.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// The bar's percentages: a step for each condition, then one for each stage of the combining.
constexpr int kStep = 10;
constexpr int kFirstStagePercent = 60;

} // namespace

OriginalSearch::OriginalSearch(BibleSearch& lookUps, ScratchTables& tables, ModulePath modulePath)
    : m_lookUps(lookUps), m_tables(tables), m_modulePath(std::move(modulePath))
{
}

OriginalOutcome OriginalSearch::run(const OriginalQuestion& question)
{
    OriginalOutcome outcome;
    m_language = question.language;
    for (int i = 0; i < kConditionCount; ++i) {
        const auto place = static_cast<std::size_t>(i);
        if (!question.conditions[place].isEmpty())
            outcome.strongNumbers[place] = findWord(i, question.conditions[place]);
        onProgress(kStep * (i + 1));
    }
    combine(question);
    const int last = question.last();
    const auto result =
        m_tables.query(originalScopeQuery(last == 0 ? 0 : stageTable(last), question.scopeTag));
    outcome.count = keepResult(*result);
    return outcome;
}

QString OriginalSearch::findWord(int place, const OriginalCondition& condition)
{
    const bool pattern = condition.kind == ConditionKind::Parsing;
    const QString literal =
        pattern ? patternLiteral(condition.pattern) : conditionLiteral(condition.word);
    if (condition.kind == ConditionKind::Root)
        return findRoot(place, literal);
    if (!lookUp(condition.kind, conditionQuery(condition.kind, m_language, literal)))
        return {};
    if (condition.kind == ConditionKind::Literal || pattern)
        addVerses(place);
    // A number stands in one row; two are no answer. Of several lemmas the first one counts.
    else if (condition.kind == ConditionKind::Lemma || m_lookUps.count() == 1)
        m_tables.StringToDB(firstField(u"Pos"), place);
    return {};
}

QString OriginalSearch::findRoot(int place, const QString& literal)
{
    if (!lookUp(ConditionKind::Root, conditionQuery(ConditionKind::Root, m_language, literal)))
        return {};
    const QString strong = firstField(u"Strong");
    if (lookUp(ConditionKind::Root, strongVersesQuery(m_language, strong)))
        m_tables.StringToDB(firstField(u"Pos"), place);
    return strong;
}

bool OriginalSearch::lookUp(ConditionKind kind, const QString& query)
{
    m_lookUps.setModule(m_modulePath(conditionModule(kind, m_language)));
    m_lookUps.query(query);
    return m_lookUps.count() > 0;
}

QString OriginalSearch::firstField(QStringView name) const
{
    return Text(m_lookUps.dacSearch.Recordset()->Fields(name));
}

void OriginalSearch::addVerses(int place)
{
    m_tables.fill(place, *m_lookUps.dacSearch.Recordset());
}

void OriginalSearch::combine(const OriginalQuestion& question)
{
    for (int stage = 1; stage < kConditionCount; ++stage) {
        const Conjunction conjunction = question.conjunctions[static_cast<std::size_t>(stage - 1)];
        if (stage <= question.last())
            m_tables.fill(stageTable(stage), *m_tables.query(stageQuery(stage, conjunction)));
        onProgress(kFirstStagePercent + kStep * (stage - 1));
    }
}

int OriginalSearch::keepResult(Recordset& result)
{
    for (const int table : {ScratchTables::kShown, ScratchTables::kLast}) {
        m_tables.empty(table);
        m_tables.fill(table, result);
    }
    return result.RecordCount();
}

} // namespace lumen
