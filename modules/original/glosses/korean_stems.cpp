// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/korean_stems.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// What a stem gains when it is a word of its own, and what it loses when it is a single syllable.
constexpr double kFreeGain = 0.7;
constexpr double kSyllableLoss = 0.75;
constexpr int kFreeOccurrences = 3;
// Single syllables are mostly chance unless the text is full of them.
constexpr int kLeastSyllables = 40;

// Particles of nouns, and the forms of the verbs "to be", "to do" and "to become" that nouns take.
constexpr auto kParticles = std::to_array<QStringView>(
    {u"이",       u"가",     u"은",       u"는",         u"을",       u"를",       u"의",
     u"에",       u"에게",   u"께",       u"께서",       u"에서",     u"에는",     u"에도",
     u"에게서",   u"에게는", u"으로",     u"로",         u"로다",     u"으로부터", u"로부터",
     u"로서",     u"으로써", u"로써",     u"와",         u"과",       u"도",       u"만",
     u"까지",     u"부터",   u"마다",     u"같이",       u"처럼",     u"보다",     u"이나",
     u"나",       u"이든지", u"든지",     u"이라",       u"라",       u"이라도",   u"이며",
     u"며",       u"이요",   u"요",       u"이니",       u"니",       u"이니라",   u"니라",
     u"이로다",   u"이로되", u"이었더라", u"이여",       u"여",       u"아",       u"야",
     u"들",       u"들이",   u"들은",     u"들을",       u"들의",     u"들에게",   u"들과",
     u"들도",     u"들아",   u"들이요",   u"들로",       u"들에",     u"이란",     u"인",
     u"인즉",     u"이고",   u"하고",     u"하니",       u"하여",     u"하는",     u"한",
     u"하며",     u"하매",   u"하더라",   u"하시니라",   u"하시고",   u"하시니",   u"하신",
     u"하시며",   u"하라",   u"하지",     u"할",         u"함",       u"함을",     u"함이",
     u"함으로",   u"하되",   u"하였더라", u"하였느니라", u"하였으니", u"하였고",   u"하였으나",
     u"하나니",   u"하나",   u"하리라",   u"하리니",     u"하면",     u"하거든",   u"하더니",
     u"하게",     u"하사",   u"하려",     u"하기를",     u"하도다",   u"하느니라", u"하시는",
     u"하였도다", u"되어",   u"되고",     u"된",         u"되리라",   u"되니",     u"될",
     u"되는",     u"되며",   u"되었더라"});

// Endings of verbs and adjectives.
constexpr auto kEndings = std::to_array<QStringView>(
    {u"고",       u"니",       u"니라",     u"며",     u"매",       u"면",       u"나",
     u"나니",     u"라",       u"지",       u"지라",   u"지니",     u"는",       u"는도다",
     u"는지라",   u"은",       u"을",       u"음",     u"음을",     u"음이",     u"음으로",
     u"기",       u"기를",     u"기까지",   u"게",     u"도록",     u"되",       u"더라",
     u"더니",     u"던",       u"거늘",     u"거든",   u"거니와",   u"느니라",   u"느뇨",
     u"느냐",     u"도다",     u"로다",     u"리라",   u"리니",     u"리로다",   u"리이다",
     u"리요",     u"려",       u"려고",     u"려니와", u"사",       u"소서",     u"어",
     u"아",       u"여",       u"어서",     u"아서",   u"어도",     u"어라",     u"아라",
     u"으니",     u"으니라",   u"으며",     u"으매",   u"으면",     u"으나",     u"으라",
     u"으리라",   u"으리니",   u"으리로다", u"으려",   u"으려고",   u"으려니와", u"으소서",
     u"은즉",     u"은지라",   u"을지라",   u"을지니", u"을지니라", u"을지어다", u"을새",
     u"었고",     u"었으니",   u"었으나",   u"었더라", u"었더니",   u"었느니라", u"었도다",
     u"었으며",   u"았고",     u"았으니",   u"았으나", u"았더라",   u"았더니",   u"았느니라",
     u"았도다",   u"았으며",   u"시고",     u"시니",   u"시니라",   u"시며",     u"시매",
     u"시면",     u"시나",     u"시는",     u"시기를", u"시되",     u"시더라",   u"시더니",
     u"시던",     u"시거늘",   u"시느니라", u"시도다", u"시리라",   u"시리니",   u"시리로다",
     u"시리이다", u"시옵소서", u"신",       u"신즉",   u"실",       u"심",       u"심을",
     u"심이",     u"심이라",   u"셨고",     u"셨으니", u"셨느니라", u"셨도다",   u"셨더라",
     u"으시고",   u"으시니",   u"으시며",   u"으시매", u"으신",     u"으사",     u"나이다",
     u"나이까",   u"옵나이다", u"사오니",   u"오니",   u"오리이다", u"이다",     u"자",
     u"다가",     u"다",       u"든지",     u"거나",   u"진대",     u"므로",     u"으므로",
     u"노라",     u"노니",     u"습니다",   u"건대",   u"지어다"});

// Particles that hardly any word ends with by chance: where a word stands alone, they tip the
// scale.
constexpr auto kSureParticles =
    std::to_array<QStringView>({u"을", u"를", u"의", u"은", u"는", u"에", u"와", u"과"});
constexpr double kSureGain = 0.1;

struct Candidate
{
    QString stem;
    bool isVerb = false;
    bool isSure = false;
};

bool isHangul(QChar c)
{
    return c >= QChar(0xAC00) && c <= QChar(0xD7A3);
}

template <std::size_t N>
void addCuts(const std::array<QStringView, N>& cuts, const QString& word, bool isVerb,
             std::vector<Candidate>& candidates)
{
    for (const QStringView cut : cuts) {
        if (word.size() <= cut.size() || !word.endsWith(cut))
            continue;
        const QString stem = word.left(word.size() - cut.size());
        const auto known = [&stem](const Candidate& other) { return other.stem == stem; };
        if (std::ranges::none_of(candidates, known))
            candidates.push_back(
                {stem, isVerb, std::ranges::find(kSureParticles, cut) != kSureParticles.end()});
    }
}

// A noun goes before a verb where both cuts give the same stem.
std::vector<Candidate> candidatesOf(const QString& word)
{
    std::vector<Candidate> candidates{{word}};
    addCuts(kParticles, word, false, candidates);
    addCuts(kEndings, word, true, candidates);
    return candidates;
}

struct StemCount
{
    int words = 0;       // different ones
    int occurrences = 0; // of all of them
};

class StemChoice
{
public:
    explicit StemChoice(const QStringList& words);

    QHash<QString, QString> stems() const;

private:
    double score(const Candidate& candidate) const;
    QString best(const QString& word) const;

    QHash<QString, int> m_frequencies;
    QHash<QString, StemCount> m_counts;
};

StemChoice::StemChoice(const QStringList& words)
{
    for (const QString& word : words)
        ++m_frequencies[word];
    for (auto word = m_frequencies.begin(); word != m_frequencies.end(); ++word)
        for (const Candidate& candidate : candidatesOf(word.key())) {
            StemCount& count = m_counts[candidate.stem];
            ++count.words;
            count.occurrences += word.value();
        }
}

double StemChoice::score(const Candidate& candidate) const
{
    const StemCount count = m_counts.value(candidate.stem);
    const bool isSyllable = candidate.stem.size() == 1;
    if (isSyllable && count.occurrences < kLeastSyllables)
        return -std::numeric_limits<double>::infinity();
    const bool isFree = m_frequencies.value(candidate.stem) >= kFreeOccurrences;
    return std::log(count.words) + (isFree ? kFreeGain : 0) - (isSyllable ? kSyllableLoss : 0) +
           (candidate.isSure ? kSureGain : 0);
}

QString StemChoice::best(const QString& word) const
{
    const std::vector<Candidate> candidates = candidatesOf(word);
    const auto found = std::ranges::max_element(
        candidates, {}, [this](const Candidate& candidate) { return score(candidate); });
    if (!std::isfinite(score(*found)))
        return {};
    return found->isVerb ? found->stem + u'다' : found->stem;
}

QHash<QString, QString> StemChoice::stems() const
{
    QHash<QString, QString> stems;
    for (auto word = m_frequencies.begin(); word != m_frequencies.end(); ++word) {
        const QString stem = best(word.key());
        if (!stem.isEmpty())
            stems.insert(word.key(), stem);
    }
    return stems;
}

} // namespace

KoreanStems::KoreanStems(const QStringList& words) : m_stems(StemChoice(words).stems()) {}

QStringList koreanWords(const QString& text)
{
    QStringList words;
    QString word;
    for (const QChar c : text) {
        if (isHangul(c)) {
            word += c;
        } else if (!word.isEmpty()) {
            words << word;
            word.clear();
        }
    }
    if (!word.isEmpty())
        words << word;
    return words;
}

} // namespace lumen
