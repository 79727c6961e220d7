// SPDX-License-Identifier: GPL-2.0-or-later
// A map from the click on its name to the painted view, and a step of its zoom, over the modules
// and pictures that LUMENSCRIPT_MODULES names.
#include "support/fake_reader.h"
#include "support/real_program.h"
#include "support/recording_opener.h"
#include "tools/map/map_window.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

namespace {

using namespace lumen;
using namespace Qt::StringLiterals;

// A window of common size over the real maps.
class Maps
{
public:
    Maps()
    {
        const QDir modules(qEnvironmentVariable("LUMENSCRIPT_MODULES"));
        const QString program = folder.drives().program;
        QFile::link(modules.absoluteFilePath(u"maps"_s), program + u"/maps"_s);
        state.AppPath = world.services().drives.appPath();
        CheckData(state, world.services().files, world.services().jet);
        window.Form_Load();
        window.resize(1200, 800);
        window.show();
        window.repaint();
        QApplication::processEvents();
    }
    bool isEmpty() const { return window.vsPort->picture().isNull(); }
    double painted() const
    {
        benchmark::DoNotOptimize(window.vsPort->viewport()->grab());
        return static_cast<double>(timer.nsecsElapsed()) / 1e9;
    }

    real::ProgramFolder folder;
    World world{folder.drives()};
    AppState state;
    FakeReader reader;
    RecordingOpener opener;
    frm성서지도 window{world.services(), state, reader, opener};
    QElapsedTimer timer;
};

void openMap(benchmark::State& bench, bool fitted)
{
    Maps maps;
    if (maps.isEmpty())
        return bench.SkipWithError("no maps: set LUMENSCRIPT_MODULES");
    maps.window.vsPort->setFitted(fitted);
    int map = 0;
    for ([[maybe_unused]] const auto iteration : bench) {
        map = (map + 1) % maps.window.lst지도목록->ListCount();
        maps.timer.start();
        maps.window.lst지도목록->setListIndex(map);
        bench.SetIterationTime(maps.painted());
    }
}

void zoomStep(benchmark::State& bench)
{
    Maps maps;
    if (maps.isEmpty())
        return bench.SkipWithError("no maps: set LUMENSCRIPT_MODULES");
    MapView& view = *maps.window.vsPort;
    bool isNearer = true;
    for ([[maybe_unused]] const auto iteration : bench) {
        if (view.zoom() <= MapView::kLeast || view.zoom() >= MapView::kMost)
            isNearer = view.zoom() <= MapView::kLeast;
        maps.timer.start();
        isNearer ? view.enlarge() : view.reduce();
        bench.SetIterationTime(maps.painted());
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const auto milliseconds = benchmark::kMillisecond;
    benchmark::RegisterBenchmark("map/open/actual size", openMap, false)
        ->UseManualTime()
        ->Unit(milliseconds);
    benchmark::RegisterBenchmark("map/open/fitted", openMap, true)
        ->UseManualTime()
        ->Unit(milliseconds);
    benchmark::RegisterBenchmark("map/zoom step", zoomStep)->UseManualTime()->Unit(milliseconds);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
