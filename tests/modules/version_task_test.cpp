// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "recipes/version_task.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

VersionText madeUp()
{
    VersionText version;
    version.verses.push_back({0, 1, 1, u"AB 가나"_s, u"앞글"_s, u"소제목"_s});
    version.verses.push_back({18, 119, 105, std::nullopt, std::nullopt, {}});
    version.verses.push_back({43, 2, 4, u"z"_s, std::nullopt, {}});
    return version;
}

void write(const QString& file, const QString& name)
{
    ModuleStore store(file, StoreUse::OnlyRead, {{u"source"_s, u"made up"_s}},
                      [](double) { return true; });
    ASSERT_TRUE(writeVersion(store, name, madeUp()).ok());
    store.commit();
}

TEST(VersionTask, FillsEveryColumn)
{
    const SourceFiles files;
    const QString file = files.path(u"901.dts"_s);
    write(file, u"나의 역본"_s);
    const auto rows = storeRows(
        file, u"select \"index\", Chap, Verse, Cont, part, miniTitle, Testa, Category, rowid "
              "from [나의 역본]"_s);
    ASSERT_EQ(rows.size(), 3U);
    // The words are scrambled, what stands before and above them is not.
    EXPECT_EQ(rows[0], (QVariantList{u"01창:001:001"_s, u"창01"_s, 1, u"\"# 치푸"_s, u"앞글 "_s,
                                     u"소제목"_s, u"구"_s, u"모"_s, 1}));
    EXPECT_EQ(rows[1], (QVariantList{u"19시:119:105"_s, u"시119"_s, 105, QVariant(), QVariant(),
                                     u""_s, u"구"_s, u"시"_s, 2}));
    // Acts stands in no group.
    EXPECT_EQ(rows[2], (QVariantList{u"44행:002:004"_s, u"행02"_s, 4, u"["_s, QVariant(), u""_s,
                                     u"신"_s, QVariant(), 3}));
    EXPECT_FALSE(rows[1][5].isNull());
}

TEST(VersionTask, KeepsPasswordIndexesAndOrigin)
{
    const SourceFiles files;
    const QString file = files.path(u"901.dts"_s);
    write(file, u"X"_s);
    EXPECT_EQ(storeRows(file, u"select value from MSysStore where key in ('password', 'compare') "
                              "order by key"_s),
              (std::vector<QVariantList>{{u"binary"_s}, {u"qolvetrinam"_s}}));
    EXPECT_EQ(storeRows(file, u"select value from MSysOrigin where key = 'source'"_s),
              (std::vector<QVariantList>{{u"made up"_s}}));
    EXPECT_EQ(storeRows(file, u"select \"unique\", (select group_concat(name) from "
                              "pragma_index_info(l.name)) from pragma_index_list('X') l "
                              "order by 1"_s),
              (std::vector<QVariantList>{{0, u"Chap"_s}, {1, u"index"_s}}));
    // Of another type the key would be compared verse by verse, the index unused.
    EXPECT_EQ(storeRows(file, u"select type, \"notnull\" from pragma_table_info('X') "
                              "where name = 'index'"_s),
              (std::vector<QVariantList>{{u"TEXT(20)"_s, 1}}));
}

} // namespace
} // namespace lumen
