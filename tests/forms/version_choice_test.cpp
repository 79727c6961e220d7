// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/versions/version_choice.h"
#include "platform/controls/item_boxes.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QString kDiscText = u"루멘 스크립트 CD를 넣은 후 프로그램을 재실행 하십시요."_s;
const QString kMissingText = u"해당 역본이 설치되어 있지 않습니다."_s;

// Versions 101 and 201 are installed, 311 counted at start but gone since; all others are absent.
class VersionChoiceTest : public testing::Test
{
protected:
    VersionChoiceTest()
    {
        world.state.installed.versions = {101, 201, 311, 901};
        world.state.installed.userTables[0] = u"나의 역본"_s;
        for (const QString& name : {u"101.dts"_s, u"201.dts"_s, u"901.dts"_s}) {
            QFile file(world.folders.data(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
    }

    VersionChoice choiceOf(const VersionChoiceRule& rule)
    {
        return VersionChoice(world.services, world.state, rule);
    }
    static ChosenVersion choose(VersionChoice& choice, int code, bool loading = false)
    {
        return choice.choose(nullptr, choice.indexOf(code), loading);
    }

    TestServices world;
};

TEST_F(VersionChoiceTest, AnInstalledVersionGivesItsTableAndPath)
{
    VersionChoice base = choiceOf({});
    const ChosenVersion kjv = choose(base, 201);
    EXPECT_TRUE(kjv.accepted);
    EXPECT_EQ(kjv.tableName, u"KJV"_s);
    EXPECT_EQ(kjv.path, u"C:\\lumenscript\\Data\\201.dts"_s);
    EXPECT_EQ(base.previousIndex(), base.indexOf(201));
    for (const QString& name : {u"나의 역본"_s, u"나의 역본 (새)"_s, u"None"_s}) {
        world.state.installed.userTables[0] = name;
        VersionChoice parallel = choiceOf({.number = 1});
        const ChosenVersion own = choose(parallel, 901);
        EXPECT_TRUE(own.accepted) << name.toStdString();
        EXPECT_EQ(own.tableName, name);
        EXPECT_EQ(own.code, 901);
    }
}

TEST_F(VersionChoiceTest, AnAbsentRowIsRefusedAndTheFormerPutBack)
{
    VersionChoice base = choiceOf({});
    choose(base, 201);
    world.messages.expect(u"CD 삽입 후 재실행 요망"_s, kDiscText, 48);
    const ChosenVersion asv = choose(base, 205);
    EXPECT_FALSE(asv.accepted);
    EXPECT_EQ(asv.index, base.indexOf(201));
    EXPECT_TRUE(world.messages.lastAdvice().contains(u"lumen-modules build"_s));
    world.messages.expect(u"역본 미설치"_s, kMissingText, 48);
    EXPECT_FALSE(choose(base, 203).accepted);
    world.messages.verify();
}

TEST_F(VersionChoiceTest, AFileThatHasGoneHasItsOwnTitleByTheSlot)
{
    VersionChoice base = choiceOf({});
    choose(base, 201);
    world.messages.expect(u"CD 삽입 후 재시행 요망"_s, kDiscText, 48);
    EXPECT_EQ(choose(base, 311).index, base.indexOf(201));

    VersionChoice parallel = choiceOf({.number = 1, .missingFile = AbsentVersion::ParallelFile});
    world.messages.expect(u"CD 삽입 후 재실행 요망"_s, kDiscText, 48);
    EXPECT_EQ(choose(parallel, 311).index, 0);

    VersionChoice search = choiceOf(
        {.missingFile = AbsentVersion::ComboRow, .afterMissingFile = AfterMissingFile::First});
    choose(search, 201);
    world.messages.expect(u"CD 삽입 후 재실행 요망"_s, kDiscText, 48);
    EXPECT_EQ(choose(search, 311).index, 0);
    world.messages.verify();
}

TEST_F(VersionChoiceTest, WhileLoadingAbsentRowsArePassedOverSilently)
{
    VersionChoice base = choiceOf({});
    const int asv = base.indexOf(205);
    const ChosenVersion next = base.choose(nullptr, asv, true);
    EXPECT_FALSE(next.accepted);
    EXPECT_EQ(next.index, asv + 1);

    world.state.installed.versions.erase(915);
    const int last = static_cast<int>(base.items().size()) - 1;
    EXPECT_EQ(base.choose(nullptr, last, true).index, 0);
    VersionChoice search = choiceOf({.pastLastRow = PastLastRow::OneBack});
    EXPECT_EQ(search.choose(nullptr, last, true).index, last - 1);
    EXPECT_EQ(world.messages.shownCount(), 0);
}

TEST_F(VersionChoiceTest, ARefusedComboRunsItsEventOnceMoreWithTheFormerVersion)
{
    VersionChoice base = choiceOf({});
    ComboBox combo;
    base.fill(combo);
    QStringList opened;
    combo.onClick = [&] {
        const ChosenVersion chosen = base.choose(&combo, combo.ListIndex(), false);
        if (chosen.accepted)
            opened << chosen.tableName;
        else
            combo.setListIndex(chosen.index);
    };
    combo.setListIndex(base.indexOf(201));
    world.messages.expect(u"CD 삽입 후 재실행 요망"_s, kDiscText, 48);
    combo.setListIndex(base.indexOf(205));
    EXPECT_EQ(opened, (QStringList{u"KJV"_s, u"KJV"_s}));
    EXPECT_EQ(combo.Text(), u"KJV"_s);
}

} // namespace
} // namespace lumen
