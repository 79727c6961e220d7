// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "reference/concordance.h"
#include "reference/own_concordance.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(ConcordanceModule, WordsAreThoseThatALookupAsksFor)
{
    struct Row
    {
        int code;
        QString text;
        std::vector<IndexWord> words;
    };
    const Row rows[] = {
        {101,
         u"○태초에, ‘말씀’이\u00A0있고!"_s,
         {{u"태초에"_s}, {u"말씀이"_s, u"‘말씀’이"_s}, {u"있고"_s}}},
        {102, u"태초(太初)에 하나님"_s, {{u"太初에"_s}, {u"태초에"_s}, {u"하나님"_s}}},
        {201,
         u"And God's (word) — A"_s,
         {{u"and"_s}, {u"gods"_s}, {u"word"_s, u"(word)"_s}, {u"a"_s}}},
        {202, u"In<07225> beginning<07225><853>, God"_s, {{u"in"_s}, {u"beginning"_s}, {u"god"_s}}},
        {301, u":ced-cba [fe]"_s, {{u"ced"_s, u":ced-cba"_s}, {u"cba"_s}, {u"fe"_s, u"[fe]"_s}}},
        {308, u"en arch, kai"_s, {{u"en"_s}, {u"arch"_s, u"arch,"_s}, {u"kai"_s}}},
        {401, u"神，光"_s, {{u"神"_s}, {u"光"_s}}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(indexWords(row.text, row.code), row.words) << row.code;
}

TEST(ConcordanceModule, AWordOfManyVersesHasSeveralRowsThatSumUp)
{
    VersionText version;
    for (int verse = 1; verse <= 176; ++verse)
        for (int chapter = 1; chapter <= 6; ++chapter)
            version.verses.push_back({18, chapter, verse, u"주 주 아"_s, {}, {}});
    version.verses.push_back({0, 1, 1, std::nullopt, {}, {}});
    const SourceFiles files;
    const QString file = files.path(u"101c.dts"_s);
    ModuleStore store(file, StoreUse::OnlyRead, {}, [](double) { return true; });
    const auto report = fillConcordance(version, 101, store);
    ASSERT_TRUE(report.ok());
    store.commit();
    const auto rows = storeRows(file, u"select Word, num, length(Pos) from 성구사전"_s);
    ASSERT_EQ(rows.size(), 4U);
    int sum = 0;
    for (const QVariantList& row : rows)
        if (row[0] == DES::ScrambleField(u"주"_s))
            sum += row[1].toInt();
    EXPECT_EQ(sum, 2 * 6 * 176);
    EXPECT_EQ(rows[0][2], 1000 * 12 - 1) << "a thousand keys of eleven letters";
    EXPECT_EQ(report.value().facts.last(), u"모두 3,168번"_s);
}

TEST(ConcordanceModule, ATableOfTheUsersIsReadAndItsBadLinesAreTold)
{
    const SourceFiles files;
    const QString table = files.path(u"201c.tsv"_s);
    const QString file = files.path(u"201c.dts"_s);
    const auto fill = [&](const QByteArray& lines) {
        files.write(u"201c.tsv"_s, lines);
        ModuleStore store(file, StoreUse::OnlyRead, {}, [](double) { return true; });
        const auto report = fillOwnConcordance(table, 201, store);
        if (report)
            store.commit();
        return report ? QString() : QString(report.failure().detail).remove(table);
    };
    const auto rows = [&] { return storeRows(file, u"select Word, Pos, num from 성구사전"_s); };
    ASSERT_EQ(fill("God's\t요3:16 ; 창1:1\t5\n"
                   "# 고후13:14 stands in English Bibles only\n"
                   "Grace\t고후13:14\n"
                   "grace\t창6:8;고후13:14\n"),
              QString());
    const std::vector<QVariantList> made = {
        {DES::ScrambleField(u"gods"_s), u"01창:001:001;43요:003:016"_s, 5},
        {DES::ScrambleField(u"grace"_s), u"01창:006:008;47고후:013:014"_s, 3}};
    auto found = rows();
    std::ranges::sort(found, {}, [](const QVariantList& row) { return row[1].toString(); });
    EXPECT_EQ(found, made);
    EXPECT_EQ(fill("?!\t창1:1\nx\t창1:32;없1:1\t2\nx\t\nx\t창1:1;창1:2\t1\nx\t창1:1\tmany\n"),
              u":1: 찾을 수 없는 낱말: ?!\n"
              ":2: 성경에 없는 절: 창1:32\n"
              ":2: 성경에 없는 절: 없1:1\n"
              ":3: 절이 없음\n"
              ":4: 횟수가 절의 수(2)보다 작거나 수가 아님: 1\n"
              ":5: 횟수가 절의 수(1)보다 작거나 수가 아님: many"_s);
    EXPECT_EQ(rows().size(), 2U) << "the module that was there stays";
}

} // namespace
} // namespace lumen
