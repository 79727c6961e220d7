// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/korean_pronunciation.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <vector>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// Places of letters in the blocks of Hangul syllables, as Unicode counts them.
constexpr int kNoOnset = 11;
constexpr int kWeakVowel = 18; // ㅡ
constexpr int kI = 20;
constexpr int kVowels = 21;
constexpr int kCodas = 28;
constexpr int kFirstSyllable = 0xAC00;
constexpr int kOnsetS = 9;
constexpr int kOnsetL = 5;
constexpr int kCodaL = 8;
constexpr int kCodaNasal = 21;
constexpr int kNone = -1;

// The vocal sheva and the Greek ypsilon, of one sign each.
constexpr QChar kSheva{u'\u0259'};
constexpr QChar kYpsilon{u'\u00FC'};
constexpr QChar kNasal{u'\u014B'};

struct Vowel
{
    char16_t sound;
    int plain;
    int softened; ///< behind y and sh
};

constexpr std::array kVowelTable{
    Vowel{u'a', 0, 2},   Vowel{u'e', 5, 7},      Vowel{u'i', kI, kI},      Vowel{u'o', 8, 12},
    Vowel{u'u', 13, 17}, Vowel{u'\u0259', 5, 7}, Vowel{u'\u00FC', 16, 16},
};

struct Consonant
{
    QStringView sound;
    int onset;
    int coda; ///< kNone for those that need a vowel of their own
};

constexpr std::array kConsonants{
    Consonant{u"ch", 15, 1},         Consonant{u"sh", kOnsetS, kNone},
    Consonant{u"ts", 14, kNone},     Consonant{u"ph", 17, kNone},
    Consonant{u"th", 16, 19},        Consonant{u"kh", 15, 1},
    Consonant{u"b", 7, 17},          Consonant{u"v", 7, kNone},
    Consonant{u"g", 0, 1},           Consonant{u"d", 3, kNone},
    Consonant{u"h", 18, kNone},      Consonant{u"z", 12, kNone},
    Consonant{u"t", 16, 19},         Consonant{u"k", 15, 1},
    Consonant{u"q", 15, 1},          Consonant{u"l", kOnsetL, kCodaL},
    Consonant{u"m", 6, 16},          Consonant{u"n", 2, 4},
    Consonant{u"s", kOnsetS, kNone}, Consonant{u"p", 17, 17},
    Consonant{u"r", kOnsetL, kNone}, Consonant{u"f", 17, kNone},
};

constexpr int kHebrewChOnset = 18;
// Doubled, these close one syllable and open the next.
constexpr QStringView kKeptDoubled = u"mnlpktbg";

const Vowel* vowelOf(QChar c)
{
    const auto found = std::ranges::find(kVowelTable, c.unicode(), &Vowel::sound);
    return found == kVowelTable.end() ? nullptr : &*found;
}

bool isVowel(QChar c)
{
    return vowelOf(c) != nullptr;
}

QString withoutMarks(const QString& text)
{
    QString result;
    for (const QChar c : text.normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            result += c;
    return result;
}

// Letters that only lengthen the vowel before them, before the accents go that tell them.
QString hebrewSounds(const QString& spelling)
{
    QString text = spelling.normalized(QString::NormalizationForm_C).toLower();
    text.replace(u'ç', u's').replace(u"ôw"_s, u"o"_s).replace(u"ûw"_s, u"u"_s);
    text.replace(u'\u1D49', kSheva);
    for (const auto& [long_, plain] : {std::pair(u"êy"_s, u'e'), std::pair(u"îy"_s, u'i')})
        for (qsizetype at = text.indexOf(long_); at >= 0; at = text.indexOf(long_, at + 1)) {
            const QString next = withoutMarks(text.mid(at + 2, 1));
            if (next.isEmpty() || !isVowel(next[0]))
                text.replace(at, 2, QChar(plain));
        }
    return withoutMarks(text);
}

QString greekSounds(const QString& spelling)
{
    QString text = withoutMarks(spelling.toLower());
    text.replace(u"ui"_s, u"y"_s)
        .replace(u"ou"_s, u"U"_s)
        .replace(u"rh"_s, u"r"_s)
        .replace(u'y', kYpsilon);
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
        const bool beforePalate =
            next == u'g' || next == u'k' || next == u'x' || text.mid(i + 1, 2) == u"ch";
        if ((c == u'g' || c == u'n') && beforePalate)
            result += kNasal;
        else if (c == u'u' && (i == 0 || !u"aeo"_s.contains(text[i - 1])))
            result += kYpsilon;
        else if (c == u'x')
            result += u"ks"_s;
        else
            result += c.toLower();
    }
    return result;
}

struct Syllable
{
    int onset = kNoOnset;
    int vowel = kWeakVowel;
    int coda = 0;
};

class HangulSpeller
{
public:
    HangulSpeller(QString sounds, bool isHebrew) : m_sounds(std::move(sounds)), m_isHebrew(isHebrew)
    {
    }

    QString run();

private:
    const Consonant* consonantAt(qsizetype at) const;
    bool opensWithLiquid(QStringView sound) const;
    void takeVowel(const Vowel& vowel, bool softened, int onset);
    void takeConsonant(const Consonant& consonant);
    void takeY();
    bool hasOpenSyllable() const { return m_open && m_syllables.back().coda == 0; }
    void add(const Syllable& syllable);
    void flush();

    QString m_sounds;
    bool m_isHebrew;
    qsizetype m_at = 0;
    std::vector<Syllable> m_syllables;
    bool m_open = false; // the last syllable can take a coda
    QString m_result;
};

const Consonant* HangulSpeller::consonantAt(qsizetype at) const
{
    const auto found = std::ranges::find_if(kConsonants, [this, at](const Consonant& consonant) {
        return QStringView(m_sounds).mid(at).startsWith(consonant.sound);
    });
    return found == kConsonants.end() ? nullptr : &*found;
}

// In Greek a stop and the liquid behind it open the next syllable together: pe-tros.
bool HangulSpeller::opensWithLiquid(QStringView sound) const
{
    static constexpr QStringView kStops = u"bgdpktc";
    return !m_isHebrew && kStops.contains(sound[0]) && m_at < m_sounds.size() &&
           (m_sounds[m_at] == u'l' || m_sounds[m_at] == u'r');
}

void HangulSpeller::add(const Syllable& syllable)
{
    m_syllables.push_back(syllable);
    m_open = true;
}

void HangulSpeller::flush()
{
    for (const Syllable& s : m_syllables)
        m_result += QChar(kFirstSyllable + (s.onset * kVowels + s.vowel) * kCodas + s.coda);
    m_syllables.clear();
    m_open = false;
}

QString HangulSpeller::run()
{
    while (m_at < m_sounds.size()) {
        const QChar c = m_sounds[m_at];
        if (c == u' ' || c == u'-') {
            flush();
            m_result += c;
            ++m_at;
        } else if (c == kNasal) {
            if (hasOpenSyllable())
                m_syllables.back().coda = kCodaNasal;
            ++m_at;
        } else if (const Vowel* vowel = vowelOf(c)) {
            ++m_at;
            takeVowel(*vowel, false, kNoOnset);
        } else if (c == u'y' || c == u'w') {
            takeY();
        } else if (const Consonant* consonant = consonantAt(m_at)) {
            m_at += consonant->sound.size();
            takeConsonant(*consonant);
        } else {
            ++m_at; // a glottal stop or another sign without a sound of its own
        }
    }
    flush();
    return m_result;
}

void HangulSpeller::takeVowel(const Vowel& vowel, bool softened, int onset)
{
    add({onset, softened ? vowel.softened : vowel.plain, 0});
}

// In front of a vowel y softens it; alone it sounds as one.
void HangulSpeller::takeY()
{
    const bool isY = m_sounds[m_at] == u'y';
    ++m_at;
    const Vowel* next = m_at < m_sounds.size() ? vowelOf(m_sounds[m_at]) : nullptr;
    if (isY && next) {
        ++m_at;
        takeVowel(*next, true, kNoOnset);
    } else {
        add({kNoOnset, isY ? kI : vowelOf(u'u')->plain, 0});
    }
}

void HangulSpeller::takeConsonant(const Consonant& consonant)
{
    const QStringView sound = consonant.sound;
    const bool isSh = sound == u"sh";
    const bool isHebrewCh = m_isHebrew && sound == u"ch";
    if (QStringView(m_sounds).mid(m_at).startsWith(sound)) {
        // Doubled: the first of the two is heard only where it closes a syllable.
        if (sound.size() == 1 && kKeptDoubled.contains(sound[0]) && hasOpenSyllable())
            m_syllables.back().coda = consonant.coda;
        m_at += sound.size();
    }
    const Vowel* next = m_at < m_sounds.size() ? vowelOf(m_sounds[m_at]) : nullptr;
    if (next) {
        // Heard on both sides, also behind a vowel that is only written.
        if (sound == u"l" && !m_syllables.empty() && m_syllables.back().coda == 0)
            m_syllables.back().coda = kCodaL;
        ++m_at;
        takeVowel(*next, isSh, isHebrewCh ? kHebrewChOnset : consonant.onset);
        return;
    }
    if (sound == u"h")
        return; // silent at the end of a syllable
    if (consonant.coda != kNone && !isHebrewCh && !opensWithLiquid(sound) && hasOpenSyllable()) {
        m_syllables.back().coda = consonant.coda;
        return;
    }
    add({isHebrewCh ? kHebrewChOnset : consonant.onset, isSh ? kI : kWeakVowel, 0});
    m_open = false; // a vowel that is only written takes no coda
}

} // namespace

QString koreanFromHebrew(const QString& spelling)
{
    return HangulSpeller(hebrewSounds(spelling), true).run();
}

QString koreanFromGreek(const QString& spelling)
{
    return HangulSpeller(greekSounds(spelling), false).run();
}

} // namespace lumen
