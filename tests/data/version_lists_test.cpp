// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/version_lists.h"

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

} // namespace
} // namespace lumen
