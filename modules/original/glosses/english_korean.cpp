// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/english_korean.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostWords = 4;
constexpr int kLeastCount = 2;       // a pair that occurs once may be an accident
constexpr double kLeastShare = 0.08; // of the occurrences of the head
const QString kMark = u" 〔성경 원어의 뜻〕"_s;

// Words that stand beside the one that renders.
const QSet<QString>& companions()
{
    static const QSet<QString> words = [] {
        const QString all =
            u"a an the and or but for of in on at by to from with unto upon into out up down over "
            "under it is be are was were am been being have has had hath hast do did doth dost "
            "will "
            "shall should would may might let he him his she her they them their thy thee thou ye "
            "you your i me my we us our that this these those which who whom what as so then also "
            "not no there when one own"_s;
        const QStringList list = all.split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return words;
}

// The one word that renders, "" where there is none or more.
QString mainWord(const QString& english)
{
    static const QRegularExpression letters(u"[A-Za-z'-]+"_s);
    QString found;
    for (const QRegularExpressionMatch& match : letters.globalMatch(english)) {
        const QString word = match.captured().toLower();
        if (companions().contains(word))
            continue;
        if (!found.isEmpty())
            return {};
        found = word;
    }
    return found;
}

using Counts = std::map<QString, std::map<QString, int>>; // of renderings by their heads

void addEntries(const Counts& heads, std::vector<DictionaryEntry>& entries)
{
    for (const auto& [head, renderings] : heads) {
        int all = 0;
        std::vector<std::pair<int, QString>> sorted;
        for (const auto& [word, count] : renderings) {
            all += count;
            sorted.emplace_back(count, word);
        }
        std::ranges::stable_sort(sorted, std::greater(), &std::pair<int, QString>::first);
        QStringList words;
        for (const auto& [count, word] : sorted)
            if (count >= kLeastCount && count >= kLeastShare * all && words.size() < kMostWords)
                words << word;
        if (!words.isEmpty())
            entries.push_back({head, words.join(u", "_s) + kMark});
    }
}

} // namespace

std::vector<DictionaryEntry> englishKoreanEntries(const OriginalText& text,
                                                  const KoreanGlosses& glosses)
{
    Counts fromEnglish;
    Counts fromKorean;
    for (const OriginalVerse& verse : text)
        for (const OriginalWord& word : verse.words) {
            const QString english = mainWord(word.english);
            const QString korean = glosses.gloss(verse.isGreek, word.strong);
            // Signs in brackets name a function, as "(목적격)".
            if (english.isEmpty() || korean.isEmpty() || korean.startsWith(u'('))
                continue;
            ++fromEnglish[english][korean];
            ++fromKorean[korean][english];
        }
    std::vector<DictionaryEntry> entries;
    addEntries(fromEnglish, entries);
    addEntries(fromKorean, entries);
    return entries;
}

} // namespace lumen
