// SPDX-License-Identifier: GPL-2.0-or-later
// The notebook of a long ministry: 10,000 sermons of 20 KB. What the user waits for is opening it,
// a move, the first page of a search with its count, storing, and the end of the window. "Old" is a
// file whose RTF columns stand before the plain ones, as those that were taken over.
#include "data/compact_and_backup.h"
#include "jet/store/store_writer.h"
#include "records/record_manager.h"
#include "records/record_window.h"
#include "records/search/record_search.h"
#include "records/search/record_search_window.h"
#include "support/recording_opener.h"
#include "support/test_services.h"

#include <QApplication>
#include <QFile>
#include <QInputMethodEvent>

#include <benchmark/benchmark.h>
#include <chrono>
#include <random>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kRecords = 10000;
constexpr int kPlainLength = 2200; // letters: 6.6 KB plain and, as RTF, 13 KB
constexpr int kFirstPage = 50;

class Boxes : public RecordBoxes
{
public:
    QString plainText(int) const override { return text; }
    QString rtf(int) const override { return u"{\\rtf1 "_s + text + u'}'; }
    QString category() const override { return u"기타"_s; }
    QDate preachedDay() const override { return {2003, 5, 1}; }
    QDate writtenDay() const override { return {2003, 5, 1}; }

    QString text = u"제목"_s;
};

QString madeText(std::mt19937& random)
{
    QString text;
    text.reserve(kPlainLength);
    while (text.size() < kPlainLength)
        text += random() % 6 == 0 ? QChar(u' ')
                                  : QChar(static_cast<char16_t>(0xAC00 + random() % 2000));
    if (random() % 100 == 0)
        text += u"하나님의 은혜"_s;
    return text;
}

/// Letters of two bytes, written as RTF writes them.
QString madeRtf(const QString& text)
{
    return u"{\\rtf1\\ansi "_s + text + text + u"\\par}"_s;
}

TableSchema oldLayout(TableSchema table)
{
    std::stable_partition(table.columns.begin() + 1, table.columns.end(),
                          [](const ColumnDef& column) { return column.name.startsWith(u"rtf"); });
    return table;
}

void makeFile(const QString& path, const TableSchema& table)
{
    std::mt19937 random(1);
    StoreWriter writer(path, StoreCompare::Text);
    writer.createTable(table);
    for (int i = 0; i < kRecords; ++i) {
        const QString body = madeText(random);
        QVariantList row;
        for (const ColumnDef& column : table.columns)
            row << (column.name == kRecordKey        ? QVariant(i + 1)
                    : column.name == u"제목"         ? QVariant(u"설교 %1"_s.arg(i))
                    : column.name == u"rtf제목"      ? QVariant(u"{\\rtf1 설교 %1}"_s.arg(i))
                    : column.name == u"본문"         ? QVariant(body)
                    : column.name == u"rtf본문"      ? QVariant(madeRtf(body))
                    : column.type == FieldType::Date ? QVariant(37000 + i % 900)
                                                     : QVariant());
        writer.addRow(table.name, row);
    }
    writer.commit();
}

/// One notebook for all that is measured.
struct Notebook
{
    explicit Notebook(bool old)
    {
        const TableSchema table = user_file::sermonTables().front();
        makeFile(services.folders.data(u"설교매니저.mdb"_s), old ? oldLayout(table) : table);
    }

    TestServices services;
    Boxes boxes;
};

Notebook& notebook(bool old = false)
{
    static Notebook ours(false);
    static Notebook taken(true);
    return old ? taken : ours;
}

double residentMegabytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) /
           1048576;
}

void openNotebook(benchmark::State& state)
{
    Notebook& book = notebook();
    for (auto _ : state) {
        RecordManager manager(record_profile::kSermon, book.services.services, book.services.state,
                              book.boxes);
        manager.open();
        benchmark::DoNotOptimize(manager.values());
        state.PauseTiming();
        manager.close();
        state.ResumeTiming();
    }
}

void move(benchmark::State& state)
{
    Notebook& book = notebook();
    RecordManager manager(record_profile::kSermon, book.services.services, book.services.state,
                          book.boxes);
    manager.open();
    const double before = residentMegabytes();
    for (auto _ : state)
        benchmark::DoNotOptimize(manager.move(RecordMove::Next));
    state.counters["MB of growth"] = residentMegabytes() - before;
    manager.close();
}

void save(benchmark::State& state)
{
    Notebook& book = notebook();
    RecordManager manager(record_profile::kSermon, book.services.services, book.services.state,
                          book.boxes);
    manager.open();
    for (auto _ : state) {
        state.PauseTiming();
        book.boxes.text = QString(static_cast<qsizetype>(state.range(0)), u'말');
        manager.changed(RecordPart::Body);
        manager.writeDraft();
        book.services.clock.time = book.services.clock.time.addSecs(1000);
        state.ResumeTiming();
        benchmark::DoNotOptimize(manager.save());
    }
    manager.close();
}

void search(benchmark::State& state)
{
    Notebook& book = notebook(state.range(0) != 0);
    RecordSearch search(record_profile::kSermon, book.services.jet, book.services.state);
    for (auto _ : state) {
        benchmark::DoNotOptimize(search.easy(u"본문"_s, u"하나님의 은혜"_s, RecordScope::All));
        for (int row = 0; row < std::min(kFirstPage, search.count()); ++row)
            benchmark::DoNotOptimize(search.row(row));
    }
    state.counters["found"] = search.count();
    search.close();
}

void endOfWindow(benchmark::State& state)
{
    Notebook& book = notebook();
    for (auto _ : state)
        CompactAndBackup(book.services.state.AppPath, user_file::kSermons, book.services.jet,
                         book.services.files);
}

/// The manager's window over the notebook, painted at once as a user would see it.
struct Window
{
    Window() : window(record_profile::kSermon, book.services.services, book.services.state, opener)
    {
    }
    void paint() { benchmark::DoNotOptimize(window.grab()); }

    Notebook& book = notebook();
    RecordingOpener opener;
    RecordWindow window;
};

// What a window's end has checked need not be checked again at its opening.
void endOfLastTime()
{
    Notebook& book = notebook();
    CompactAndBackup(book.services.state.AppPath, user_file::kSermons, book.services.jet,
                     book.services.files);
}

void openWindow(benchmark::State& state)
{
    endOfLastTime();
    for (auto _ : state) {
        Window opened;
        opened.window.Form_Load();
        opened.window.show();
        opened.paint();
        state.PauseTiming();
        opened.window.manager().close();
        state.ResumeTiming();
    }
}

void moveInWindow(benchmark::State& state)
{
    Window opened;
    opened.window.Form_Load();
    opened.window.show();
    opened.paint();
    QAction* const next = opened.window.atbar.tool(u"ID_다음설교").action();
    for (auto _ : state) {
        next->trigger();
        opened.paint();
    }
    opened.window.manager().close();
}

// The 95th percentile of a letter's way to the screen, in a sermon of the given length.
void typeInWindow(benchmark::State& state)
{
    Window opened;
    opened.window.Form_Load();
    opened.window.show();
    RichTextBox& box = *opened.window.boxes[2];
    QString text;
    while (text.size() < state.range(0))
        text += u"모든 성도가 함께 읽은 말씀을 다시 생각하며 적는다. "_s +
                (text.size() % 500 < 30 ? u"\\par "_s : QString());
    box.setTextRTF(u"{\\rtf1\\ansi "_s + text + u"\\par}"_s);
    box.setFocus();
    box.select(static_cast<int>(state.range(0) / 2), 0);
    opened.paint();
    std::vector<double> times;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        QInputMethodEvent letter;
        letter.setCommitString(u"글"_s);
        QApplication::sendEvent(&box, &letter);
        QApplication::processEvents();
        opened.paint();
        times.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
    }
    std::ranges::sort(times);
    state.counters["p95 ms"] = times[times.size() * 95 / 100];
    opened.window.manager().revert();
    opened.window.manager().close();
}

void searchInWindow(benchmark::State& state)
{
    Notebook& book = notebook();
    RecordSearchWindow window(record_profile::kSermon, book.services.services, book.services.state);
    window.Form_Load();
    window.show();
    window.sstSearch->setTab(1);
    window.easy->cb대상->setListIndex(2);
    window.easy->cb검색->setEditText(state.range(0) != 0 ? u"하나님의 은혜"_s : QString());
    for (auto _ : state) {
        if (state.range(0) != 0)
            window.easy->cmd검색->click();
        else
            window.showAll();
        benchmark::DoNotOptimize(window.grab());
    }
    window.close();
}

BENCHMARK(openNotebook)->Unit(benchmark::kMillisecond)->Iterations(11);
BENCHMARK(move)->Unit(benchmark::kMillisecond)->Iterations(kRecords);
BENCHMARK(save)->Unit(benchmark::kMillisecond)->Iterations(21)->Arg(2200)->Arg(22000);
BENCHMARK(search)->Unit(benchmark::kMillisecond)->Iterations(11)->Arg(0)->Arg(1);
BENCHMARK(openWindow)->Unit(benchmark::kMillisecond)->Iterations(11);
BENCHMARK(moveInWindow)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(typeInWindow)->Unit(benchmark::kMillisecond)->Iterations(200)->Arg(2200)->Arg(100000);
// A word, and every record.
BENCHMARK(searchInWindow)->Unit(benchmark::kMillisecond)->Iterations(7)->Arg(1)->Arg(0);
BENCHMARK(endOfWindow)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
