// SPDX-License-Identifier: GPL-2.0-or-later
// The word panel from the reader's move to its painted words, analysis and entry. With
// LUMENSCRIPT_MODULES naming a folder with z101 and the two dictionaries the longest verses of
// those are shown, else made-up ones of as many words; with LUMENSCRIPT_FONTS naming the folder of
// the original languages' fonts in those.
#include "canon/canon_table.h"
#include "data/check_data.h"
#include "jet/data_control.h"
#include "panel/reference_panel.h"
#include "panel/words/word_analysis_tab.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/original_modules.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>

#include <benchmark/benchmark.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kRuns = 11;
constexpr int kEsther = 16;
constexpr int kRevelation = 65;
constexpr int kHebrewWords = 43;
constexpr int kGreekWords = 59;

OriginalVerse longVerse(int book, int chapter, int verse, int words)
{
    OriginalVerse made{book, chapter, verse, {}};
    for (int word = 1; word <= words; ++word)
        made.words << OriginalWord{u"w2ord%1"_s.arg(word), word, u"l5emma%1"_s.arg(word),
                                   u"@ncmsaS---E-H-R-"_s};
    return made;
}

void writeDictionary(const QString& path, const QString& reference)
{
    QList<QVariantList> rows;
    for (int number = 1; number <= kGreekWords; ++number) {
        QVariantList row{number};
        for (int column = 0; column < 9; ++column)
            row << DES::ScrambleField(u"some words of an entry, "_s.repeated(5));
        rows << row;
    }
    TableSchema schema{u"StrongDic"_s, {{u"Num"_s, FieldType::Long, 0}}, {{u"Num"_s, {u"Num"_s}}}};
    for (const QString& name : {u"Word"_s, u"PronEng"_s, u"PronKor"_s, u"ParsKor"_s, u"Source"_s,
                                reference, u"AV"_s, u"ContKor"_s, u"ContEng"_s})
        schema.columns.push_back({name, FieldType::Memo, 0});
    writeModule(path, {{schema, rows}});
}

class World
{
public:
    World()
    {
        const QString real = qEnvironmentVariable("LUMENSCRIPT_MODULES");
        if (QFile::exists(real + u"/z101.dts"_s)) {
            for (const QString& name : {u"z101.dts"_s, u"StrongDicH.dts"_s, u"StrongDicG.dts"_s})
                QFile::link(real + u'/' + name, test.folders.data(name));
        } else {
            writeOriginalModules(test.folders.program() + u"/Data"_s,
                                 {longVerse(kEsther, 8, 9, kHebrewWords),
                                  longVerse(kRevelation, 20, 4, kGreekWords)});
            writeDictionary(test.folders.data(u"StrongDicH.dts"_s), u"TWOT"_s);
            writeDictionary(test.folders.data(u"StrongDicG.dts"_s), u"TDNT"_s);
        }
        CheckData(test.state, test.files, test.jet);
        auto made = std::make_unique<WordAnalysisTab>(
            PanelHost{test.services, test.state, reader, dacRefTab});
        tab = made.get();
        panel.addTab(std::move(made));
        panel.resize(900, 700);
        panel.show();
        panel.sst관주사전->selectCaption(u"원전분해"_s);
        panel.toggle();
        QApplication::processEvents();
    }

    void goTo(int book, int chapter, int verse)
    {
        reader.goTo(book, chapter, verse);
        panel.showPlace();
        panel.repaint();
        tab->flex원전분해->viewport()->repaint();
        QApplication::processEvents();
    }

    TestServices test;
    FakeReader reader;
    DataControl dacRefTab{test.jet};
    WordAnalysisTab* tab = nullptr;
    ReferencePanel panel{test.services};
};

/// Opening a verse, the other testament's having been on show before.
void openVerse(benchmark::State& state, int book, int chapter, int verse)
{
    World world;
    const bool hebrew = book < kFirstNewTestamentBook;
    for (auto _ : state) {
        state.PauseTiming();
        world.goTo(hebrew ? kRevelation : kEsther, hebrew ? 20 : 8, hebrew ? 4 : 9);
        state.ResumeTiming();
        world.goTo(book, chapter, verse);
    }
    state.counters["words"] = world.tab->flex원전분해->Cols() - 1;
}

void esther(benchmark::State& state)
{
    openVerse(state, kEsther, 8, 9);
}

void revelation(benchmark::State& state)
{
    openVerse(state, kRevelation, 20, 4);
}

/// A panel that has measured none of the words yet.
void firstVerse(benchmark::State& state, int book, int chapter, int verse)
{
    std::optional<World> world;
    for (auto _ : state) {
        state.PauseTiming();
        world.emplace();
        state.ResumeTiming();
        world->goTo(book, chapter, verse);
    }
    state.counters["words"] = world->tab->flex원전분해->Cols() - 1;
}

BENCHMARK_CAPTURE(firstVerse, esther, kEsther, 8, 9)
    ->Name("Esther 8:9 in a fresh panel")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(kRuns);
BENCHMARK_CAPTURE(firstVerse, revelation, kRevelation, 20, 4)
    ->Name("Revelation 20:4 in a fresh panel")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(kRuns);
BENCHMARK(esther)->Name("Esther 8:9")->Unit(benchmark::kMillisecond)->Repetitions(kRuns);
BENCHMARK(revelation)->Name("Revelation 20:4")->Unit(benchmark::kMillisecond)->Repetitions(kRuns);

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QDir fonts(qEnvironmentVariable("LUMENSCRIPT_FONTS"));
    for (const QString& font : fonts.entryList({u"*.ttf"_s}))
        QFontDatabase::addApplicationFont(fonts.filePath(font));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
