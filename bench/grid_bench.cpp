// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/grid/flex_grid.h"
#include "platform/controls/text/text_control.h"
#include "text/codepage949.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

// The longest chapter in the most versions that a window shows.
constexpr int kVerses = 176;
constexpr int kVersions = 4;

// A verse of a version: two of Korean syllables, two of Latin letters, of the usual lengths; `seed`
// makes the texts of each round new.
QString verseText(int version, int verse, int seed)
{
    const bool korean = version % 2 == 0;
    const int length = (korean ? 35 : 80) + verse * 7 % (korean ? 40 : 70);
    QString text;
    for (int letter = 0; text.size() < length; ++letter) {
        const int mix = seed * 31 + verse * 17 + letter * 13 + version * 5;
        // The syllables that a chapter uses are some hundreds.
        text += korean ? QChar(0xAC00 + mix % 400 * 27) : QChar(u'a' + mix % 26);
        if (mix % 4 == 0)
            text += u' ';
    }
    return text;
}

void prepare(FlexGrid& grid)
{
    grid.setFont(QFont(u"NanumGothic"_s, 10));
    grid.setCols(kVersions + 2);
    grid.setColWidth(0, 300);
    grid.setColWidth(1, 500);
    grid.setStretchFrom(2);
    grid.resize(1000, 700);
    grid.AutoSize();
    grid.show();
    QCoreApplication::processEvents();
}

void fill(FlexGrid& grid, int seed)
{
    const RedrawHold hold(grid);
    grid.setRows(1);
    for (int verse = 1; verse <= kVerses; ++verse) {
        QStringList cells{QString(), QString::number(verse)};
        for (int version = 0; version < kVersions; ++version)
            cells << verseText(version, verse, seed);
        grid.AddItem(cells);
    }
}

void fillsTheGridWithNewText(benchmark::State& state)
{
    FlexGrid grid;
    prepare(grid);
    int seed = 0;
    for (auto round : state) {
        fill(grid, ++seed);
        grid.viewport()->repaint();
    }
}
BENCHMARK(fillsTheGridWithNewText)->Unit(benchmark::kMillisecond);

void fillsTheGridWithKnownText(benchmark::State& state)
{
    FlexGrid grid;
    prepare(grid);
    for (auto round : state) {
        fill(grid, 1);
        grid.viewport()->repaint();
    }
}
BENCHMARK(fillsTheGridWithKnownText)->Unit(benchmark::kMillisecond);

void composesTheTextsAlone(benchmark::State& state)
{
    int seed = 0;
    for (auto round : state) {
        ++seed;
        for (int verse = 1; verse <= kVerses; ++verse)
            for (int version = 0; version < kVersions; ++version)
                benchmark::DoNotOptimize(verseText(version, verse, seed));
    }
}
BENCHMARK(composesTheTextsAlone)->Unit(benchmark::kMillisecond);

QByteArray chapterRtf()
{
    QString body = u"{\\rtf1\\ansi\\ansicpg949\\deff0\\fs20{\\colortbl\\red0\\green0\\blue0;"
                   u"\\red0\\green89\\blue53;}{\\fonttbl{\\f0\\fmodern\\fcharset129 NanumGothic;}"
                   u"{\\f1\\fmodern\\fcharset129 NanumGothicCoding;}}"_s;
    for (int verse = 1; verse <= kVerses; ++verse)
        for (int version = 0; version < kVersions; ++version)
            body +=
                u"\\ltrpar\\ql{\\f1\\fs16\\cf1 %1}\\tab\\f0\\cf0\\fs20 %2\\par "_s.arg(verse).arg(
                    verseText(version, verse, 1));
    return toCodePage949(body + u'}');
}

// `state.range(0)`: 0 stays at the top, 1 goes to the middle of the chapter.
void loadsTheTextView(benchmark::State& state)
{
    TextControl view;
    view.resize(1000, 700);
    view.setTabWidth(350);
    view.show();
    QCoreApplication::processEvents();
    const QByteArray rtf = chapterRtf();
    for (auto round : state) {
        view.LoadRtf(rtf);
        if (state.range(0) == 1)
            view.scrollToPosition(static_cast<int>(view.Text().size()) / 2);
        view.viewport()->repaint();
    }
}
BENCHMARK(loadsTheTextView)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
