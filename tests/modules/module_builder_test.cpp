// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_report.h"
#include "cli/build_run.h"
#include "modules/source_files.h"
#include "recipes/recipes.h"
#include "reference/module_builder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class ModuleBuilderTest : public testing::Test
{
protected:
    VersionTask usfmTask(int code, const QString& file)
    {
        return userTask(code, u"시험 역본"_s, {SourceFormat::Usfm, {file}, {}}, {},
                        Renumbering::Keep);
    }
    ModuleOutcome build(const ModuleTask& task, const BuildMode& mode = {})
    {
        return buildModule(
            task, files.path(), [](double) { return true; }, mode);
    }
    QString book(const QString& name, const QString& words) const
    {
        return files.write(name, u"\\id RUT\n\\c 1\n\\s Head\n\\v 1 "_s + words);
    }

    SourceFiles files;
};

TEST_F(ModuleBuilderTest, BuildsOnceAndAgainWhenTheSourceChanges)
{
    const VersionTask task = usfmTask(901, book(u"a.usfm"_s, u"one"_s));
    const ModuleOutcome first = build(task);
    EXPECT_EQ(first.state, ModuleState::Built);
    EXPECT_EQ(first.report.facts.join(u' '),
              u"1절 없는 책 65권 정경에 있으나 없는 절 84 소제목 1"_s);
    EXPECT_EQ(build(task).state, ModuleState::UpToDate);
    book(u"a.usfm"_s, u"one and two"_s);
    EXPECT_EQ(build(task).state, ModuleState::Built);
    EXPECT_EQ(storeRows(files.path(u"901.dts"_s), u"select Cont from [시험 역본]"_s),
              (std::vector<QVariantList>{{u"POF BOE UXP"_s}}));
}

TEST_F(ModuleBuilderTest, ADamagedModuleIsMadeAnewAndASoundOneWhenForced)
{
    const VersionTask task = usfmTask(901, book(u"a.usfm"_s, u"one"_s));
    const QString module = files.write(u"901.dts"_s, u"no store"_s);
    EXPECT_EQ(build(task).state, ModuleState::Built);
    // The store's own check passes over one letter.
    ASSERT_TRUE(changeLetter(module, u"one"_s));
    EXPECT_EQ(build(task).state, ModuleState::Built);
    EXPECT_EQ(build(task).state, ModuleState::UpToDate);
    EXPECT_EQ(build(task, {.force = true}).state, ModuleState::Built);
}

TEST_F(ModuleBuilderTest, ATextThatHasLostVersesIsRefusedUnlessItIsAccepted)
{
    struct Row
    {
        QStringView words;
        ModuleState state;
    };
    const Row rows[] = {
        {u"one\n\\v 2 two\n\\c 2\n\\v 1 three", ModuleState::Built},
        {u"one\n\\v 2\n\\c 2\n\\v 1 three", ModuleState::Failed}, // a verse without words
        {u"one\n\\v 2 two", ModuleState::Failed},
        {u"other\n\\v 2 words\n\\c 2\n\\v 1 are fine", ModuleState::Built},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.words.toString().toStdString());
        const VersionTask task = usfmTask(901, book(u"a.usfm"_s, row.words.toString()));
        const ModuleOutcome outcome = build(task);
        EXPECT_EQ(outcome.state, row.state) << outcome.problem.toStdString();
        EXPECT_EQ(storeRows(files.path(u"901.dts"_s), u"select count(Cont) from [시험 역본]"_s),
                  (std::vector<QVariantList>{{3}}));
    }
    const VersionTask fewer = usfmTask(901, book(u"a.usfm"_s, u"one"_s));
    EXPECT_TRUE(build(fewer).problem.contains(u"룻02, 룻01"_s))
        << build(fewer).problem.toStdString();
    EXPECT_EQ(build(fewer, {.acceptLosses = true}).state, ModuleState::Built);
    VersionTask whole = usfmTask(902, files.path(u"a.usfm"_s));
    whole.isWhole = true;
    EXPECT_EQ(build(whole).state, ModuleState::Failed);
}

TEST_F(ModuleBuilderTest, AFaultLeavesTheModuleThatWasThere)
{
    const QString file = book(u"a.usfm"_s, u"one"_s);
    ASSERT_EQ(build(usfmTask(901, file)).state, ModuleState::Built);
    files.write(u"a.usfm"_s, u"\\id RUT\n\\v 1 one"_s);
    const ModuleOutcome failed = build(usfmTask(901, file));
    EXPECT_EQ(failed.state, ModuleState::Failed);
    EXPECT_TRUE(outcomeLine(failed).startsWith(u"901 시험 역본: 만들지 못했습니다. a.usfm:2: "_s));
    EXPECT_EQ(storeRows(files.path(u"901.dts"_s), u"select count(*) from [시험 역본]"_s),
              (std::vector<QVariantList>{{1}}));
    EXPECT_EQ(build(usfmTask(902, files.path(u"none.usfm"_s))).state, ModuleState::SourceMissing);
}

TEST_F(ModuleBuilderTest, StoppingLeavesTheFolderAsItWas)
{
    const VersionTask task = usfmTask(902, book(u"a.usfm"_s, u"one"_s));
    files.write(u"902.dts"_s, u"what was there"_s);
    for (const double last : {0.0, 0.3, 0.9}) {
        const ModuleOutcome outcome =
            buildModule(task, files.path(), [last](double share) { return share < last; });
        EXPECT_EQ(outcome.state, ModuleState::Interrupted);
        EXPECT_EQ(QDir(files.path()).entryList(QDir::Files | QDir::Hidden),
                  (QStringList{u"902.dts"_s, u"a.usfm"_s}));
    }
}

TEST_F(ModuleBuilderTest, OneFaultDoesNotKeepTheOthersFromBeingBuilt)
{
    BuildPlan plan;
    for (const VersionTask& task : {usfmTask(901, book(u"a.usfm"_s, u"one"_s)),
                                    usfmTask(902, files.write(u"b.usfm"_s, u"\\id RUT\n\\v"_s)),
                                    usfmTask(903, book(u"c.usfm"_s, u"three"_s))})
        plan.tasks.push_back(std::make_unique<VersionTask>(task));
    for (const int jobs : {1, 3}) {
        const auto outcomes = runPlan(plan, files.path(), jobs);
        ASSERT_EQ(outcomes.size(), 3U);
        EXPECT_EQ(outcomes[0].file, u"901"_s);
        EXPECT_EQ(outcomes[1].state, ModuleState::Failed);
        EXPECT_NE(outcomes[2].state, ModuleState::Failed);
        EXPECT_TRUE(QFile::exists(files.path(u"903.dts"_s)));
    }
    const QString report = reportText(runPlan(plan, files.path(), 1), {u"첫 줄"_s}, 1.25);
    EXPECT_TRUE(report.startsWith(u"첫 줄\n901 시험 역본: 원본이 그대로여서"_s));
    EXPECT_TRUE(report.contains(u"\n902 시험 역본: 만들지 못했습니다. b.usfm:2: "_s));
}

} // namespace
} // namespace lumen
