// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_options.h"
#include "cli/build_run.h"
#include "modules/source_files.h"
#include "recipes/user_sources.h"
#include "reference/reference_task.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class BuildPlanTest : public testing::Test
{
protected:
    // A book file with one verse, made up in the wording of the edition of 1961.
    QString book(const QString& name, QStringView text, QStringView hangul = {}) const
    {
        const QString more =
            hangul.isEmpty() ? QString() : u", \"hangulText\": \"%1\""_s.arg(hangul);
        return files.write(name,
                           u"{\"book\": \"룻기\", \"chapters\": [{\"chapter\": 1, \"verses\": "
                           u"[{\"verse\": 1, \"text\": \"%1\"%2}]}]}"_s.arg(text, more));
    }
    static QStringList filesOf(const BuildPlan& plan)
    {
        QStringList names;
        for (const auto& task : plan.tasks)
            names << task->file;
        return names;
    }
    const BuildPlan& plan(bool baptist = false)
    {
        BuildOptions options;
        options.sourceFolder = files.path(u"user"_s);
        options.baptist = baptist;
        auto made = planBuild(options, {});
        EXPECT_TRUE(made.ok());
        m_plan = std::move(made.value());
        return m_plan;
    }
    QString remarks() const { return m_plan.remarks.join(u'\n'); }
    QString usedFile(int code) const
    {
        const VersionTask* task = versionIn(m_plan, code);
        return task ? task->source.files.value(0) : u"none"_s;
    }

    SourceFiles files;
    BuildPlan m_plan;
};

constexpr QStringView kOldKorean = u"아무개가 가로되 시험이라 하니라";
constexpr QStringView kNewKorean = u"아무개가 말하였다 시험이다";
constexpr QStringView kMixed = u"아무개가 曰 試驗이라 하니라";

TEST_F(BuildPlanTest, FindsWhatLiesInAUserFolder)
{
    book(u"user/plain/Ruth.json"_s, kOldKorean);
    book(u"user/mixed/Ruth.json"_s, kMixed, kOldKorean);
    files.write(u"user/plain/Bad.json"_s, u"{"_s);
    files.write(u"user/901 나의 역본/rut.usfm"_s, u"\\id RUT\n\\c 1\n\\v 1 a"_s);
    files.write(u"user/214.xml"_s, u"<osis/>"_s);
    files.write(u"user/304/a.xml"_s, u"<osis/>"_s);
    files.write(u"user/sword/mods.d/bbe.conf"_s, u"[BBE]\nDataPath=./x/\n"_s);
    plan(true);
    const VersionTask* korean = versionIn(m_plan, 101);
    ASSERT_NE(korean, nullptr);
    // A damaged file beside the good ones is a fault of the module and not passed over.
    EXPECT_EQ(korean->source.files.size(), 2);
    EXPECT_EQ(korean->numbering, Numbering::Korean);
    EXPECT_TRUE(usedFile(102).contains(u"mixed"_s));
    ASSERT_NE(versionIn(m_plan, 103), nullptr);
    EXPECT_EQ(versionIn(m_plan, 103)->mends.size(), korean->mends.size() + 1);
    ASSERT_NE(versionIn(m_plan, 901), nullptr);
    EXPECT_EQ(versionIn(m_plan, 901)->name, u"나의 역본"_s);
    ASSERT_NE(versionIn(m_plan, 211), nullptr);
    EXPECT_EQ(versionIn(m_plan, 211)->source.format, SourceFormat::Sword);
    EXPECT_NE(versionIn(m_plan, 214), nullptr);
    EXPECT_EQ(versionIn(m_plan, 304), nullptr);
    EXPECT_TRUE(remarks().contains(u"304: "_s));
}

TEST_F(BuildPlanTest, OnlyTheWordingOfTheEditionMakesAFolderWithoutANumberTheKoreanText)
{
    book(u"user/a-english/Ruth.json"_s, u"somebody said this is a trial");
    book(u"user/b-new/Ruth.json"_s, kNewKorean);
    plan();
    EXPECT_EQ(versionIn(m_plan, 101), nullptr);
    for (const QString& folder : {u"a-english"_s, u"b-new"_s})
        EXPECT_TRUE(remarks().contains(u"알 수 없습니다: "_s + files.path(u"user/"_s + folder)))
            << remarks().toStdString();
    book(u"user/c-old/Ruth.json"_s, kOldKorean);
    book(u"user/d-copy/Ruth.json"_s, kOldKorean);
    plan();
    EXPECT_TRUE(usedFile(101).contains(u"c-old"_s));
    EXPECT_TRUE(remarks().contains(u"쓰지 않는 것: "_s + files.path(u"user/d-copy"_s)));
    book(u"user/e/101/Ruth.json"_s, kNewKorean);
    plan();
    EXPECT_TRUE(usedFile(101).contains(u"e/101"_s)) << "a number goes before a guess";
}

TEST_F(BuildPlanTest, NamesFoldersThatNoReaderKnows)
{
    files.write(u"user/known/README.md"_s, u"x"_s);
    files.write(u"user/known/214/a.usfm"_s, u"\\id RUT"_s);
    files.write(u"user/unknown/a.sfm"_s, u"\\id RUT"_s);
    files.write(u"user/zip/bible.zip"_s, u"x"_s);
    files.write(u"user/html/a.xml"_s, u"<html/>"_s);
    files.write(u"user/sword/mods.d/bbe.conf"_s, u"[BBE]\nDataPath=./modules/x/\n"_s);
    files.write(u"user/sword/modules/x/ot"_s, u"x"_s);
    plan();
    for (const QString& told : {u"unknown"_s, u"zip"_s, u"html"_s})
        EXPECT_TRUE(remarks().contains(files.path(u"user/"_s + told))) << told.toStdString();
    for (const QString& quiet : {u"known"_s, u"sword/modules"_s})
        EXPECT_FALSE(remarks().contains(files.path(u"user/"_s + quiet))) << quiet.toStdString();
}

TEST_F(BuildPlanTest, ASuppliedTextGoesBeforeAnInstalledOne)
{
    files.write(u"user/201/gen.usfm"_s, u"\\id GEN"_s);
    BuildOptions options;
    EXPECT_EQ(versionIn(planBuild(options, {}).value(), 201)->source.format, SourceFormat::Sword);
    options.sourceFolder = files.path(u"user"_s);
    EXPECT_EQ(versionIn(planBuild(options, {}).value(), 201)->source.format, SourceFormat::Usfm);
}

TEST_F(BuildPlanTest, OnlyWhatIsAskedForAndTellsWhatHasNoSource)
{
    BuildOptions options;
    options.only = {201, 101, 103};
    const auto plan = planBuild(options, {});
    ASSERT_TRUE(plan.ok());
    EXPECT_EQ(filesOf(plan.value()), (QStringList{u"201"_s, u"201c"_s}));
    EXPECT_EQ(plan.value().refused.size(), 2U);
    EXPECT_EQ(plan.value().refused[0].state, ModuleState::SourceMissing);
}

TEST_F(BuildPlanTest, AConcordanceOfTheUsersGoesBeforeTheWordsOfItsVersion)
{
    const QString table = files.write(u"user/words/201c.tsv"_s, u"x\t창1:1"_s);
    files.write(u"user/words/104C.tsv"_s, u"x\t창1:1"_s);
    files.write(u"user/words/555c.tsv"_s, u"x\t창1:1"_s);
    BuildOptions options;
    options.sourceFolder = files.path(u"user"_s);
    options.only = {201};
    options.onlyFiles = {u"104c"_s, u"205c"_s, u"106c"_s};
    const auto plan = planBuild(options, {});
    ASSERT_TRUE(plan.ok());
    EXPECT_EQ(filesOf(plan.value()), (QStringList{u"201"_s, u"104c"_s, u"201c"_s, u"205c"_s}));
    const auto* own = dynamic_cast<const ReferenceTask*>(plan.value().tasks[2].get());
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->sources, QStringList{table});
    ASSERT_EQ(plan.value().refused.size(), 1U);
    EXPECT_EQ(plan.value().refused[0].file, u"106c"_s);
    EXPECT_TRUE(plan.value().remarks.join(u'\n').contains(u"555c.tsv"_s));
    // Once made it stays when the table isn't named; a version's own is made anew.
    options.sourceFolder.clear();
    const auto without = planBuild(options, {});
    const ModuleTask& words = *without.value().tasks[1];
    ASSERT_EQ(words.file, u"201c"_s);
    EXPECT_TRUE(words.isCurrent(own->stamp()));
    EXPECT_FALSE(words.isCurrent(u"x"_s));
    EXPECT_FALSE(own->isCurrent(words.stamp()));
}

TEST_F(BuildPlanTest, TakesNamedFilesForOneModule)
{
    BuildOptions options;
    options.moduleCode = 905;
    options.moduleName = u"시험"_s;
    options.format = u"osis"_s;
    options.files = {files.write(u"a.xml"_s, u"<osis/>"_s)};
    const auto plan = planBuild(options, {});
    ASSERT_TRUE(plan.ok());
    EXPECT_EQ(filesOf(plan.value()), (QStringList{u"905"_s, u"905c"_s}));
    EXPECT_EQ(plan.value().tasks[0]->name, u"시험"_s);
    options.files = {files.path(u"none.xml"_s)};
    EXPECT_EQ(planBuild(options, {}).failure().kind, FailureKind::NotFound);
    options.format = u"sword"_s;
    options.files = {u"NoSuchModule"_s};
    EXPECT_EQ(planBuild(options, {}).failure().kind, FailureKind::NotFound);
    options.files = {files.path(u"a.xml"_s)};
    options.format = u"word"_s;
    EXPECT_EQ(planBuild(options, {}).failure().kind, FailureKind::Invalid);
}

TEST(BuildOptions, RefusesWhatMakesNoSense)
{
    const QStringList refused[] = {
        {u"--only"_s, u"abc"_s},
        {u"--only="_s},
        {u"--jobs"_s, u"0"_s},
        {u"--source"_s, u"/no/such/folder"_s},
        {u"file.usfm"_s},
        {u"--module"_s, u"901"_s, u"--format"_s, u"usfm"_s, u"f"_s},
        {u"--module"_s, u"901"_s, u"--name"_s, u"a[b"_s, u"--format"_s, u"usfm"_s, u"f"_s},
        {u"--module"_s, u"901"_s, u"--name"_s, u"이름(없음)"_s, u"--format"_s, u"usfm"_s, u"f"_s},
        {u"--module"_s, u"901"_s, u"--name"_s, u"MSysA"_s, u"--format"_s, u"usfm"_s, u"f"_s},
        {u"--module"_s, u"304"_s, u"--format"_s, u"usfm"_s, u"f"_s},
        {u"--module"_s, u"555"_s, u"--format"_s, u"usfm"_s, u"f"_s},
        {u"--module"_s, u"214"_s, u"f"_s},
        {u"--unknown"_s},
    };
    for (const QStringList& args : refused) {
        SCOPED_TRACE(args.join(u' ').toStdString());
        const auto options = parseBuildOptions(args);
        ASSERT_FALSE(options.ok());
        EXPECT_EQ(options.failure().kind, FailureKind::Invalid);
    }
}

} // namespace
} // namespace lumen
