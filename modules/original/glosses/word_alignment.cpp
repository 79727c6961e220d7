// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/word_alignment.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace lumen {

namespace {

constexpr int kRounds = 6;
constexpr double kLeastProbability = 1e-4;

using PairKey = std::uint64_t;

// Source word 0 is the empty one here; those of the caller are one higher.
PairKey keyOf(std::size_t source, int target)
{
    return (static_cast<PairKey>(source) << 32U) | static_cast<PairKey>(target);
}

std::size_t sourceOf(PairKey key)
{
    return static_cast<std::size_t>(key >> 32U);
}

int targetOf(PairKey key)
{
    return static_cast<int>(key & 0xFFFFFFFFU);
}

class AlignmentModel
{
public:
    AlignmentModel(const std::vector<SentencePair>& pairs, int sourceWords, int targetWords);

    void improve();
    std::vector<std::vector<AlignedWord>> result() const;

private:
    template <typename Visit>
    void visitPairs(const Visit& visit) const;
    void collectKeys();
    void placeKeys();
    void countExpected();
    void spread(std::size_t begin, std::size_t sources);

    const std::vector<SentencePair>& m_pairs;
    std::size_t m_sources;
    std::size_t m_targets;
    std::vector<PairKey> m_keys;         // sorted, each once
    std::vector<std::uint32_t> m_places; // of the keys of all verses, word by word
    std::vector<double> m_probabilities; // by key
    std::vector<double> m_expected;      // by key
};

AlignmentModel::AlignmentModel(const std::vector<SentencePair>& pairs, int sourceWords,
                               int targetWords)
    : m_pairs(pairs), m_sources(static_cast<std::size_t>(sourceWords) + 1),
      m_targets(static_cast<std::size_t>(targetWords))
{
    collectKeys();
    placeKeys();
    m_probabilities.assign(m_keys.size(), 1.0);
    m_expected.assign(m_keys.size(), 0.0);
}

// The pairs of a verse: for each target word the empty word, then all source words.
template <typename Visit>
void AlignmentModel::visitPairs(const Visit& visit) const
{
    for (const SentencePair& pair : m_pairs)
        for (const int target : pair.target) {
            visit(keyOf(0, target));
            for (const int source : pair.source)
                visit(keyOf(static_cast<std::size_t>(source) + 1, target));
        }
}

void AlignmentModel::collectKeys()
{
    visitPairs([this](PairKey key) { m_keys.push_back(key); });
    std::ranges::sort(m_keys);
    m_keys.erase(std::unique(m_keys.begin(), m_keys.end()), m_keys.end());
}

void AlignmentModel::placeKeys()
{
    visitPairs([this](PairKey key) {
        const auto found = std::ranges::lower_bound(m_keys, key);
        m_places.push_back(static_cast<std::uint32_t>(found - m_keys.begin()));
    });
}

// Shares one occurrence of a target word among the source words of its verse.
void AlignmentModel::spread(std::size_t begin, std::size_t sources)
{
    double sum = 0;
    for (std::size_t i = begin; i < begin + sources; ++i)
        sum += m_probabilities[m_places[i]];
    if (sum <= 0)
        return;
    for (std::size_t i = begin; i < begin + sources; ++i)
        m_expected[m_places[i]] += m_probabilities[m_places[i]] / sum;
}

void AlignmentModel::countExpected()
{
    std::ranges::fill(m_expected, 0.0);
    std::size_t at = 0;
    for (const SentencePair& pair : m_pairs) {
        const std::size_t sources = pair.source.size() + 1;
        for (std::size_t i = 0; i < pair.target.size(); ++i, at += sources)
            spread(at, sources);
    }
}

void AlignmentModel::improve()
{
    countExpected();
    std::vector<double> sums(m_sources, 0.0);
    for (std::size_t i = 0; i < m_keys.size(); ++i)
        sums[sourceOf(m_keys[i])] += m_expected[i];
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        const double sum = sums[sourceOf(m_keys[i])];
        m_probabilities[i] = sum > 0 ? m_expected[i] / sum : 0;
    }
}

std::vector<std::vector<AlignedWord>> AlignmentModel::result() const
{
    std::vector<double> occurrences(m_targets, 0.0);
    for (const SentencePair& pair : m_pairs)
        for (const int target : pair.target)
            ++occurrences[static_cast<std::size_t>(target)];
    std::vector<std::vector<AlignedWord>> words(m_sources - 1);
    for (std::size_t i = 0; i < m_keys.size(); ++i) {
        const std::size_t source = sourceOf(m_keys[i]);
        const int target = targetOf(m_keys[i]);
        if (source == 0 || m_probabilities[i] < kLeastProbability)
            continue;
        words[source - 1].push_back(
            {target, m_probabilities[i],
             m_expected[i] / occurrences[static_cast<std::size_t>(target)]});
    }
    for (auto& renderings : words)
        std::ranges::sort(renderings, [](const AlignedWord& a, const AlignedWord& b) {
            return a.score() > b.score();
        });
    return words;
}

} // namespace

std::vector<std::vector<AlignedWord>> alignWords(const std::vector<SentencePair>& pairs,
                                                 int sourceWords, int targetWords)
{
    AlignmentModel model(pairs, sourceWords, targetWords);
    for (int round = 0; round < kRounds; ++round)
        model.improve();
    return model.result();
}

} // namespace lumen
