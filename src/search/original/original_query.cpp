// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original/original_query.h"

#include "canon/canon_table.h"
#include "data/module_path.h"
#include "data/versions.h"
#include "search/verses/easy_search.h"
#include "search/verses/search_scope.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// What the tables of the inverted lists begin with.
QString tablePrefix(OriginalLanguage language)
{
    return language == OriginalLanguage::Hebrew ? u"BHS"_s : u"NS"_s;
}

// The scopes between "검색된 것 내에서" and the choice of books are the groups in canon order.
constexpr std::size_t kFirstGroup = 2;
static_assert(kParsingScopes.size() == kFirstGroup + kBookGroups.size() + 1);

/// The keys of a group's verses begin with the numbers of its books; Acts is in no group.
QString groupTerm(const BookGroup& group)
{
    QString term = u"Left(index, 2) >= "_s + QString::number(group.firstBookKey);
    if (group.lastBookKey < kBookCount)
        term += u" and Left(index, 2) <= "_s + QString::number(group.lastBookKey);
    return term;
}

/// What limits a list of keys to one group or to the books of a comma list.
QString scopeTerm(const QString& scopeTag)
{
    for (std::size_t i = 0; i < kBookGroups.size(); ++i)
        if (kParsingScopes[kFirstGroup + i].tag == scopeTag)
            return groupTerm(kBookGroups[i]);
    return bookListTerm(scopeTag);
}

} // namespace

bool OriginalCondition::isEmpty() const
{
    return kind == ConditionKind::Parsing ? pattern.isEmpty() : Trim(word).isEmpty();
}

int OriginalQuestion::last() const
{
    int found = 0;
    for (int i = 0; i < kConditionCount; ++i)
        if (!conditions[static_cast<std::size_t>(i)].isEmpty())
            found = i;
    return found;
}

std::optional<int> OriginalQuestion::missing() const
{
    if (conditions.front().isEmpty())
        return 0;
    for (std::size_t i = 1; i + 1 < conditions.size(); ++i)
        if (conditions[i].isEmpty() && !conditions[i + 1].isEmpty())
            return static_cast<int>(i);
    return std::nullopt;
}

QString conditionLiteral(const QString& word)
{
    const QString whole = withoutLoneSurrogates(Trim(word).toString());
    QString literal = EscapeSqlText(DES::ScrambleField(whole));
    EscapeLikeInPlace(literal);
    return literal;
}

QString patternLiteral(const QString& code)
{
    const QString pattern = code.startsWith(u'$') ? u"("_s + code + u");"_s : code + u";"_s;
    // The stems "B", "I" and "F" are stored as a digit wildcard, an asterisk and a quote. They are
    // protected before the open positions, which are stored as "@", become wildcards.
    QString literal = EscapeLikeText(DES::ScrambleField(withoutLoneSurrogates(pattern)), true);
    return literal.replace(u'@', u'?');
}

QString conditionModule(ConditionKind kind, OriginalLanguage language)
{
    if (kind == ConditionKind::Parsing)
        return u"\\Data\\z103.dts"_s;
    if (kind != ConditionKind::Literal)
        return u"\\Data\\z102.dts"_s;
    return versionFile(versionFor(language == OriginalLanguage::Hebrew ? VersionDuty::HebrewSearch
                                                                       : VersionDuty::GreekSearch));
}

QString conditionQuery(ConditionKind kind, OriginalLanguage language, const QString& literal)
{
    const QString prefix = tablePrefix(language);
    switch (kind) {
    case ConditionKind::Root:
        return u"select * from "_s + prefix + u"2Strong where word like '"_s + literal + u"'"_s;
    case ConditionKind::Literal:
        return u"select * from "_s +
               (language == OriginalLanguage::Hebrew ? u"BHS"_s : u"Byzantine"_s) +
               u" where cont like '*"_s + literal + u"*'"_s;
    case ConditionKind::Lemma:
        return u"select * from "_s + prefix + u"LemaPos where word like '"_s + literal + u"*'"_s;
    case ConditionKind::Strong:
        return u"select * from "_s + prefix + u"StrongPos where word = '"_s + literal + u"'"_s;
    case ConditionKind::Parsing:
        return u"select * from ParsingSearch where Parsing like '*"_s + literal + u"*'"_s;
    }
    Q_UNREACHABLE();
}

QString strongVersesQuery(OriginalLanguage language, const QString& strong)
{
    return conditionQuery(ConditionKind::Strong, language, DES::ScrambleField(strong));
}

QString stageQuery(int stage, Conjunction conjunction)
{
    // The first stage begins with the table of the first condition, the others with that of the
    // condition that they take in.
    const int leftTable = stage == 1 ? 0 : stage;
    const QString left = u"Table"_s + QString::number(leftTable);
    const QString right = u"Table"_s + QString::number(stage == 1 ? stage : stageTable(stage - 1));
    if (conjunction == Conjunction::Or)
        return u"select distinct index from "_s + left + u" union select index from "_s + right +
               u" "_s;
    const QString column = (stage == 1 ? u"table0"_s : left) + u".index"_s;
    return u"select distinct "_s + column + u" from "_s + left + u" inner join "_s + right +
           u" on "_s + left + u".index = "_s + right + u".index"_s;
}

QString originalScopeQuery(int table, const QString& scopeTag)
{
    const QString number = QString::number(table);
    if (scopeTag == kScopeTagAll)
        return u"select * from Table"_s + number;
    if (scopeTag == kScopeTagWithin)
        return u"select table"_s + number + u".index from Table"_s + number +
               u" inner join Table10 on Table"_s + number + u".index = Table10.index"_s;
    return u"select index from Table"_s + number + u" where "_s + scopeTerm(scopeTag);
}

} // namespace lumen
