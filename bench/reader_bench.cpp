// SPDX-License-Identifier: GPL-2.0-or-later
// What the reader's user feels: moving to a chapter and the start of the program. The modules come
// from the folder that LUMENSCRIPT_MODULES names; 개역한글 is the base version when it is there.
#include "support/real_program.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>
#include <iostream>
#include <optional>

namespace {

using namespace lumen;
using namespace Qt::StringLiterals;

constexpr int kPsalms = 18;
constexpr int kJohn = 42;

using real::Program;
using real::ProgramFolder;

ProgramFolder& programFolder()
{
    static ProgramFolder folder;
    return folder;
}

/// From the command to the end of a forced repaint; the way back to the chapter before isn't timed.
void moveToChapter(benchmark::State& state, int versions, ViewMode mode, int book, int chapter)
{
    Program program(programFolder());
    if (!program.loaded) {
        state.SkipWithError("no modules: set LUMENSCRIPT_MODULES");
        return;
    }
    const int opened = program.openVersions({101, 201, 213, 223, 202}, versions);
    if (opened < versions) {
        state.SkipWithError("too few versions");
        return;
    }
    program.reader.atbar_event9(mode == ViewMode::Table ? u"ID_테이블형식"_s : u"ID_텍스트형식"_s);
    for ([[maybe_unused]] const auto iteration : state) {
        program.reader.model.goTo(book, chapter == 1 ? 2 : chapter - 1, 1);
        program.reader.repaint();
        QApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        program.reader.model.goTo(book, chapter, 1);
        program.reader.repaint();
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
    }
}

void psalm119Text(benchmark::State& state)
{
    moveToChapter(state, static_cast<int>(state.range(0)), ViewMode::Text, kPsalms, 119);
}

void psalm119Table(benchmark::State& state)
{
    moveToChapter(state, static_cast<int>(state.range(0)), ViewMode::Table, kPsalms, 119);
}

void john3Text(benchmark::State& state)
{
    moveToChapter(state, static_cast<int>(state.range(0)), ViewMode::Text, kJohn, 3);
}

void john3Table(benchmark::State& state)
{
    moveToChapter(state, static_cast<int>(state.range(0)), ViewMode::Table, kJohn, 3);
}

/// From `Main` to the first chapter on the screen, without the loading of the program itself.
void start(benchmark::State& state)
{
    for ([[maybe_unused]] const auto iteration : state) {
        QElapsedTimer timer;
        timer.start();
        std::optional<Program> program(std::in_place, programFolder());
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        if (!program->loaded)
            state.SkipWithError("no modules: set LUMENSCRIPT_MODULES");
    }
}

constexpr int kRounds = 21;

BENCHMARK(psalm119Text)
    ->Arg(4)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(kRounds)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(psalm119Table)
    ->Arg(4)
    ->Arg(1)
    ->UseManualTime()
    ->Iterations(kRounds)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(john3Text)->Arg(2)->UseManualTime()->Iterations(kRounds)->Unit(benchmark::kMillisecond);
BENCHMARK(john3Table)->Arg(2)->UseManualTime()->Iterations(kRounds)->Unit(benchmark::kMillisecond);
BENCHMARK(start)->UseManualTime()->Iterations(kRounds)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    std::cout << "display: " << QGuiApplication::platformName().toStdString() << '\n';
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
