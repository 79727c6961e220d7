// SPDX-License-Identifier: GPL-2.0-or-later
// An original-language search from the click to the painted first verse, in the real window. With
// LUMENSCRIPT_MODULES naming a folder with z101, z102, z103 and 301 those are searched, else
// made-up verses of the same number.
#include "canon/canon_table.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "search/search_window.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/original_modules.h"
#include "support/test_services.h"

#include <QApplication>
#include <QFile>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kRuns = 11;
constexpr int kHebrewVerses = 23144;

// What the question asks for: any noun, any verb of the stem "q" in sequence, and three words.
const QString kNoun = u"@n____S___E_H_R_"_s;
const QString kVerb = u"@vqw____S___J_C_A_E_H_R_"_s;
const QString kGod = u"7yhla"_s;      // a form of number 430, in the letters of the fonts
const QString kSaid = u"r3mao5y1w"_s; // one of number 559
const QString kStrongOfGod = u"430"_s;
const QString kStrongOfSaying = u"559"_s;

/// Nouns in nearly all verses, the verbs in a third, as in the real texts.
QList<OriginalVerse> madeVerses()
{
    QRandomGenerator random(1);
    QList<OriginalVerse> verses;
    const int inChapter = kHebrewVerses / 929 + 1; // chapters of the Hebrew books
    for (int book = 0; book < kFirstNewTestamentBook; ++book)
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            for (int verse = 1; verse <= inChapter && verses.size() < kHebrewVerses; ++verse) {
                OriginalVerse made{book, chapter, verse, {}};
                for (int i = random.bounded(4, 9); i > 0; --i) {
                    const int number = random.bounded(1000, 8000);
                    const QString form = u"w%1"_s.arg(number);
                    made.words << OriginalWord{form, number, form, u"@ncmsaS---E-H-R-"_s};
                }
                if (random.bounded(3) == 0)
                    made.words << OriginalWord{kSaid, 559, u"rma"_s, u"@vqw3ms-S---J-C-A-E-H-R-"_s};
                if (random.bounded(10) == 0)
                    made.words << OriginalWord{kGod, 430, u"hla"_s, u"@ncmpaS---E-H-R-"_s};
                verses << made;
            }
    return verses;
}

class World
{
public:
    World()
    {
        if (!createUserDatabases(test.state.AppPath, test.files, test.drives, QDate(2024, 1, 1)))
            qFatal("no scratch tables");
        const QString real = qEnvironmentVariable("LUMENSCRIPT_MODULES");
        if (QFile::exists(real + u"/z102.dts"_s))
            for (const QString& name : {u"101.dts"_s, u"301.dts"_s, u"z101.dts"_s, u"z102.dts"_s,
                                        u"z103.dts"_s, u"StrongDicH.dts"_s})
                QFile::link(real + u'/' + name, test.folders.data(name));
        else
            writeOriginalModules(test.folders.program() + u"/Data"_s, madeVerses());
        // The window asks for one version whatever tab it shows.
        writeVersion(test.folders.data(u"201.dts"_s), u"KJV"_s, {});
        CheckData(test.state, test.files, test.jet);
    }

    frm성서검색& freshWindow()
    {
        window.emplace(test.services, test.state, reader);
        window->Form_Load();
        window->resize(1000, 750);
        window->show();
        window->sstSearch->setTab(static_cast<int>(SearchTab::Parsing));
        QCoreApplication::processEvents();
        return *window;
    }

    TestServices test;
    FakeReader reader;
    std::optional<frm성서검색> window;
};

World& world()
{
    static World theWorld;
    return theWorld;
}

void askWord(ParsingPanel& panel, int condition, ConditionKind kind, const QString& word)
{
    panel.cbType(condition)->setListIndex(static_cast<int>(kind));
    panel.txHGSearch(condition)->setText(word);
}

void askPattern(ParsingPanel& panel, int condition, const QString& code)
{
    panel.cbType(condition)->setListIndex(static_cast<int>(ConditionKind::Parsing));
    panel.setPattern(condition, code);
}

void askFive(ParsingPanel& panel, const QString& literal)
{
    askPattern(panel, 0, kNoun);
    askPattern(panel, 1, kVerb);
    askWord(panel, 2, ConditionKind::Root, kGod);
    askWord(panel, 3, ConditionKind::Literal, literal);
    askWord(panel, 4, ConditionKind::Strong, kStrongOfSaying);
    panel.cbAndOr(2)->setListIndex(1);
}

void searchPainted(benchmark::State& state, void (*ask)(ParsingPanel&))
{
    for (auto _ : state) {
        state.PauseTiming();
        frm성서검색& window = world().freshWindow();
        ask(*window.parsing);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        window.parsing->cmdParsingSearch->click();
        QCoreApplication::processEvents();
        state.PauseTiming();
        state.counters["hits"] = window.parsingResults.lstResult->ListCount();
        window.close();
        world().window.reset();
        state.ResumeTiming();
    }
}

void BM_FiveConditions(benchmark::State& state)
{
    searchPainted(state, [](ParsingPanel& panel) { askFive(panel, kSaid); });
}

/// The same with a letter that stands in nearly every verse.
void BM_FiveBroadConditions(benchmark::State& state)
{
    searchPainted(state, [](ParsingPanel& panel) { askFive(panel, u"a"_s); });
}

void BM_OneStrongNumber(benchmark::State& state)
{
    searchPainted(
        state, [](ParsingPanel& panel) { askWord(panel, 0, ConditionKind::Strong, kStrongOfGod); });
}

/// Nearly every verse: the longest list there is.
void BM_AnyNoun(benchmark::State& state)
{
    searchPainted(state, [](ParsingPanel& panel) { askPattern(panel, 0, kNoun); });
}

void painted(benchmark::internal::Benchmark* bench)
{
    bench->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(1)
        ->Repetitions(kRuns)
        ->ReportAggregatesOnly();
}

BENCHMARK(BM_FiveConditions)->Apply(painted);
BENCHMARK(BM_FiveBroadConditions)->Apply(painted);
BENCHMARK(BM_OneStrongNumber)->Apply(painted);
BENCHMARK(BM_AnyNoun)->Apply(painted);

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
