// SPDX-License-Identifier: GPL-2.0-or-later
// Unscrambling a whole Bible of stored text, beside a plain copy of the same bytes.
#include "text/codepage949.h"
#include "text/field_scramble.h"

#include <QRandomGenerator>

#include <benchmark/benchmark.h>

namespace lumen {
namespace {

constexpr qsizetype kBibleUnits = 2'000'000; // 4 MB of UTF-16, as a Korean version has

// Syllables of the frequent lead bytes in words of one to five, as verse text looks.
QString storedBible()
{
    QRandomGenerator random(1);
    QString text;
    text.reserve(kBibleUnits);
    while (text.size() < kBibleUnits) {
        for (int i = random.bounded(1, 6); i > 0; --i) {
            const int lead = random.bounded(0xB0, 0xC9);
            const int trail = random.bounded(0xA1, 0xFF);
            text += QChar(unit949(static_cast<std::uint16_t>(lead << 8 | trail)).value_or(u'?'));
        }
        text += u' ';
    }
    return text;
}

void BM_UnscrambleBible(benchmark::State& state)
{
    const QString stored = storedBible();
    for (auto _ : state)
        benchmark::DoNotOptimize(DES::UnscrambleField(stored));
    state.SetBytesProcessed(state.iterations() * stored.size() * 2);
}
BENCHMARK(BM_UnscrambleBible)->Unit(benchmark::kMillisecond);

void BM_CopyBible(benchmark::State& state)
{
    const QString stored = storedBible();
    for (auto _ : state)
        benchmark::DoNotOptimize(QString(stored.constData(), stored.size()));
    state.SetBytesProcessed(state.iterations() * stored.size() * 2);
}
BENCHMARK(BM_CopyBible)->Unit(benchmark::kMillisecond);

// Verse by verse, as a search reads its rows.
void BM_UnscrambleVerses(benchmark::State& state)
{
    constexpr qsizetype kVerse = 64;
    const QString stored = storedBible();
    for (auto _ : state)
        for (qsizetype at = 0; at + kVerse <= stored.size(); at += kVerse)
            benchmark::DoNotOptimize(DES::UnscrambleField(QStringView(stored).sliced(at, kVerse)));
}
BENCHMARK(BM_UnscrambleVerses)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lumen

BENCHMARK_MAIN();
