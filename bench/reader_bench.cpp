// SPDX-License-Identifier: GPL-2.0-or-later
// What the reader's user feels: moving to a chapter and the start of the program. The modules come
// from the folder that LUMENSCRIPT_MODULES names; 개역한글 is the base version when it is there.
#include "app/windows.h"
#include "app/world.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "forms/startup_progress.h"
#include "reader/bible_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <iostream>
#include <optional>

namespace {

using namespace lumen;
using namespace Qt::StringLiterals;

constexpr int kPsalms = 18;
constexpr int kJohn = 42;

class NoSplash : public StartupProgress
{
public:
    void showSplash() override {}
    void setProgress(int) override {}
    void hideSplash() override {}
};

/// A program folder of its own whose Data folder shows the modules; settings and caches too.
class ProgramFolder
{
public:
    ProgramFolder()
    {
        const QString data = m_folder.filePath(u"lumenscript/Data"_s);
        QDir().mkpath(data);
        const QDir modules(qEnvironmentVariable("LUMENSCRIPT_MODULES"));
        for (const QString& file : modules.entryList({u"*.dts"_s}, QDir::Files))
            QFile::link(modules.absoluteFilePath(file), data + u'/' + file);
        qputenv("XDG_CONFIG_HOME", m_folder.filePath(u"config"_s).toUtf8());
        qputenv("XDG_CACHE_HOME", m_folder.filePath(u"cache"_s).toUtf8());
    }
    DriveFolders drives() const { return {m_folder.filePath(u"lumenscript"_s), {}}; }

private:
    QTemporaryDir m_folder;
};

/// A loaded reader on the screen.
class Program
{
public:
    explicit Program(const ProgramFolder& folder)
        : world(folder.drives()), windows(world.services(), prepared(state, world)),
          reader(world.services(), state, windows)
    {
        windows.setReader(reader);
        NoSplash splash;
        loaded = reader.Form_Load(splash);
        reader.resize(1200, 800);
        reader.show();
        reader.repaint();
        QApplication::processEvents();
    }

    /// Selects versions from the first slot on; codes that are not installed are passed over.
    int openVersions(std::initializer_list<int> codes, int count)
    {
        int slot = 0;
        for (const int code : codes) {
            if (slot == count || !state.installed.hasVersion(code))
                continue;
            const QString id = slot == 0 ? u"ID_cb기본버전"_s : u"ID_cb대역본%1"_s.arg(slot);
            ComboBox& combo = reader.atbar.tool(id).combo();
            combo.setListIndex(combo.findItemData(code));
            ++slot;
        }
        return slot;
    }

    AppState state;
    World world;
    Windows windows;
    frm성서 reader;
    bool loaded = false;

private:
    static AppState& prepared(AppState& state, World& world)
    {
        Services& services = world.services();
        state.AppPath = services.drives.appPath();
        state.CdDrive = FindCdDrive(services.drives);
        ignoreFailure(createUserDatabases(state.AppPath, services.files, world.drives(),
                                          services.clock.now().date()),
                      "the bench reads modules only");
        return state;
    }
};

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
