// SPDX-License-Identifier: GPL-2.0-or-later
// The lookups of the reference panel from Enter to the filled list and its changes of tab, over the
// modules in the folder that LUMENSCRIPT_MODULES names; without it nothing is measured. Beside the
// concordance stands the plain look: its words in memory, unscrambled already, each tried for its
// beginning.
#include "data/check_data.h"
#include "data/versions.h"
#include "jet/engine.h"
#include "jet/rows/recordset.h"
#include "panel/lookup/concordance.h"
#include "panel/panel_tabs.h"
#include "panel/reference_panel.h"
#include "support/fake_reader.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

/// The tab over a concordance of the folder.
struct Lookup
{
    explicit Lookup(int code)
    {
        const QDir modules(qEnvironmentVariable("LUMENSCRIPT_MODULES"));
        for (const QString& file : {u"%1.dts"_s.arg(code), u"%1c.dts"_s.arg(code)})
            there = QFile::link(modules.filePath(file), test.folders.data(file)) &&
                    QFile::exists(modules.filePath(file));
        CheckData(test.state, test.files, test.jet);
        reader.codes = {code};
        tab.emplace(PanelHost{.services = test.services,
                              .state = test.state,
                              .reader = reader,
                              .dacRefTab = dacRefTab});
        tab->setStatus = [](const QString&) {};
        tab->page()->resize(900, 400);
        tab->page()->show();
        tab->enter();
    }

    TestServices test;
    FakeReader reader;
    DataControl dacRefTab{test.jet};
    std::optional<Concordance> tab;
    bool there = false;
};

void lookUp(benchmark::State& state, int code, const QString& word)
{
    Lookup lookup(code);
    if (!lookup.there) {
        state.SkipWithError("no modules");
        return;
    }
    for (auto _ : state) {
        QString asked = word;
        lookup.tab->Proc성구사전검색(asked);
        lookup.tab->flex성구결과->repaint();
    }
    state.counters["words"] = lookup.tab->flex성구결과->Rows();
}

void plainLook(benchmark::State& state, int code, const QString& word)
{
    Lookup lookup(code);
    if (!lookup.there) {
        state.SkipWithError("no modules");
        return;
    }
    const auto module =
        lookup.test.jet.OpenDatabase(lookup.test.folders.data(u"%1c.dts"_s.arg(code)), false, true,
                                     u";uid=admin;pwd=qolvetrinam"_s);
    QStringList words;
    for (const QString& stored :
         module->OpenRecordset(u"select Word from 성구사전"_s)->columnTexts(u"Word"))
        words << DES::UnscrambleField(stored);
    for (auto _ : state) {
        qsizetype found = 0;
        for (const QString& one : words)
            found += one.startsWith(word) ? 1 : 0;
        benchmark::DoNotOptimize(found);
    }
}

// The beginnings that most words have, and one whose first word stands in most verses.
/// From a tab to the next one at another verse, painted: each asks its module anew.
void changeTab(benchmark::State& state)
{
    const QDir modules(qEnvironmentVariable("LUMENSCRIPT_MODULES"));
    TestServices test;
    for (const QFileInfo& file : modules.entryInfoList({u"*.dts"_s}, QDir::Files))
        QFile::link(file.filePath(), test.folders.data(file.fileName()));
    CheckData(test.state, test.files, test.jet);
    FakeReader reader;
    DataControl dacRefTab(test.jet);
    ReferencePanel panel(test.services);
    panel.onStatus = [](const QString&) {};
    panel.onLayout = [] {};
    panel.onHideTextBox = [] {};
    PanelHost host{
        .services = test.services, .state = test.state, .reader = reader, .dacRefTab = dacRefTab};
    host.baseModule = [] { return static_cast<Database*>(nullptr); };
    addPanelTabs(panel, host);
    panel.resize(500, 600);
    panel.show();
    panel.toggle();
    const int tab = static_cast<int>(state.range(0));
    int verse = 1;
    for (auto _ : state) {
        state.PauseTiming();
        panel.showTab((tab + 1) % kPanelTabCount);
        verse = verse % 20 + 1;
        reader.goTo(0, 1, verse);
        QApplication::processEvents();
        state.ResumeTiming();
        panel.showTab(tab);
        panel.repaint();
        QApplication::processEvents();
    }
    state.SetLabel(kPanelCaptions[static_cast<std::size_t>(tab)].toString().toStdString());
}

BENCHMARK(changeTab)->DenseRange(0, kPanelTabCount - 1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(lookUp, Hebrew, 301, u"5w"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainLook, Hebrew, 301, u"5w"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(lookUp, English, 201, u"co"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainLook, English, 201, u"co"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(lookUp, Spanish, 223, u"de"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainLook, Spanish, 223, u"de"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(lookUp, Korean, 101, u"아니"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(plainLook, Korean, 101, u"아니"_s)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
