// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/korean_glosses.h"

#include "original/glosses/korean_stems.h"
#include "original/glosses/word_alignment.h"
#include "sources/interruption.h"
#include "sources/json_readers.h"
#include "sources/text_mending.h"
#include "sources/user_table.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// The score from which on a rendering is taken: numbers that occur rarely mislead easily.
constexpr double kAcceptedScore = 0.10;
constexpr double kAcceptedScoreOfRare = 0.25;
constexpr int kCommon = 6;
constexpr int kLeastOccurrences = 2;
constexpr qsizetype kMostWords = 3;
constexpr std::size_t kListedNumbers = 100;

// The sign of the object and "that", the Greek article: no Korean word answers to them.
bool isLeftOut(int strong)
{
    return strong == 853 || strong == 3588;
}

using VerseWords = QHash<QString, QStringList>;

QString keyOf(int book, int chapter, int verse)
{
    return BibleCode::verseKey(book, chapter, verse);
}

Result<VerseWords> readKorean(const QStringList& files)
{
    auto read = readBookJsonFiles(files);
    if (!read)
        return read.failure();
    Mending::korean(read.value());
    VerseWords words;
    for (const VerseText& verse : read.value().verses)
        if (verse.text)
            words[keyOf(verse.book, verse.chapter, verse.verse)] << koreanWords(*verse.text);
    return words;
}

// Numbers things in the order in which they first come.
template <typename Key>
class Numbering
{
public:
    int number(const Key& key)
    {
        const auto [entry, isNew] = m_numbers.try_emplace(key, static_cast<int>(m_keys.size()));
        if (isNew)
            m_keys.push_back(key);
        return entry->second;
    }
    const Key& key(int number) const { return m_keys[static_cast<std::size_t>(number)]; }
    int size() const { return static_cast<int>(m_keys.size()); }

private:
    std::map<Key, int> m_numbers;
    std::vector<Key> m_keys;
};

// Derives the renderings of one testament.
class TestamentGlosses
{
public:
    TestamentGlosses(bool isGreek, const VerseWords& korean, const KoreanStems& stems)
        : m_isGreek(isGreek), m_korean(korean), m_stems(stems)
    {
    }

    void addVerse(const OriginalVerse& verse);
    void derive(KoreanGlosses& glosses) const;

private:
    QStringList accepted(const std::vector<AlignedWord>& renderings, int occurrences) const;

    bool m_isGreek;
    const VerseWords& m_korean;
    const KoreanStems& m_stems;
    Numbering<int> m_numbers;
    Numbering<QString> m_words;
    std::map<int, int> m_occurrences;
    std::vector<SentencePair> m_pairs;
};

void TestamentGlosses::addVerse(const OriginalVerse& verse)
{
    SentencePair pair;
    for (const OriginalWord& word : verse.words) {
        if (word.strong == 0 || isLeftOut(word.strong))
            continue;
        ++m_occurrences[word.strong];
        pair.source.push_back(m_numbers.number(word.strong));
    }
    const VersePlace& place = verse.place;
    const QStringList words = m_korean.value(keyOf(place.book, place.chapter, place.verse));
    for (const QString& word : words) {
        const QString stem = m_stems.stem(word);
        if (!stem.isEmpty())
            pair.target.push_back(m_words.number(stem));
    }
    if (!pair.source.empty() && !pair.target.empty())
        m_pairs.push_back(std::move(pair));
}

QStringList TestamentGlosses::accepted(const std::vector<AlignedWord>& renderings,
                                       int occurrences) const
{
    QStringList words;
    if (occurrences < kLeastOccurrences)
        return words;
    const double least = occurrences < kCommon ? kAcceptedScoreOfRare : kAcceptedScore;
    for (const AlignedWord& rendering : renderings) {
        if (rendering.score() < least || words.size() == kMostWords)
            break;
        words << m_words.key(rendering.target);
    }
    return words;
}

void TestamentGlosses::derive(KoreanGlosses& glosses) const
{
    const auto renderings = alignWords(m_pairs, m_numbers.size(), m_words.size());
    for (int i = 0; i < m_numbers.size(); ++i) {
        const int strong = m_numbers.key(i);
        const QStringList words =
            accepted(renderings[static_cast<std::size_t>(i)], m_occurrences.at(strong));
        if (!words.isEmpty())
            glosses.add(m_isGreek, strong, words, KoreanGlosses::Source::Derived);
    }
}

std::optional<Failure> deriveGlosses(const OriginalText& text, const QStringList& files,
                                     KoreanGlosses& glosses)
{
    const auto korean = readKorean(files);
    if (!korean)
        return korean.failure();
    QStringList all;
    for (const QStringList& words : korean.value())
        all << words;
    const KoreanStems stems(all);
    for (const bool isGreek : {false, true}) {
        if (interrupted())
            return Failure{FailureKind::Cancelled, {}};
        TestamentGlosses testament(isGreek, korean.value(), stems);
        for (const OriginalVerse& verse : text)
            if (verse.isGreek == isGreek)
                testament.addVerse(verse);
        testament.derive(glosses);
    }
    return std::nullopt;
}

// Lines of a number and its words.
std::optional<Failure> addWritten(const QString& file, bool isGreek, KoreanGlosses& glosses)
{
    if (!QFileInfo::exists(file))
        return std::nullopt;
    const auto lines = readUserTable(file, {{u"번호"_s, u"뜻"_s}, 2});
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    for (const TableLine& line : lines.value()) {
        const int strong = line.cells[0].toInt();
        if (strong < 1 || line.cells[1].isEmpty())
            faults.add(line.number, u"번호나 뜻이 없음"_s);
        glosses.add(isGreek, strong, line.cells[1].split(u", "_s, Qt::SkipEmptyParts),
                    KoreanGlosses::Source::Written);
    }
    if (!faults.isEmpty())
        return faults.failure();
    return std::nullopt;
}

// A verb's stem says as much as its dictionary form, a word as much as one made of it.
bool agree(const QStringList& written, const QStringList& derived)
{
    const auto stem = [](QString word) { return word.endsWith(u'다') ? word.chopped(1) : word; };
    for (const QString& one : written)
        for (const QString& other : derived)
            if (one.contains(stem(other)) || other.contains(stem(one)))
                return true;
    return false;
}

// How far what is written agrees with the Korean text.
void addAgreementRemark(const OriginalText& text, bool isGreek, const KoreanGlosses& derived,
                        KoreanGlosses& glosses)
{
    std::map<int, int> counts;
    for (const OriginalVerse& verse : text)
        if (verse.isGreek == isGreek)
            for (const OriginalWord& word : verse.words)
                if (!derived.words(isGreek, word.strong).isEmpty() &&
                    !glosses.isDerived(isGreek, word.strong))
                    ++counts[word.strong];
    std::vector<std::pair<int, int>> apart; // number of words, number
    for (const auto& [strong, count] : counts)
        if (!agree(glosses.words(isGreek, strong), derived.words(isGreek, strong)))
            apart.emplace_back(count, strong);
    std::ranges::sort(apart, std::greater());
    const double share = counts.empty() ? 0
                                        : 100 - 100.0 * static_cast<double>(apart.size()) /
                                                    static_cast<double>(counts.size());
    apart.resize(std::min(apart.size(), kListedNumbers));
    QStringList shown;
    for (const auto& [count, strong] : apart)
        shown << u"%1 %2≠%3"_s.arg(strong).arg(glosses.gloss(isGreek, strong),
                                               derived.gloss(isGreek, strong));
    glosses.addRemark(
        u"%1 뜻이 개역한글의 대응어와 같은 번호 %2%. 다른 것 가운데 자주 나오는 것: %3"_s.arg(
            isGreek ? u"헬라어"_s : u"히브리어"_s, QString::number(share, 'f', 1),
            shown.join(u"; "_s)));
}

// The numbers that a written gloss would do most for.
void addWantedRemark(const OriginalText& text, bool isGreek, KoreanGlosses& glosses)
{
    std::map<int, int> counts;
    for (const OriginalVerse& verse : text)
        if (verse.isGreek == isGreek)
            for (const OriginalWord& word : verse.words)
                if (word.strong != 0 && glosses.words(isGreek, word.strong).isEmpty())
                    ++counts[word.strong];
    std::vector<std::pair<int, int>> sorted(counts.begin(), counts.end());
    std::ranges::stable_sort(sorted,
                             [](const auto& a, const auto& b) { return a.second > b.second; });
    sorted.resize(std::min(sorted.size(), kListedNumbers));
    if (sorted.empty())
        return;
    QStringList numbers;
    for (const auto& [strong, count] : sorted)
        numbers << u"%1(%2)"_s.arg(strong).arg(count);
    glosses.addRemark(u"대표값이 없는 %1 번호 가운데 자주 나오는 것: %2"_s.arg(
        isGreek ? u"헬라어"_s : u"히브리어"_s, numbers.join(u' ')));
}

} // namespace

void KoreanGlosses::add(bool isGreek, int strong, const QStringList& words, Source source)
{
    (isGreek ? m_greek : m_hebrew).insert(strong, {words, source});
}

const KoreanGlosses::Entry* KoreanGlosses::find(bool isGreek, int strong) const
{
    const auto& entries = isGreek ? m_greek : m_hebrew;
    const auto found = entries.constFind(strong);
    return found == entries.constEnd() ? nullptr : &*found;
}

QStringList KoreanGlosses::words(bool isGreek, int strong) const
{
    const Entry* entry = find(isGreek, strong);
    return entry ? entry->words : QStringList();
}

bool KoreanGlosses::isDerived(bool isGreek, int strong) const
{
    const Entry* entry = find(isGreek, strong);
    return entry && entry->source == Source::Derived;
}

QString KoreanGlosses::originLine() const
{
    const QString written = u"우리말 뜻은 이 프로그램과 함께 온 것 (CC0 1.0)"_s;
    const auto isDerived = [](const Entry& entry) { return entry.source == Source::Derived; };
    if (std::ranges::none_of(m_hebrew, isDerived) && std::ranges::none_of(m_greek, isDerived))
        return written;
    return written +
           u", 그것이 없는 낱말은 개역한글 본문과 원어 본문을 낱말끼리 맞추어 끌어낸 것"_s;
}

Result<KoreanGlosses> koreanGlosses(const OriginalText& text, const WrittenGlosses& written,
                                    const QStringList& koreanFiles)
{
    KoreanGlosses derived;
    if (!koreanFiles.isEmpty())
        if (const auto failure = deriveGlosses(text, koreanFiles, derived))
            return *failure;
    // Written glosses win over derived ones.
    KoreanGlosses glosses = derived;
    if (const auto failure = addWritten(written.hebrew, false, glosses))
        return *failure;
    if (const auto failure = addWritten(written.greek, true, glosses))
        return *failure;
    for (const bool isGreek : {false, true}) {
        addWantedRemark(text, isGreek, glosses);
        if (!koreanFiles.isEmpty())
            addAgreementRemark(text, isGreek, derived, glosses);
    }
    return glosses;
}

} // namespace lumen
