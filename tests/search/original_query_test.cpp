// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/original_query.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

OriginalQuestion question(const QStringList& words)
{
    OriginalQuestion made;
    for (qsizetype i = 0; i < words.size(); ++i)
        made.conditions[static_cast<std::size_t>(i)].word = words.at(i);
    return made;
}

TEST(OriginalQuestionTest, TellsWhichConditionIsMissing)
{
    struct Row
    {
        QStringList words;
        std::optional<int> missing;
    };
    const QList<Row> rows{
        {{}, 0},
        {{u" "_s, u"b"_s}, 0},
        {{u"a"_s}, std::nullopt},
        {{u"a"_s, u""_s, u"c"_s}, 1},
        {{u"a"_s, u""_s, u""_s, u"d"_s}, 2},
        {{u"a"_s, u"b"_s, u"c"_s, u"  "_s, u"e"_s}, 3},
        // The one that stands directly before a filled one is told, not the first gap.
        {{u"a"_s, u""_s, u""_s, u""_s, u"e"_s}, 3},
        {{u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}, std::nullopt},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.words.join(u',').toStdString());
        EXPECT_EQ(question(row.words).missing(), row.missing);
    }
}

TEST(OriginalQuestionTest, APatternIsFilledByItsCodeAndAWordByItsText)
{
    OriginalQuestion made = question({u"a"_s, u"a word left behind"_s});
    made.conditions[1].kind = ConditionKind::Parsing;
    EXPECT_EQ(made.last(), 0);
    made.conditions[1].pattern = u"@n"_s;
    EXPECT_EQ(made.last(), 1);
    made.conditions[1].kind = ConditionKind::Lemma;
    made.conditions[1].word.clear();
    EXPECT_EQ(made.last(), 0);
}

TEST(OriginalQueryTest, WordsAreStoredFormWithWildcardsAndQuotesProtected)
{
    struct Row
    {
        QString word;
        QString literal;
    };
    const QList<Row> rows{
        {u" rb "_s, u"SC"_s},            // "r" and "b" in stored form, blanks cut
        {u"z"_s, u"[[]"_s},              // stored as "["
        {u"I"_s, u"[*]"_s},              // stored as "*"
        {u"B"_s, u"[#]"_s},              // stored as "#"
        {u"^"_s, u"[?]"_s},              // stored as "?"
        {u"F"_s, u"''"_s},               // stored as a quote
        {u">"_s, u"' & chr(124) & '"_s}, // stored as a bar
        {u"430"_s, u"rqn"_s},
        {QString(QChar(0xDC00)), QString(QChar(0xFFFF))},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.word.toStdString());
        EXPECT_EQ(conditionLiteral(row.word), row.literal);
    }
}

TEST(OriginalQueryTest, OpenPositionsAreWildcardsAndStemsAreNot)
{
    // In stored form "@" is "!", "v" is "W", "-" is "k", ";" is "y", "$" is "b".
    EXPECT_EQ(patternLiteral(u"@v_-"_s), u"!W?ky"_s);
    EXPECT_EQ(patternLiteral(u"$n_ms"_s), u"fbO?NTgy"_s);
    EXPECT_EQ(patternLiteral(u"vB"_s), u"W[#]y"_s);
    EXPECT_EQ(patternLiteral(u"vI"_s), u"W[*]y"_s);
    EXPECT_EQ(patternLiteral(u"vF"_s), u"W''y"_s);
}

TEST(OriginalQueryTest, QueriesOfTheConditions)
{
    struct Row
    {
        ConditionKind kind;
        OriginalLanguage language;
        QString module;
        QString query;
    };
    using enum ConditionKind;
    using enum OriginalLanguage;
    const QList<Row> rows{
        {Root, Hebrew, u"\\Data\\z102.dts"_s, u"select * from BHS2Strong where word like 'w'"_s},
        {Root, Greek, u"\\Data\\z102.dts"_s, u"select * from NS2Strong where word like 'w'"_s},
        {Literal, Hebrew, u"\\Data\\301.dts"_s, u"select * from BHS where cont like '*w*'"_s},
        {Literal, Greek, u"\\Data\\310.dts"_s, u"select * from Byzantine where cont like '*w*'"_s},
        {Lemma, Hebrew, u"\\Data\\z102.dts"_s, u"select * from BHSLemaPos where word like 'w*'"_s},
        {Lemma, Greek, u"\\Data\\z102.dts"_s, u"select * from NSLemaPos where word like 'w*'"_s},
        {Strong, Hebrew, u"\\Data\\z102.dts"_s, u"select * from BHSStrongPos where word = 'w'"_s},
        {Strong, Greek, u"\\Data\\z102.dts"_s, u"select * from NSStrongPos where word = 'w'"_s},
        {Parsing, Hebrew, u"\\Data\\z103.dts"_s,
         u"select * from ParsingSearch where Parsing like '*w*'"_s},
        {Parsing, Greek, u"\\Data\\z103.dts"_s,
         u"select * from ParsingSearch where Parsing like '*w*'"_s},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(conditionQuery(row.kind, row.language, u"w"_s), row.query);
        EXPECT_EQ(conditionModule(row.kind, row.language), row.module);
    }
    EXPECT_EQ(strongVersesQuery(Hebrew, u"430"_s),
              u"select * from BHSStrongPos where word = 'rqn'"_s);
    EXPECT_EQ(strongVersesQuery(Greek, u"430"_s),
              u"select * from NSStrongPos where word = 'rqn'"_s);
}

TEST(OriginalQueryTest, QueriesOfTheStages)
{
    const QStringList both{
        u"select distinct table0.index from Table0 inner join Table1 on Table0.index = "
        u"Table1.index"_s,
        u"select distinct Table2.index from Table2 inner join Table5 on Table2.index = "
        u"Table5.index"_s,
        u"select distinct Table3.index from Table3 inner join Table6 on Table3.index = "
        u"Table6.index"_s,
        u"select distinct Table4.index from Table4 inner join Table7 on Table4.index = "
        u"Table7.index"_s,
    };
    const QStringList either{
        u"select distinct index from Table0 union select index from Table1 "_s,
        u"select distinct index from Table2 union select index from Table5 "_s,
        u"select distinct index from Table3 union select index from Table6 "_s,
        u"select distinct index from Table4 union select index from Table7 "_s,
    };
    for (int stage = 1; stage <= 4; ++stage) {
        EXPECT_EQ(stageQuery(stage, Conjunction::And), both.at(stage - 1));
        EXPECT_EQ(stageQuery(stage, Conjunction::Or), either.at(stage - 1));
        EXPECT_EQ(stageTable(stage), stage + 4);
    }
}

TEST(OriginalQueryTest, QueriesOfTheScopes)
{
    struct Row
    {
        QString tag;
        QString query;
    };
    const QList<Row> rows{
        {u"All"_s, u"select * from Table8"_s},
        {u"curRecSet"_s, u"select table8.index from Table8 inner join Table10 on Table8.index = "
                         u"Table10.index"_s},
        {u"모"_s, u"select index from Table8 where Left(index, 2) >= 1 and Left(index, 2) <= 5"_s},
        {u"역"_s, u"select index from Table8 where Left(index, 2) >= 6 and Left(index, 2) <= 17"_s},
        {u"식"_s,
         u"select index from Table8 where Left(index, 2) >= 18 and Left(index, 2) <= 22"_s},
        {u"대"_s,
         u"select index from Table8 where Left(index, 2) >= 23 and Left(index, 2) <= 27"_s},
        {u"소"_s,
         u"select index from Table8 where Left(index, 2) >= 28 and Left(index, 2) <= 39"_s},
        {u"삽"_s,
         u"select index from Table8 where Left(index, 2) >= 40 and Left(index, 2) <= 43"_s},
        {u"바"_s,
         u"select index from Table8 where Left(index, 2) >= 45 and Left(index, 2) <= 57"_s},
        {u"공"_s,
         u"select index from Table8 where Left(index, 2) >= 58 and Left(index, 2) <= 65"_s},
        {u"계"_s, u"select index from Table8 where Left(index, 2) >= 66"_s},
        {u"창"_s, u"select index from Table8 where (index like '??창:*')"_s},
        {u"창,막"_s,
         u"select index from Table8 where (index like '??창:*' or index like '??막:*')"_s},
    };
    for (const Row& row : rows)
        EXPECT_EQ(originalScopeQuery(8, row.tag), row.query);
    EXPECT_EQ(originalScopeQuery(0, u"All"_s), u"select * from Table0"_s);
}

} // namespace
} // namespace lumen
