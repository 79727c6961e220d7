// SPDX-License-Identifier: GPL-2.0-or-later
// The verses below the palette's line, a key at a time, over whole versions of the modules that
// LUMENSCRIPT_MODULES names; and the plainest scan for the same: each verse looked at by itself.
#include "palette/folded_text.h"
#include "palette/verse_texts.h"
#include "support/real_program.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

namespace {

using namespace lumen;
using namespace Qt::StringLiterals;

constexpr int kShown = 50;
constexpr int kKorean = 101;
constexpr int kKjv = 201;

struct Version
{
    explicit Version(int code)
    {
        state.AppPath = world.services().drives.appPath();
        CheckData(state, world.services().files, world.services().jet);
        if (!state.installed.hasVersion(code))
            return;
        QElapsedTimer timer;
        timer.start();
        verses.open(world.services(), state, code);
        while (true) {
            const qint64 before = timer.nsecsElapsed();
            const bool goesOn = verses.readOn();
            slowestBook = std::max(slowestBook, timer.nsecsElapsed() - before);
            if (!goesOn)
                break;
        }
        reading = timer.nsecsElapsed();
        for (int verse = 0; verse < verses.size(); ++verse)
            folded << foldedText(verses.text(verse));
    }

    real::ProgramFolder folder;
    World world{folder.drives()};
    AppState state;
    VerseTexts verses;
    QStringList folded;
    qint64 reading = 0; // ns
    qint64 slowestBook = 0;
};

// What stands in the line after each key of some texts.
QStringList keys(const QStringList& texts)
{
    QStringList typed;
    for (const QString& text : texts)
        for (qsizetype length = 1; length <= text.size(); ++length)
            typed << text.first(length);
    return typed;
}

const QStringList kKoreanTexts{u"하나님이 세상을"_s, u"여호와는 나의 목자"_s, u"ㅎㄴㄴ ㄴㄹ"_s,
                               u"믿음 소망 사랑"_s,  u"예루살렘에서"_s,       u"없는말이다"_s};
const QStringList kEnglishTexts{u"in the beginning"_s, u"the Lord is my shepherd"_s,
                                u"faith hope charity"_s, u"Jerusalem"_s, u"xylophone"_s};

void typing(benchmark::State& state, int code, const QStringList& texts)
{
    const Version version(code);
    if (version.verses.size() == 0)
        return state.SkipWithError("the version is needed: set LUMENSCRIPT_MODULES");
    const QStringList typed = keys(texts);
    std::vector<double> times;
    qsizetype next = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        QElapsedTimer timer;
        timer.start();
        benchmark::DoNotOptimize(version.verses.search(typed[next++ % typed.size()], kShown));
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(times);
    state.counters["p95 ms"] = times[times.size() * 95 / 100];
    state.counters["reading ms"] = static_cast<double>(version.reading) / 1e6;
    state.counters["slowest book ms"] = static_cast<double>(version.slowestBook) / 1e6;
}

void plainScan(benchmark::State& state, int code, const QStringList& texts)
{
    const Version version(code);
    if (version.verses.size() == 0)
        return state.SkipWithError("the version is needed: set LUMENSCRIPT_MODULES");
    const QStringList typed = keys(texts);
    qsizetype next = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        const QStringList words = foldedText(typed[next++ % typed.size()]).split(u' ');
        int count = 0;
        for (const QString& text : version.folded)
            count += std::ranges::all_of(
                words, [&text](const QString& word) { return foldedIndexOf(text, word) >= 0; });
        benchmark::DoNotOptimize(count);
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const auto add = [](const char* name, auto run) {
        benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond);
    };
    add("a key, 개역한글", [](auto& s) { typing(s, kKorean, kKoreanTexts); });
    add("a key, 개역한글, plain scan", [](auto& s) { plainScan(s, kKorean, kKoreanTexts); });
    add("a key, KJV", [](auto& s) { typing(s, kKjv, kEnglishTexts); });
    add("a key, KJV, plain scan", [](auto& s) { plainScan(s, kKjv, kEnglishTexts); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
