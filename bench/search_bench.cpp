// SPDX-License-Identifier: GPL-2.0-or-later
// A search over a whole Bible from the click to the painted first page, in the real window; the
// engine's share beside a plain look at the same bytes. With LUMENSCRIPT_MODULES naming a folder
// with 201.dts that text is searched, else a made-up one of the same size.
#include "canon/canon_table.h"
#include "data/check_data.h"
#include "search/search_window.h"
#include "search/verses/easy_search.h"
#include "support/fake_reader.h"
#include "support/module_files.h"
#include "support/test_services.h"
#include "text/field_scramble.h"

#include <QApplication>
#include <QFile>
#include <QRandomGenerator>

#include <benchmark/benchmark.h>
#include <cstring>
#include <optional>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kRuns = 11;
constexpr int kVerses = 31102;

/// A verse of the usual length out of some thousand words, now and then with a searched one.
QString madeText(QRandomGenerator& random)
{
    const QStringList rare{u"faith"_s, u"temple"_s, u"shepherd"_s, u"vineyard"_s};
    QString text;
    for (int word = random.bounded(10, 40); word > 0; --word)
        text += u"word%1 "_s.arg(random.bounded(5000));
    if (random.bounded(50) == 0)
        text += rare.at(random.bounded(rare.size()));
    if (random.bounded(4) == 0)
        text += u" the king "_s;
    return text;
}

QList<PlainVerse> madeBible()
{
    constexpr int kVersesPerChapter = kVerses / kChapterTotal + 1;
    QRandomGenerator random(1);
    QList<PlainVerse> verses;
    for (int book = 0; book < kBookCount; ++book)
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            for (int verse = 1; verse <= kVersesPerChapter; ++verse)
                verses << PlainVerse{book, chapter, verse, madeText(random), {}, {}};
    verses.resize(kVerses);
    return verses;
}

double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

/// One module for all benches.
class World
{
public:
    World()
    {
        const QString real = qEnvironmentVariable("LUMENSCRIPT_MODULES") + u"/201.dts"_s;
        const QString module = test.folders.data(u"201.dts"_s);
        if (!QFile::copy(real, module))
            writeVersion(module, u"KJV"_s, madeBible());
        CheckData(test.state, test.files, test.jet);
    }

    /// A window without remembered row heights, as a user opens it.
    frm성서검색& freshWindow()
    {
        window.emplace(test.services, test.state, reader);
        window->Form_Load();
        window->resize(900, 700);
        window->show();
        QCoreApplication::processEvents();
        return *window;
    }

    /// The stored texts as bytes in one piece, and where each verse begins and ends there.
    struct StoredVerses
    {
        QByteArray bytes;
        std::vector<std::pair<qsizetype, std::size_t>> places; ///< offset and length
    };

    StoredVerses storedVerses()
    {
        BibleSearch search(test.jet);
        search.setModule(u"C:\\lumenscript\\Data\\201.dts"_s);
        search.query(u"select * from [KJV] order by index"_s);
        StoredVerses verses;
        Recordset& rows = *search.dacSearch.Recordset();
        for (; !rows.Eof(); rows.MoveNext()) {
            const QByteArray verse = Text(rows.Fields(u"Cont")).toUtf8();
            verses.places.emplace_back(verses.bytes.size(), verse.size());
            verses.bytes += verse;
        }
        return verses;
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

void searchPainted(benchmark::State& state, QAbstractButton& button)
{
    const double before = residentMegabytes();
    state.ResumeTiming();
    button.click();
    QCoreApplication::processEvents();
    state.PauseTiming();
    state.counters["grown_MB"] = residentMegabytes() - before;
    state.counters["hits"] = world().window->dacSearch().Recordset()->RecordCount();
    world().window.reset();
    state.ResumeTiming();
}

void BM_EasySearch(benchmark::State& state, const char16_t* word)
{
    for (auto _ : state) {
        state.PauseTiming();
        frm성서검색& window = world().freshWindow();
        window.easy->tx검색->setText(QString::fromUtf16(word));
        searchPainted(state, *window.easy->cmd검색);
    }
}

void BM_PowerSearch(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        frm성서검색& window = world().freshWindow();
        window.sstSearch->setTab(1);
        window.power->txPSearch1->setText(u"faith"_s);
        window.power->cbCond1->setListIndex(1);
        window.power->txPSearch2->setText(u"temple"_s);
        window.power->txPSearch3->setText(u"the"_s);
        QCoreApplication::processEvents();
        searchPainted(state, *window.power->cmdPSearch);
    }
}

void BM_EngineShare(benchmark::State& state, const char16_t* word)
{
    BibleSearch search(world().test.jet);
    search.setModule(u"C:\\lumenscript\\Data\\201.dts"_s);
    const QString query =
        scopedQuery(SearchKind::Easy, u"KJV"_s, easyCriterion(QString::fromUtf16(word)), u"All"_s);
    for (auto _ : state)
        search.query(query);
    state.counters["hits"] = search.count();
}

void BM_PlainLook(benchmark::State& state, const char16_t* word)
{
    const World::StoredVerses verses = world().storedVerses();
    const QByteArray stored = DES::ScrambleField(QString::fromUtf16(word)).toUtf8();
    int hits = 0;
    for (auto _ : state) {
        hits = 0;
        for (const auto& [offset, length] : verses.places)
            hits += memmem(verses.bytes.constData() + offset, length, stored.constData(),
                           static_cast<std::size_t>(stored.size())) != nullptr;
        benchmark::DoNotOptimize(hits);
    }
    state.counters["hits"] = hits;
}

void painted(benchmark::internal::Benchmark* bench)
{
    bench->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(1)
        ->Repetitions(kRuns)
        ->ReportAggregatesOnly();
}

void counted(benchmark::internal::Benchmark* bench)
{
    bench->Unit(benchmark::kMillisecond)->Repetitions(kRuns)->ReportAggregatesOnly();
}

BENCHMARK_CAPTURE(BM_EasySearch, oneWord, u"faith")->Apply(painted);
BENCHMARK_CAPTURE(BM_EasySearch, frequentWord, u"the")->Apply(painted);
BENCHMARK_CAPTURE(BM_EasySearch, blank, u" ")->Apply(painted);
BENCHMARK(BM_PowerSearch)->Apply(painted);
BENCHMARK_CAPTURE(BM_EngineShare, oneWord, u"faith")->Apply(counted);
BENCHMARK_CAPTURE(BM_PlainLook, oneWord, u"faith")->Apply(counted);

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
