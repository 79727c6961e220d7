// SPDX-License-Identifier: GPL-2.0-or-later
// From the print command to the painted first page, and a move between pages of the preview, over
// the modules that LUMENSCRIPT_MODULES names.
#include "canon/verse_index.h"
#include "data/chapter_reader.h"
#include "data/module_path.h"
#include "forms/module_query.h"
#include "jet/data_control.h"
#include "jet/rows/recordset.h"
#include "print/bible_layout.h"
#include "print/header_footer.h"
#include "print/preview_window.h"
#include "support/real_program.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

namespace {

using namespace lumen;
using namespace Qt::StringLiterals;
using real::Program;
using real::ProgramFolder;

constexpr int kPsalms = 18;
constexpr int kJohn = 42;
constexpr int kVersion = 201; // KJV
constexpr int kHits = 1000;

ProgramFolder& programFolder()
{
    static ProgramFolder folder;
    return folder;
}

void preview(benchmark::State& state, ViewMode mode, int book, int chapter)
{
    Program program(programFolder());
    if (!program.loaded || program.openVersions({101, 201, 213, 223, 202}, 4) < 4) {
        state.SkipWithError("four versions are needed: set LUMENSCRIPT_MODULES");
        return;
    }
    program.reader.atbar_event9(mode == ViewMode::Table ? u"ID_테이블형식"_s : u"ID_텍스트형식"_s);
    program.reader.model.goTo(book, chapter, 1);
    int pages = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        QElapsedTimer timer;
        timer.start();
        frm미리보기 window(program.world.services(), program.state.print,
                           program.reader.printRequest());
        window.Form_Load();
        window.show();
        benchmark::DoNotOptimize(window.vp->viewport()->grab());
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        pages = window.printer.PageCount();
    }
    state.counters["pages"] = pages;
}

// What the search window prints: the hits' verses out of the open result, read while they are laid
// out.
void result(benchmark::State& state)
{
    Program program(programFolder());
    if (!program.loaded || !program.state.installed.hasVersion(kVersion)) {
        state.SkipWithError("KJV is needed: set LUMENSCRIPT_MODULES");
        return;
    }
    Services& services = program.world.services();
    DataControl hits(services.jet);
    Recordset& verses = askModule(hits, services, program.state, versionFile(kVersion),
                                  u"select index, cont from [KJV] where index < '09'"_s);
    PrintRequest request;
    request.source = print_source::kBibleSearch.toString();
    request.layOut = [&verses](VSPrinter& vp, bool) {
        VerseSheet sheet{u"장 절"_s, kVersePlaceWidth, {{u"본 문 (KJV)"_s, {}}}, {}};
        verses.MoveFirst();
        for (int i = 0; i < kHits && !verses.Eof(); ++i, verses.MoveNext())
            sheet.rows.push_back({{},
                                  BibleCode::IndexToRef(Text(verses.Fields(u"index"))),
                                  {readableText(Text(verses.Fields(u"cont")))}});
        layOutVerses(vp, sheet);
    };
    int pages = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        QElapsedTimer timer;
        timer.start();
        frm미리보기 window(services, program.state.print, request);
        window.Form_Load();
        window.show();
        benchmark::DoNotOptimize(window.vp->viewport()->grab());
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
        pages = window.printer.PageCount();
    }
    state.counters["pages"] = pages;
}

void pageMove(benchmark::State& state)
{
    Program program(programFolder());
    if (!program.loaded || program.openVersions({101, 201, 213, 223, 202}, 4) < 4) {
        state.SkipWithError("four versions are needed: set LUMENSCRIPT_MODULES");
        return;
    }
    program.reader.atbar_event9(u"ID_테이블형식"_s);
    program.reader.model.goTo(kPsalms, 119, 1);
    frm미리보기 window(program.world.services(), program.state.print,
                       program.reader.printRequest());
    window.Form_Load();
    window.show();
    window.repaint();
    int page = 1;
    for ([[maybe_unused]] const auto iteration : state) {
        page = page % window.printer.PageCount() + 1;
        QElapsedTimer timer;
        timer.start();
        window.vp->setPreviewPage(page);
        benchmark::DoNotOptimize(window.vp->viewport()->grab());
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const auto add = [](const char* name, auto run) {
        benchmark::RegisterBenchmark(name, run)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    add("preview John 3, table", [](auto& s) { preview(s, ViewMode::Table, kJohn, 3); });
    add("preview John 3, text", [](auto& s) { preview(s, ViewMode::Text, kJohn, 3); });
    add("preview Psalm 119, table", [](auto& s) { preview(s, ViewMode::Table, kPsalms, 119); });
    add("preview Psalm 119, text", [](auto& s) { preview(s, ViewMode::Text, kPsalms, 119); });
    add("preview 1,000 hits", result);
    add("page move", pageMove);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
