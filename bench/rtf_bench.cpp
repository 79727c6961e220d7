// SPDX-License-Identifier: GPL-2.0-or-later
// The longest chapter, 176 verses in four versions, from composed RTF to a document.
#include "text/rtf/rtf_composer.h"
#include "text/rtf/rtf_document_writer.h"
#include "text/rtf/rtf_parser.h"
#include "text/rtf/rtf_reader.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kVerses = 176;
constexpr int kVersions = 4;

QByteArray longChapter()
{
    const QString korean = u"가나다라 마바사 아자차카 타파하 "_s.repeated(4);
    const QString latin = u"the quick brown fox jumps over the lazy dog "_s.repeated(3);
    const int colors[kVersions] = {0, 2, 3, 4};
    QString rtf = rtfDocumentHeader(RtfSettings());
    for (int verse = 1; verse <= kVerses; ++verse)
        for (int version = 0; version < kVersions; ++version)
            rtf += u"\\ltrpar\\ql{\\f5\\fs16\\cf5 %1}\t\\f2\\cf%2\\fs20 %3\\par "_s.arg(verse)
                       .arg(colors[version])
                       .arg(version % 2 == 0 ? korean : latin);
    return toRtfBytes(rtf + u'}');
}

void BM_ParseChapter(benchmark::State& state)
{
    const QByteArray rtf = longChapter();
    for (auto _ : state)
        benchmark::DoNotOptimize(parseRtf(rtf));
    state.SetBytesProcessed(state.iterations() * rtf.size());
}
BENCHMARK(BM_ParseChapter)->Unit(benchmark::kMillisecond);

void BM_ReadChapter(benchmark::State& state)
{
    const QByteArray rtf = longChapter();
    QTextDocument document;
    for (auto _ : state)
        readRtf(rtf, document);
}
BENCHMARK(BM_ReadChapter)->Unit(benchmark::kMillisecond);

void BM_WriteChapter(benchmark::State& state)
{
    QTextDocument document;
    readRtf(longChapter(), document);
    for (auto _ : state)
        benchmark::DoNotOptimize(writeRtf(document));
}
BENCHMARK(BM_WriteChapter)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
