// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_store.h"
#include "search/made_originals.h"
#include "search/original/original_search.h"
#include "support/module_files.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

OriginalCondition word(ConditionKind kind, const QString& text)
{
    return {kind, text, {}};
}

OriginalCondition pattern(const QString& code)
{
    return {ConditionKind::Parsing, {}, code};
}

class OriginalSearchTest : public testing::Test
{
protected:
    OriginalSearchTest()
    {
        if (!createUserDatabases(test.state.AppPath, test.files, test.drives, QDate(2024, 1, 1)))
            qFatal("no scratch tables");
        writeOriginalModules(test.folders.program() + u"/Data"_s, verses);
    }

    /// The keys of the list that is shown; the one for the next search must be the same.
    QStringList ask(const OriginalQuestion& question)
    {
        EXPECT_TRUE(tables.prepare());
        outcome = search.run(question);
        QStringList keys = tables.keys(ScratchTables::kShown);
        EXPECT_EQ(keys, tables.keys(ScratchTables::kLast));
        EXPECT_EQ(keys.size(), outcome.count);
        keys.sort();
        return keys;
    }

    static OriginalQuestion question(const QList<OriginalCondition>& conditions,
                                     OriginalLanguage language = OriginalLanguage::Hebrew)
    {
        OriginalQuestion made;
        made.language = language;
        made.scopeTag = u"All"_s;
        std::ranges::copy(conditions, made.conditions.begin());
        return made;
    }

    TestServices test;
    const QList<OriginalVerse> verses = madeOriginals();
    BibleSearch lookUps{test.jet};
    ScratchTables tables{test.jet, test.files, test.state.AppPath};
    OriginalSearch search{lookUps, tables, [](QStringView module) {
                              return QString(u"C:\\lumenscript"_s + module.toString());
                          }};
    OriginalOutcome outcome;
};

TEST_F(OriginalSearchTest, EachKindFindsWhatTheWordsThemselvesHold)
{
    using enum ConditionKind;
    struct Row
    {
        OriginalLanguage language;
        OriginalCondition condition;
        bool finds;
    };
    const OriginalLanguage hebrew = OriginalLanguage::Hebrew;
    const OriginalLanguage greek = OriginalLanguage::Greek;
    const QList<Row> rows{
        {hebrew, word(Root, u"arb"_s), true},
        {hebrew, word(Root, u"<y#hla"_s), true},
        {hebrew, word(Root, u" bz "_s), true}, // "z" is stored as a bracket
        {hebrew, word(Root, u"Fma"_s), true},  // "F" is stored as a quote
        {hebrew, word(Root, u"ar*"_s), false},
        {hebrew, word(Root, u"ar"_s), false},
        {hebrew, word(Literal, u"hla"_s), true},
        {hebrew, word(Literal, u"arb ba"_s), true},
        {hebrew, word(Literal, u"logov"_s), false},
        {hebrew, word(Literal, u"a?b"_s), false},
        {hebrew, word(Literal, u"'"_s), false},
        {hebrew, word(Lemma, u"["_s), false},
        {hebrew, word(Strong, u"4*"_s), false},
        {hebrew, word(Lemma, u"b"_s), true}, // several begin so; the first alone counts
        {hebrew, word(Lemma, u"Fma"_s), true},
        {hebrew, word(Strong, u"430"_s), true},
        {hebrew, word(Strong, u"43"_s), false},
        {hebrew, word(Strong, u"9999"_s), false},
        {hebrew, pattern(u"@n____S___E_H_R_"_s), true},
        {hebrew, pattern(u"@vqp____S___J_C_A_E_H1R_"_s), true},
        // The stems that are stored as "*", "'" and "#".
        {hebrew, pattern(u"%vI_____S___J_C_A_E_H_R_"_s), true},
        {hebrew, pattern(u"%vF_____S___J_C_A_E_H_R_"_s), true},
        {hebrew, pattern(u"%vB_____S___J_C_A_E_H_R_"_s), true},
        {hebrew, pattern(u"%vt_____S___J_C_A_E_H_R_"_s), false},
        {greek, word(Root, u"Ian"_s), true}, // "I" is stored as an asterisk
        {greek, word(Literal, u"logo"_s), true},
        {greek, word(Lemma, u"fw"_s), true},
        {greek, word(Strong, u"430"_s), true},
        {greek, pattern(u"$n__s"_s), true},
        {greek, pattern(u"$n_n_"_s), true},
        {greek, pattern(u"$b"_s), true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.condition.word + row.condition.pattern).toStdString() + " of kind " +
                     std::to_string(static_cast<int>(row.condition.kind)));
        const QStringList expected = plainMatches(verses, row.language, row.condition);
        EXPECT_EQ(!expected.isEmpty(), row.finds);
        EXPECT_EQ(ask(question({row.condition}, row.language)), expected);
    }
}

TEST_F(OriginalSearchTest, ConditionsCombineFromLeftToRightInEveryScope)
{
    using enum ConditionKind;
    const QList<QList<OriginalCondition>> pools{
        {word(Root, u"<yhla"_s), word(Root, u"ba"_s), word(Literal, u"arb"_s),
         word(Literal, u"hla"_s), word(Lemma, u"ba"_s), word(Strong, u"1254"_s),
         word(Strong, u"77"_s), pattern(u"@n____S___E_H_R_"_s),
         pattern(u"%v______S___J_C_A_E_H_R_"_s), pattern(u"@Pp_______E_H_"_s)},
        {word(Root, u"logon"_s), word(Root, u"kai"_s), word(Literal, u"zw"_s),
         word(Lemma, u"logov"_s), word(Strong, u"2222"_s), word(Strong, u"77"_s),
         pattern(u"$n__s"_s), pattern(u"$v_____"_s), pattern(u"$qc"_s)},
    };
    const QStringList tags{u"All"_s, u"All"_s, u"All"_s,   u"curRecSet"_s, u"모"_s, u"역"_s,
                           u"식"_s,  u"대"_s,  u"소"_s,    u"삽"_s,        u"바"_s, u"공"_s,
                           u"계"_s,  u"창"_s,  u"시,욥"_s, u"요,행"_s,     u"All"_s};
    QRandomGenerator random(11);
    QStringList earlier;
    int filled = 0;
    for (int round = 0; round < 400; ++round) {
        const int language = random.bounded(2);
        const auto& pool = pools.at(language);
        QList<OriginalCondition> conditions;
        for (int i = random.bounded(1, kConditionCount + 1); i > 0; --i)
            conditions << pool.at(random.bounded(pool.size()));
        OriginalQuestion made = question(conditions, static_cast<OriginalLanguage>(language));
        for (Conjunction& conjunction : made.conjunctions)
            conjunction = static_cast<Conjunction>(random.bounded(2));
        made.scopeTag = tags.at(random.bounded(tags.size()));
        const QStringList expected = plainAnswer(verses, made, earlier);
        ASSERT_EQ(ask(made), expected) << "round " << round;
        filled += expected.isEmpty() ? 0 : 1;
        earlier = expected;
    }
    // Else the comparison would hold little.
    EXPECT_GT(filled, 150);
}

TEST_F(OriginalSearchTest, ANumberInTwoRowsIsNoAnswerAndOfTwoLemmasTheFirstIs)
{
    const auto list = [](const QString& name, const QList<QVariantList>& rows) {
        return ModuleTable{{name,
                            {{u"word"_s, FieldType::Text}, {u"Pos"_s, FieldType::Memo, 0}},
                            {{u"word"_s, {u"word"_s}}}},
                           rows};
    };
    const QString seven = DES::ScrambleField(u"7"_s);
    const QString lemma = DES::ScrambleField(u"ab"_s);
    writeModule(test.folders.data(u"z102.dts"_s),
                {list(u"BHSStrongPos"_s, {{seven, u"01창:001:001"_s}, {seven, u"01창:001:002"_s}}),
                 list(u"BHSLemaPos"_s, {{lemma, u"01창:001:003;01창:001:003;02출:001:001;"_s},
                                        {lemma + u"c"_s, u"01창:001:004"_s}})});
    EXPECT_EQ(ask(question({word(ConditionKind::Strong, u"7"_s)})), QStringList());
    // A key stands once in a table, and the piece behind the last separator is one too.
    EXPECT_EQ(ask(question({word(ConditionKind::Lemma, u"a"_s)})),
              (QStringList{u""_s, u"01창:001:003"_s, u"02출:001:001"_s}));
}

} // namespace
} // namespace lumen
