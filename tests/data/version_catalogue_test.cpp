// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_catalogue.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

InstalledFlags installedVersions(std::initializer_list<int> codes)
{
    InstalledFlags installed;
    installed.versions = codes;
    return installed;
}

QStringList labels(const QList<VersionItem>& items)
{
    QStringList result;
    for (const VersionItem& item : items)
        result << item.label;
    return result;
}

const VersionTool& toolOf(const QList<VersionTool>& tools, int code)
{
    for (const VersionTool& tool : tools)
        if (tool.code == code)
            return tool;
    static const VersionTool none;
    ADD_FAILURE() << "no tool for " << code;
    return none;
}

TEST(VersionCatalogue, ABaseComboMarksWhatIsAbsentAndNumbersFromZero)
{
    InstalledFlags installed = installedVersions({101, 201, 902});
    installed.userTables[1] = u"My Version"_s;
    const QList<VersionItem> items = SetClassicCombo(installed, 0);
    const QStringList texts = labels(items);
    EXPECT_EQ(texts.first(3),
              (QStringList{u"개역한글"_s, u"개역한자(없음)"_s, u"개역한글침례표기(없음)"_s}));
    EXPECT_EQ(texts.sliced(5, 4), (QStringList{u"현대인의 성경(없음)"_s, u"중국어 간체(없음)"_s,
                                               u"KJV"_s, u"KJV Strong(없음)"_s}))
        << "109 stands in the list only when it is there";
    EXPECT_EQ(texts.sliced(texts.size() - 15, 3),
              (QStringList{u"사용자 역본1(없음)"_s, u"My Version"_s, u"사용자 역본3(없음)"_s}));
    EXPECT_EQ(texts.size(), 46 + 15);
    for (qsizetype i = 0; i < items.size(); ++i) {
        EXPECT_EQ(items[i].index, i);
        EXPECT_EQ(items[i].label.endsWith(u"(없음)"), !items[i].present) << items[i].code;
    }
    EXPECT_EQ(indexOfVersion(items, 902), texts.size() - 14);
    EXPECT_EQ(indexOfVersion(items, 109), -1);
}

TEST(VersionCatalogue, AParallelComboBeginsWithNoneAndPrefixesEveryItem)
{
    const QList<VersionItem> items = SetClassicCombo(installedVersions({109}), 2);
    EXPECT_EQ(items[0].label, u"대역본2 - 없음"_s);
    EXPECT_EQ(items[0].code, 0);
    EXPECT_EQ(items[1].label, u"대역본2 - 개역한글(없음)"_s);
    EXPECT_EQ(items[1].code, 101);
    EXPECT_EQ(items[7].label, u"대역본2 - 킹제임스 흠정역"_s);
    EXPECT_EQ(items.last().label, u"대역본2 - 사용자 역본15(없음)"_s);
    EXPECT_EQ(items.size(), 1 + 47 + 15);
}

TEST(VersionCatalogue, MenuToolsPointAtTheSameVersionInTheCombo)
{
    for (const InstalledFlags& installed :
         {installedVersions({101, 201, 903}), installedVersions({101, 109, 301, 311})}) {
        for (int number = 0; number <= 3; ++number) {
            SCOPED_TRACE(number);
            const QList<VersionItem> items = SetClassicCombo(installed, number);
            int offered = 0;
            for (const VersionTool& tool : SetupMenu(installed, number)) {
                SCOPED_TRACE(tool.id.toStdString());
                EXPECT_EQ(tool.itemNumber, indexOfVersion(items, tool.code));
                EXPECT_EQ(tool.enabled, tool.code == 0 || installed.hasVersion(tool.code));
                offered += tool.itemNumber >= 0 ? 1 : 0;
            }
            EXPECT_EQ(offered, items.size());
        }
    }
}

TEST(VersionCatalogue, MenuToolsAreNamedAndShownByTheirSlot)
{
    InstalledFlags installed = installedVersions({901});
    installed.userTables[0] = u"나의 역본"_s;
    const QList<VersionTool> parallel = SetupMenu(installed, 1);
    EXPECT_EQ(parallel.first().id, u"ID_대역본1-없음"_s);
    EXPECT_EQ(parallel.first().caption, u"없음"_s);
    EXPECT_EQ(toolOf(parallel, 204).id, u"ID_대역본1-204"_s);

    const QList<VersionTool> base = SetupMenu(installed, 0);
    EXPECT_EQ(base.first().id, u"ID_대역본0-101"_s);
    EXPECT_EQ(toolOf(base, 204).caption, u"NIV"_s) << "menus carry no suffix";
    EXPECT_EQ(toolOf(base, 901).caption, u"나의 역본"_s);
    EXPECT_EQ(toolOf(base, 905).caption, u"사용자역본5 한글용"_s);
    EXPECT_EQ(toolOf(base, 906).caption, u"사용자역본6 영문용"_s);
    EXPECT_TRUE(toolOf(base, 901).visible);
    EXPECT_FALSE(toolOf(base, 902).visible);
    EXPECT_FALSE(toolOf(base, 109).visible);
    EXPECT_TRUE(toolOf(base, 204).visible);
}

TEST(VersionCatalogue, ASavedIndexThatCantBeTakenGivesTheFirstItem)
{
    InstalledFlags installed = installedVersions({101, 102, 902});
    installed.userTables[1] = u"나의 역본 (새)"_s;
    const QList<VersionItem> items = SetClassicCombo(installed, 0);
    EXPECT_EQ(restoredVersionIndex(items, 47), 47) << "a name of its own may end in a bracket";
    EXPECT_EQ(restoredVersionIndex(items, 1), 1);
    for (const int saved : {2, -1, 61, 1000})
        EXPECT_EQ(restoredVersionIndex(items, saved), 0) << saved;
    EXPECT_EQ(restoredVersionIndex({}, 0), 0);
    EXPECT_EQ(nextVersionIndex(items, 2), 3);
    EXPECT_EQ(nextVersionIndex(items, 60), 0);
}

TEST(VersionCatalogue, VersionsThatNeverCameWithADiscAreNotAskedForIt)
{
    for (const int code : {203, 206, 207, 208, 305, 901, 915})
        EXPECT_FALSE(comesWithDisc(code)) << code;
    for (const int code : {101, 202, 204, 205, 209, 304, 306, 401})
        EXPECT_TRUE(comesWithDisc(code)) << code;
}

} // namespace
} // namespace lumen
