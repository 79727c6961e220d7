// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "reference/concordance.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace lumen
