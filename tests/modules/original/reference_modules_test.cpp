// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/build_options.h"
#include "cli/build_run.h"
#include "modules/original/mini_sources.h"
#include "original/original_versions.h"
#include "recipes/reference_recipes.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <algorithm>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

QString shown(const QVariant& value)
{
    return value.isNull() ? u"-"_s : DES::UnscrambleField(value.toString());
}

class ReferenceModules : public testing::Test
{
protected:
    ModuleOutcome build(const QString& file, const BuildAdvance& advance = {})
    {
        OriginalCorpus corpus(sources);
        for (const ReferenceTask& task : referenceTasks(corpus, {files.path(u"references.js"_s)}))
            if (task.file == file)
                return buildModule(
                    task, files.path(), advance ? advance : [](double) { return true; });
        return {};
    }

    // The plain texts of a row, Null as "-"; numbers stay as they are.
    QStringList rows(const QString& file, const QString& sql)
    {
        QStringList result;
        for (const QVariantList& row : storeRows(files.path(file + u".dts"_s), sql)) {
            QStringList fields;
            for (const QVariant& value : row)
                fields << shown(value);
            result << fields.join(u'|');
        }
        return result;
    }

    SourceFiles files;
    OriginalSources sources = writeMiniSources(files);
};

TEST_F(ReferenceModules, AnalysisHasARowForEachKind)
{
    ASSERT_EQ(build(u"z101"_s).state, ModuleState::Built);
    const auto places = storeRows(files.path(u"z101.dts"_s),
                                  u"select \"index\", chap, verse, Lang from 원전분해"_s);
    ASSERT_EQ(places.size(), 20u);
    EXPECT_EQ(places[0], (QVariantList{u"01창:001:001"_s, u"창01"_s, 1, u"s"_s}));
    EXPECT_EQ(places[19], (QVariantList{u"43요:001:001"_s, u"요01"_s, 1, u"p"_s}));
    EXPECT_EQ(rows(u"z101"_s, u"select Word1, Word2, Word3, Word4, Word5 from 원전분해"_s),
              QStringList({u"9|8|9|-|-"_s,
                           u"ba;5b|d15g|b4a|p|-"_s,
                           u"In one|runs|two|-|-"_s,
                           u"-|-|-|-|-"_s,
                           u"ba/;5b|d15g|b4a|-|-"_s,
                           u"b4a|d45g|b4a|-|-"_s,
                           u"@ncfsaS---E-H-R-|@vqp3ms-S---J-C-A.E-H-R-|@ncfsaS---E-H-R-|"
                           "@xxxxxx|-"_s,
                           u"8|7|-|-|-"_s,
                           u"dg|g15d|-|-|-"_s,
                           u"-|three|-|-|-"_s,
                           u"-|-|-|-|-"_s,
                           u"dg|g15d|-|-|-"_s,
                           u"d45g|g15d|-|-|-"_s,
                           u"@ncmsaS---E-H-Rk|@ncmsaS---E-H-Rq|-|-|-"_s,
                           u"3056|2532|-|-|-"_s,
                           u"logoj|kai|-|-|-"_s,
                           u"word|And|-|-|-"_s,
                           u"말씀|그리고|-|-|-"_s,
                           u"lo3goj|-|-|-|-"_s,
                           u"$nnms|$qo|-|-|-"_s}));
}

TEST_F(ReferenceModules, AWordLeadsToItsLemmasNumberFirst)
{
    ASSERT_EQ(build(u"z102"_s).state, ModuleState::Built);
    // The lemmas of the most frequent numbers, then the forms; each pair once.
    const auto words =
        storeRows(files.path(u"z102.dts"_s), u"select word, Strong from BHS2Strong"_s);
    QStringList pairs;
    for (const QVariantList& row : words)
        pairs << shown(row[0]) + u' ' + row[1].toString();
    EXPECT_EQ(pairs, QStringList({u"d45g 8"_s, u"dg 8"_s, u"b4a 9"_s, u"ba 9"_s, u"g15d 7"_s,
                                  u"gd 7"_s, u"d15g 8"_s, u"ba;5b 9"_s, u"bab 9"_s}));
    const auto numbers =
        storeRows(files.path(u"z102.dts"_s), u"select word, Pos, num from BHSStrongPos"_s);
    ASSERT_EQ(numbers.size(), 3u);
    EXPECT_EQ(shown(numbers[1][0]), u"8"_s);
    EXPECT_EQ(numbers[1][1].toString(), u"01창:001:001;01창:001:002"_s);
    EXPECT_EQ(numbers[2][1].toString(), u"01창:001:001"_s) << "a verse stands once";
    EXPECT_EQ(numbers[2][2].toInt(), 1);
    EXPECT_EQ(rows(u"z102"_s, u"select word from NSLemaPos"_s),
              QStringList({u"logoj"_s, u"lo3goj"_s}))
        << "in stored order";
}

TEST_F(ReferenceModules, SearchedCodesBeginWithThePrefixes)
{
    ASSERT_EQ(build(u"z103"_s).state, ModuleState::Built);
    EXPECT_EQ(
        rows(u"z103"_s, u"select Parsing from ParsingSearch"_s),
        QStringList({u"@PpS---E-H-R-;@ncfsaS---E-H-R-;@vqp3ms-S---J-C-A.E-H-R-;"
                     "@ncfsaS---E-H-R-;@xxxxxx;"_s,
                     u"@ncmsaS---E-H-Rk;@ncmsaS---E-H-Rq;"_s, u"($nnms);($qo);($q);($c);"_s}));
}

TEST_F(ReferenceModules, DictionariesTakeWhatTheSourcesTell)
{
    ASSERT_EQ(build(u"StrongDicH"_s).state, ModuleState::Built);
    ASSERT_EQ(build(u"StrongDicG"_s).state, ModuleState::Built);
    const QString columns = u"select Word, PronEng, PronKor, ParsKor, Source, %1, AV, ContKor, "
                            "ContEng from StrongDic order by Num"_s;
    EXPECT_EQ(rows(u"StrongDicH"_s, columns.arg(u"TWOT"_s)),
              QStringList({u"g15d|dag|닥|남성명사|-|-|-|-|-"_s,
                           u"d45g|gad|가드|동사(아람어)|from H9;|-|run.|-|-"_s,
                           u"b4a|ab|압|남성명사 / 여성명사|-|4a, 5|-|-|a one"_s}));
    EXPECT_EQ(rows(u"StrongDicG"_s, columns.arg(u"TDNT"_s)),
              QStringList{u"lo3goj|log|로고스|남성명사|from G3004;|-|word.|말씀, 말|a saying"_s});
}

TEST_F(ReferenceModules, AreLeftAloneUntilASourceChanges)
{
    ASSERT_EQ(build(u"z103"_s).state, ModuleState::Built);
    EXPECT_EQ(build(u"z103"_s).state, ModuleState::UpToDate);
    const QString code = rows(u"z103"_s, u"select Parsing from ParsingSearch"_s).value(0);
    ASSERT_TRUE(changeLetter(files.path(u"z103.dts"_s), code));
    EXPECT_EQ(build(u"z103"_s).state, ModuleState::Built) << "damaged";
    files.write(u"morphhb/VerseMap.xml"_s, u"<verseMap> </verseMap>"_s);
    EXPECT_EQ(build(u"z103"_s).state, ModuleState::Built);
}

TEST_F(ReferenceModules, LeaveNothingWhenStopped)
{
    const QStringList before = QDir(files.path()).entryList(QDir::Files);
    int calls = 0;
    const ModuleOutcome outcome = build(u"z101"_s, [&calls](double) { return ++calls < 2; });
    EXPECT_EQ(outcome.state, ModuleState::Interrupted);
    EXPECT_EQ(QDir(files.path()).entryList(QDir::Files), before);
}

TEST_F(ReferenceModules, TellWhichSourceIsMissingOrDamaged)
{
    const ModuleOutcome missing = build(u"CRef"_s);
    EXPECT_EQ(missing.state, ModuleState::SourceMissing);
    EXPECT_TRUE(missing.problem.contains(u"scripts/fetch-npm-data"_s));
    ASSERT_EQ(build(u"z103"_s).state, ModuleState::Built);
    files.write(u"kjv.xml"_s, u"<osis>"_s);
    const ModuleOutcome damaged = build(u"z103"_s);
    EXPECT_EQ(damaged.state, ModuleState::Failed);
    EXPECT_TRUE(damaged.problem.contains(u"kjv.xml:1"_s)) << damaged.problem.toStdString();
    EXPECT_TRUE(QFile::exists(files.path(u"z103.dts"_s))) << "the old one stays";
}

TEST_F(ReferenceModules, RefuseAVerseWithMoreWordsThanColumns)
{
    QString words;
    for (int i = 0; i < 75; ++i)
        words += oshbWord(u"9"_s, u"HNcfsa"_s, u"אָב"_s);
    sources.hebrewFiles = {
        files.write(u"morphhb/Gen.xml"_s, oshbBook(oshbVerse(u"Gen.1.1"_s, words)))};
    const ModuleOutcome outcome = build(u"z101"_s);
    EXPECT_EQ(outcome.state, ModuleState::Failed);
    EXPECT_TRUE(outcome.problem.contains(u"01창:001:001"_s));
}

TEST_F(ReferenceModules, TheScratchTablesAreEmptyAndHaveTheirKey)
{
    ASSERT_EQ(build(u"z199"_s).state, ModuleState::Built);
    const auto tables = storeRows(files.path(u"z199.dts"_s),
                                  u"select name from sqlite_master where type = 'table' and name "
                                  "like 'Table%' order by length(name), name"_s);
    ASSERT_EQ(tables.size(), 11u);
    EXPECT_EQ(tables[10][0].toString(), u"Table10"_s);
    EXPECT_TRUE(storeRows(files.path(u"z199.dts"_s), u"select * from Table9"_s).empty());
}

TEST(OriginalPlan, TakesNamesAndCodesAsTheyAreAskedFor)
{
    const auto options = parseBuildOptions({u"--only"_s, u"Z101,cref,301"_s});
    ASSERT_TRUE(options.ok());
    const auto plan = planBuild(options.value(), {});
    ASSERT_TRUE(plan.ok());
    QStringList planned;
    for (const auto& task : plan.value().tasks)
        planned << task->file;
    EXPECT_EQ(planned, (QStringList{u"301"_s, u"301c"_s, u"z101"_s, u"CRef"_s}));
    EXPECT_FALSE(parseBuildOptions({u"--only"_s, u"z104"_s}).ok());
}

TEST(OriginalPlan, LeavesTheDividedTextOutUnlessAskedFor)
{
    const auto all = planBuild({}, {});
    ASSERT_TRUE(all.ok());
    EXPECT_TRUE(versionIn(all.value(), 302));
    EXPECT_FALSE(versionIn(all.value(), 303));
    EXPECT_EQ(all.value().tasks.back()->file, u"CRef"_s);
    BuildOptions options;
    options.only = {303};
    EXPECT_TRUE(versionIn(planBuild(options, {}).value(), 303));
}

TEST(OriginalPlan, AModuleIsNotMadeAnewWithoutWhatEnrichedIt)
{
    const SourceFiles files;
    files.write(u"words.xml"_s, u"words"_s);
    files.write(u"korean.json"_s, u"glosses"_s);
    ReferenceTask plain;
    plain.file = u"z101"_s;
    plain.sources = {files.path(u"words.xml"_s)};
    ReferenceTask enriched = plain;
    enriched.enrichment = {files.path(u"korean.json"_s)};

    EXPECT_TRUE(plain.isCurrent(plain.stamp()));
    EXPECT_TRUE(plain.isCurrent(enriched.stamp()));
    EXPECT_TRUE(enriched.isCurrent(enriched.stamp()));
    EXPECT_FALSE(enriched.isCurrent(plain.stamp()));
    ReferenceTask other = plain;
    other.sources = {files.path(u"korean.json"_s)};
    EXPECT_FALSE(other.isCurrent(enriched.stamp()));
}

TEST(OriginalPlan, FindsTheUsersFiles)
{
    const SourceFiles files;
    files.write(u"user/greek/MAT.csv"_s, u"chapter,verse,text\n1,1,α 1 {X}\n"_s);
    files.write(u"user/greek/notes.csv"_s, u"a\n"_s);
    files.write(u"user/101/Ruth.json"_s,
                u"{\"book\": \"Ruth\", \"chapters\": [{\"chapter\": 1, \"verses\": "
                "[{\"verse\": 1, \"text\": \"a\"}]}]}"_s);
    files.write(u"user/306/a.xml"_s, u"<osis/>"_s);
    files.write(u"user/310/a.xml"_s, u"<osis/>"_s);
    BuildOptions options;
    options.sourceFolder = files.path(u"user"_s);
    const auto plan = planBuild(options, {});
    ASSERT_TRUE(plan.ok());
    EXPECT_EQ(plan.value().corpus->sources().koreanFiles.size(), 1);
    const VersionTask* received = versionIn(plan.value(), 306);
    ASSERT_NE(received, nullptr);
    EXPECT_EQ(received->numbering, Numbering::Korean);
    EXPECT_EQ(received->mends.back(), encodeGreek);
    // A text of another shape must not take the place of the Byzantine one.
    const VersionTask* byzantine = versionIn(plan.value(), 310);
    ASSERT_NE(byzantine, nullptr);
    EXPECT_EQ(byzantine->source.files, QStringList{files.path(u"user/greek/MAT.csv"_s)});
    EXPECT_TRUE(byzantine->reader);
    EXPECT_TRUE(plan.value().remarks.join(u'\n').contains(u"310: "_s));
}

} // namespace
} // namespace lumen
