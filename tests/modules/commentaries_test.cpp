// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "reference/commentaries.h"
#include "reference/cross_references.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QString headed(const QString& verses, const QString& text)
{
    return u"<div/><hi type=\"bold\">Verses %1</hi> <p>%2</p>"_s.arg(verses, text);
}

TEST(Commentaries, VersesOfOneEntryAreASectionThatReachesToTheNext)
{
    const QString opening = u"<title>Ruth</title> outline "_s + headed(u"1-5"_s, u"one"_s);
    const QString second = headed(u"6-14"_s, u"two"_s);
    std::vector<CommentaryEntry> entries;
    for (int verse = 1; verse <= 22; ++verse)
        entries.push_back({{7, 1, verse}, verse <= 5 ? opening : verse <= 9 ? second : QString()});
    entries.push_back({{7, 2, 3}, u"<p>all of it</p>"_s});
    const Commentary commentary = sectionsOf(entries);
    EXPECT_EQ(commentary.sections,
              (std::vector<CommentarySection>{{u"룻1"_s, u"1-5"_s, {}, u"one"_s},
                                              {u"룻1"_s, u"6-22"_s, {}, u"two"_s},
                                              {u"룻2"_s, {}, {}, u"all of it"_s}}));
    ASSERT_EQ(commentary.chapters.size(), 4U);
    EXPECT_EQ(commentary.chapters[0].english, u"Ruth\noutline"_s);
    EXPECT_EQ(commentary.chapters[1].english, u"Verses 1-5\none"_s);
}

TEST(Commentaries, PlacesFollowTheKeys)
{
    // English Bibles have one verse more in 고후13.
    std::vector<CommentaryEntry> entries;
    for (int verse = 1; verse <= 14; ++verse)
        entries.push_back({{46, 13, verse}, headed(u"x"_s, verse < 12 ? u"a"_s : u"b"_s)});
    const auto sections = sectionsOf(entries).sections;
    ASSERT_EQ(sections.size(), 2U);
    EXPECT_EQ(sections[0].verses, u"1-11"_s);
    EXPECT_EQ(sections[1].verses, u"12-13"_s);
}

TEST(Commentaries, WesleysNotesStandInTheOrderOfTheirVerses)
{
    const SourceFiles files;
    const QString ruth = files.write(
        u"ruth.json"_s,
        uR"({"2": {"1": [{"html": "c"}]}, "10": {"1": []}, "1": {"10": [{"html": "b"}], "2": [{"html": "a"}]}})"_s);
    const QString file = files.path(u"Wesley.dts"_s);
    const auto fill = [&](const auto& content) {
        ModuleStore store(file, StoreUse::OnlyRead, {}, [](double) { return true; });
        return content(store);
    };
    const auto refused = fill([&](ModuleStore& store) { return fillWesley({ruth}, store); });
    ASSERT_FALSE(refused.ok());
    EXPECT_TRUE(refused.failure().detail.contains(u"ruth.json"_s));
    files.write(
        u"ruth.json"_s,
        uR"({"2": {"1": [{"html": "c"}]}, "1": {"10": [{"html": "b"}], "2": [{"html": "a"}]}})"_s);
    ModuleStore store(file, StoreUse::OnlyRead, {}, [](double) { return true; });
    ASSERT_TRUE(fillWesley({ruth}, store).ok());
    store.commit();
    const auto rows = storeRows(file, u"select book, Chap, cont from Wesley"_s);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (QVariantList{DES::ScrambleField(u"룻"_s), DES::ScrambleField(u"1"_s),
                                     u"2 a\r\n10 b"_s}));
}

TEST(OwnTables, EveryBadLineIsToldByFileLineAndReason)
{
    const SourceFiles files;
    struct Row
    {
        QString table;
        Result<ModuleReport> (*fill)(const QString& file, ModuleStore& store);
        QStringList reasons;
    };
    const Row rows[] = {
        {u"창1\t3-5\t글\n창99\t1\t글\n창1\t셋\t글\n"_s,
         fillOwnCommentary,
         {u"own.tsv:2: 성경에 없는 장임: 창99"_s,
          u"own.tsv:3: 절이 \"3-5\", \"5\"나 빈칸이 아님: 셋"_s}},
        {u"창1:1\t요1:1; 히11:3\n창1:2\t요1:99\n"_s,
         fillOwnCrossReferences,
         {u"own.tsv:2: 성경에 없는 절임: 요1:99"_s}},
        {u"창1\t글\n없음1\t글\n"_s, fillOwnWesley, {u"own.tsv:2: 성경에 없는 장임: 없음1"_s}},
    };
    for (const Row& row : rows) {
        const QString table = files.write(u"own.tsv"_s, row.table);
        ModuleStore store(files.path(u"own.dts"_s), StoreUse::OnlyRead, {},
                          [](double) { return true; });
        const auto filled = row.fill(table, store);
        ASSERT_FALSE(filled.ok());
        for (const QString& reason : row.reasons)
            EXPECT_TRUE(filled.failure().detail.contains(reason))
                << filled.failure().detail.toStdString();
        // The good lines alone are taken.
        const QString good = files.write(u"good.tsv"_s, row.table.section(u'\n', 0, 0));
        ModuleStore second(files.path(u"good.dts"_s), StoreUse::OnlyRead, {},
                           [](double) { return true; });
        EXPECT_TRUE(row.fill(good, second).ok());
        EXPECT_GE(second.rows(), 1U);
    }
}

} // namespace
} // namespace lumen
