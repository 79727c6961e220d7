// SPDX-License-Identifier: GPL-2.0-or-later
// What users feel of the database engine: searching a whole Bible, a chapter, a verse, opening and
// making a module. Searches stand beside one memmem a verse over the same bytes, in one piece and
// warm. LUMENSCRIPT_MODULES names a folder whose 201.dts is measured besides the made-up Bible.
#include "jet/engine.h"
#include "jet/store/store_writer.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kVerses = 31102;
constexpr int kVersesPerChapter = 26;
constexpr int kChaptersPerBook = 18;
constexpr int kWordsPerVerse = 26; // about 130 characters
constexpr int kVocabulary = 6000;
constexpr int kRepetitions = 11;
const QString kConnect = u";uid=admin;pwd=bench"_s;

class NativePaths : public PathResolver
{
public:
    QString nativePath(const QString& path) const override { return path; }
};

/// Words of a made-up language; the n-th comes up about 1/n as often as the first, as in texts.
QStringList vocabulary()
{
    std::mt19937 random(1);
    QStringList words;
    for (int i = 0; i < kVocabulary; ++i) {
        QString word;
        const int length = 2 + i % 3 + (i > 100 ? 1 : 0) + (i > 1000 ? 2 : 0);
        for (int n = 0; n < length; ++n)
            word += QChar(u'a' + static_cast<char16_t>(random() % 26));
        words << word;
    }
    return words;
}

QString verseText(const QStringList& words, std::mt19937& random)
{
    QStringList text;
    const auto length = kWordsPerVerse / 2 + static_cast<int>(random() % kWordsPerVerse);
    for (int n = 0; n < length; ++n) {
        const double chance = std::uniform_real_distribution<double>(0, 1)(random);
        text << words[static_cast<int>(std::pow(kVocabulary, chance)) - 1];
    }
    return text.join(u' ');
}

TableSchema schema(const QString& name)
{
    return {.name = name,
            .columns = {{.name = u"index"_s, .size = 20},
                        {.name = u"Chap"_s, .size = 20},
                        {.name = u"Verse"_s, .type = FieldType::Short},
                        {.name = u"Cont"_s, .type = FieldType::Memo},
                        {.name = u"part"_s, .size = 50},
                        {.name = u"miniTitle"_s, .size = 100},
                        {.name = u"Testa"_s, .size = 2},
                        {.name = u"Category"_s, .size = 2}},
            .indexes = {{u"index"_s, {u"index"_s}, true, false},
                        {u"Chap"_s, {u"Chap"_s}, false, false}}};
}

QList<QVariantList> madeUpRows()
{
    std::mt19937 random(2);
    const QStringList words = vocabulary();
    QList<QVariantList> rows;
    for (int i = 0; i < kVerses; ++i) {
        const int chapter = i / kVersesPerChapter;
        const int book = chapter / kChaptersPerBook;
        const QString chap = u"%1가:%2"_s.arg(book + 1, 2, 10, QChar(u'0'))
                                 .arg(chapter % kChaptersPerBook + 1, 3, 10, QChar(u'0'));
        const int verse = i % kVersesPerChapter + 1;
        rows.append({u"%1:%2"_s.arg(chap).arg(verse, 3, 10, QChar(u'0')), chap, verse,
                     DES::ScrambleField(verseText(words, random)), QVariant(), u""_s,
                     book < 39 ? u"구"_s : u"신"_s, u"모"_s});
    }
    return rows;
}

void writeModule(const QString& file, const QList<QVariantList>& rows)
{
    StoreWriter writer(file, StoreCompare::Binary, StoreUse::OnlyRead);
    writer.setPassword(u"bench"_s);
    writer.createTable(schema(u"Made Up"_s));
    for (const QVariantList& row : rows)
        writer.addRow(u"Made Up"_s, row);
    writer.commit();
}

/// A module with the same texts in memory and words that come up more or less often.
struct Bible
{
    QString file;
    QString connect;
    QString table;
    QByteArray texts;                                    ///< all verses, one behind the other
    std::vector<std::pair<qsizetype, qsizetype>> verses; ///< offset and length
    std::map<int, QString> words;                        ///< by the hits that were asked for
    QStringList spread;                                  ///< of few hits and of many
    QString prefix;                                      ///< of a chapter in the middle

    int count(const QByteArray& word) const
    {
        int hits = 0;
        for (const auto& [offset, length] : verses)
            hits += ::memmem(texts.constData() + offset, static_cast<std::size_t>(length),
                             word.constData(), static_cast<std::size_t>(word.size())) != nullptr;
        return hits;
    }

    QString query(const QString& word) const
    {
        return u"select Chap, Verse, Cont, index from [%1] where (Cont like '*%2*') order by index"_s
            .arg(table, EscapeLikeText(word, true));
    }
};

constexpr std::array kHits{1, 30, 300, 900};
constexpr int kSpreadWords = 54;
constexpr int kMostHits = 1000;

/// Picks the stored words whose hits come nearest to what the searches shall find.
void chooseWords(Bible& bible)
{
    QStringList candidates;
    for (std::size_t i = 0; i < bible.verses.size(); i += 61) {
        const auto& [offset, length] = bible.verses[i];
        const auto text = QString::fromUtf8(bible.texts.constData() + offset, length);
        for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
            if (word.size() >= 4 && !candidates.contains(word) && candidates.size() < 1500)
                candidates << word;
    }
    std::map<int, int> best;
    std::vector<std::pair<int, QString>> rarer;
    for (const QString& word : candidates) {
        const int hits = bible.count(word.toUtf8());
        if (hits < kMostHits)
            rarer.emplace_back(hits, word);
        for (const int wanted : kHits)
            if (!best.contains(wanted) ||
                std::abs(hits - wanted) < std::abs(best[wanted] - wanted)) {
                best[wanted] = hits;
                bible.words[wanted] = word;
            }
    }
    std::sort(rarer.begin(), rarer.end());
    for (std::size_t i = 0; i < kSpreadWords && !rarer.empty(); ++i)
        bible.spread << rarer[i * rarer.size() / kSpreadWords].second;
}

void readTexts(JetEngine& engine, Bible& bible)
{
    const auto database = engine.OpenDatabase(bible.file, false, true, bible.connect);
    for (int i = 0; i < database->TableDefs().Count() && bible.table.isEmpty(); ++i)
        if (const QString name = database->TableDefs()(i).Name; !name.startsWith(u"MSys"_s))
            bible.table = name;
    const auto records = database->OpenRecordset(u"["_s + bible.table + u"]"_s);
    for (; !records->Eof(); records->MoveNext()) {
        const QByteArray text = Text(records->Fields(u"Cont")).toUtf8();
        bible.verses.emplace_back(bible.texts.size(), text.size());
        bible.texts += text;
    }
    records->setAbsolutePosition(records->RecordCount() / 2);
    bible.prefix = Text(records->Fields(u"index")).section(u':', 0, 1);
    chooseWords(bible);
}

class Bench
{
public:
    Bench()
    {
        rows = madeUpRows();
        bibles.push_back({folder.filePath(u"made.dts"_s), kConnect, {}, {}, {}, {}, {}, {}});
        writeModule(bibles.back().file, rows);
        const QString real = qEnvironmentVariable("LUMENSCRIPT_MODULES") + u"/201.dts"_s;
        if (QFile::exists(real))
            bibles.push_back({real, u";pwd=qolvetrinam"_s, {}, {}, {}, {}, {}, {}});
        for (Bible& bible : bibles)
            readTexts(engine, bible);
    }

    NativePaths paths;
    JetEngine engine{paths, [](const QString&) { return FilePolicy{.readOnly = true}; }};
    QTemporaryDir folder;
    QList<QVariantList> rows;
    std::vector<Bible> bibles;
};

Bench& bench()
{
    static Bench instance;
    return instance;
}

const Bible& bibleOf(const benchmark::State& state)
{
    return bench().bibles[static_cast<std::size_t>(state.range(0))];
}

void scansTheBytes(benchmark::State& state)
{
    const Bible& bible = bibleOf(state);
    const QByteArray word = bible.words.at(static_cast<int>(state.range(1))).toUtf8();
    int hits = 0;
    for (auto round : state)
        benchmark::DoNotOptimize(hits = bible.count(word));
    state.counters["hits"] = hits;
}

void searchesForKeys(benchmark::State& state)
{
    const Bible& bible = bibleOf(state);
    const QString query = bible.query(bible.words.at(static_cast<int>(state.range(1))));
    const auto database = bench().engine.OpenDatabase(bible.file, false, true, bible.connect);
    int hits = 0;
    for (auto round : state)
        hits = database->OpenRecordset(query)->RecordCount();
    state.counters["hits"] = hits;
}

/// The least time of several runs in milliseconds: what the machine does besides only adds to it.
double leastTime(const std::function<void()>& run)
{
    constexpr int kRuns = 7;
    double least = 0;
    for (int i = 0; i < kRuns; ++i) {
        QElapsedTimer timer;
        timer.start();
        run();
        const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        least = i == 0 ? time : std::min(least, time);
    }
    return least;
}

/// How many times as long as a memmem a verse the engine takes, over the words of `spread`.
void comparesWithThePlainLook(benchmark::State& state)
{
    const Bible& bible = bibleOf(state);
    const auto database = bench().engine.OpenDatabase(bible.file, false, true, bible.connect);
    for (auto round : state) {
        std::vector<double> ratios;
        for (const QString& word : bible.spread) {
            const QByteArray bytes = word.toUtf8();
            const QString query = bible.query(word);
            const double plain = leastTime([&] { benchmark::DoNotOptimize(bible.count(bytes)); });
            ratios.push_back(leastTime([&] { database->OpenRecordset(query)->RecordCount(); }) /
                             plain);
        }
        std::sort(ratios.begin(), ratios.end());
        state.counters["least"] = ratios.front();
        state.counters["median"] = ratios[ratios.size() / 2];
        state.counters["most"] = ratios.back();
    }
}

void searchesAndReadsRows(benchmark::State& state)
{
    const Bible& bible = bibleOf(state);
    const QString query = bible.query(bible.words.at(static_cast<int>(state.range(1))));
    const auto database = bench().engine.OpenDatabase(bible.file, false, true, bible.connect);
    for (auto round : state) {
        const auto records = database->OpenRecordset(query);
        for (; !records->Eof(); records->MoveNext())
            benchmark::DoNotOptimize(records->Fields(u"Cont").Value());
    }
}

void runsQuery(benchmark::State& state, const QString& condition)
{
    const Bible& bible = bibleOf(state);
    const auto database = bench().engine.OpenDatabase(bible.file, false, true, bible.connect);
    const QString query = u"select * from [%1] where %2"_s.arg(bible.table, condition);
    int hits = 0;
    for (auto round : state) {
        const auto records = database->OpenRecordset(query);
        hits = records->RecordCount();
        for (; !records->Eof(); records->MoveNext())
            benchmark::DoNotOptimize(records->Fields(u"Cont").Value());
    }
    state.counters["hits"] = hits;
}

void readsAChapter(benchmark::State& state)
{
    runsQuery(state, u"index like '%1:*' order by verse"_s.arg(bibleOf(state).prefix));
}

void readsAVerse(benchmark::State& state)
{
    runsQuery(state, u"index = '%1:003'"_s.arg(bibleOf(state).prefix));
}

void searchesAGeneralPattern(benchmark::State& state)
{
    const QString word = bibleOf(state).words.at(300);
    runsQuery(state, u"Cont like '*%1?%2*%3*'"_s.arg(EscapeLikeText(word.first(1), true),
                                                     EscapeLikeText(word.sliced(2, 1), true),
                                                     EscapeLikeText(word.last(1), true)));
}

void opensReadsAChapterAndCloses(benchmark::State& state)
{
    const Bible& bible = bibleOf(state);
    const QString query = u"select * from [%1] where index like '%2:*' order by verse"_s.arg(
        bible.table, bible.prefix);
    for (auto round : state) {
        const auto database = bench().engine.OpenDatabase(bible.file, false, true, bible.connect);
        benchmark::DoNotOptimize(database->OpenRecordset(query)->RecordCount());
    }
}

/// As the original-language search does with the hits of a word.
void fillsAScratchTable(benchmark::State& state)
{
    constexpr int kHitsOfAWord = 5000;
    const QString file = bench().folder.filePath(u"z199.dts"_s);
    StoreWriter writer(file, StoreCompare::Binary);
    writer.createTable({.name = u"Table0"_s,
                        .columns = {{.name = u"Index"_s, .size = 20}},
                        .indexes = {{u"PrimaryKey"_s, {u"Index"_s}, false, true}}});
    writer.commit();
    const auto database = bench().engine.OpenDatabase(file);
    for (auto round : state) {
        database->Execute(u"delete * from Table0"_s);
        const auto records = database->OpenRecordset(u"Table0"_s);
        records->setIndex(u"PrimaryKey"_s);
        for (int i = 0; i < kHitsOfAWord; ++i) {
            const QVariant& key = bench().rows[qsizetype{6} * i][0];
            records->Seek(u"="_s, key);
            if (!records->NoMatch())
                continue;
            records->AddNew();
            records->Fields(u"index").setValue(key);
            records->Update();
        }
        bench().engine.commitAll();
    }
}

void writesAModule(benchmark::State& state)
{
    for (auto round : state)
        writeModule(bench().folder.filePath(u"new.dts"_s), bench().rows);
}

void registerAll()
{
    const auto add = [](const char* name, void (*body)(benchmark::State&),
                        const std::vector<int64_t>& range) {
        benchmark::RegisterBenchmark(name, body)
            ->Args(range)
            ->Unit(benchmark::kMicrosecond)
            ->Repetitions(kRepetitions)
            ->ReportAggregatesOnly();
    };
    for (int64_t bible = 0; bible < static_cast<int64_t>(bench().bibles.size()); ++bible) {
        for (const int hits : kHits) {
            add("scansTheBytes", scansTheBytes, {bible, hits});
            add("searchesForKeys", searchesForKeys, {bible, hits});
            add("searchesAndReadsRows", searchesAndReadsRows, {bible, hits});
        }
        benchmark::RegisterBenchmark("comparesWithThePlainLook", comparesWithThePlainLook)
            ->Arg(bible)
            ->Iterations(1);
        add("searchesAGeneralPattern", searchesAGeneralPattern, {bible});
        add("readsAChapter", readsAChapter, {bible});
        add("readsAVerse", readsAVerse, {bible});
        add("opensReadsAChapterAndCloses", opensReadsAChapterAndCloses, {bible});
    }
    add("fillsAScratchTable", fillsAScratchTable, {});
    add("writesAModule", writesAModule, {});
}

} // namespace
} // namespace lumen

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    lumen::registerAll();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
