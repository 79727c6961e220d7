// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/made_originals.h"

#include "canon/canon_table.h"

#include <QRandomGenerator>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

const QList<OriginalWord> kHebrewWords{
    {u"arb"_s, 1254, u"arb"_s, u"@vqp3ms-S---J-C-A-E-H1R-"_s},
    {u"<yhla"_s, 430, u"hla"_s, u"@ncmpaS---E-H-R-"_s},
    {u"<y#hla"_s, 430, u"hla"_s, u"@ncmpcS---E-H-R-"_s},
    {u"bz"_s, 2091, u"bhz"_s, u"@ncmsaS---E-H-R-"_s},
    {u"ba"_s, 1, u"ba"_s, u"@ncmsaS---E-H-R-"_s},
    // One form, two numbers.
    {u"ba"_s, 2, u"bba"_s, u"%ncmsaS---E-H-R-"_s},
    {u"Fma"_s, 3, u"Fma"_s, u"%vIp3ms-S---J-C-A-E-H-R-"_s},
    {u"dma"_s, 4, u"dma"_s, u"%vFp3ms-S---J-C-A-E-H-R-"_s},
    {u"hma"_s, 5, u"hma"_s, u"%vBp3ms-S---J-C-A-E-H-R-"_s},
    {u"|b"_s, 0, u""_s, u"@Pp-------E-H-"_s},
};

const QList<OriginalWord> kGreekWords{
    {u"logov"_s, 3056, u"logov"_s, u"$nnms"_s}, {u"logon"_s, 3056, u"logov"_s, u"$nams"_s},
    {u"Fwv"_s, 5457, u"fwv"_s, u"$nnns"_s},     {u"zwh"_s, 2222, u"zwh"_s, u"$nnfs"_s},
    {u"hn"_s, 1510, u"eimi"_s, u"$viia3s"_s},   {u"kai"_s, 2532, u"kai"_s, u"$qc"_s},
    {u"Ian"_s, 430, u"Ian"_s, u"$b"_s},
};

bool inScope(const OriginalVerse& verse, const QString& tag, const QStringList& earlier)
{
    if (tag == u"All")
        return true;
    if (tag == u"curRecSet")
        return earlier.contains(verse.key());
    struct Part
    {
        QString tag;
        int first;
        int last;
    };
    static const QList<Part> parts{{u"모"_s, 0, 4},   {u"역"_s, 5, 16},  {u"식"_s, 17, 21},
                                   {u"대"_s, 22, 26}, {u"소"_s, 27, 38}, {u"삽"_s, 39, 42},
                                   {u"바"_s, 44, 56}, {u"공"_s, 57, 64}, {u"계"_s, 65, 65}};
    for (const Part& part : parts)
        if (part.tag == tag)
            return verse.book >= part.first && verse.book <= part.last;
    return tag.split(u',').contains(bookAbbreviation(verse.book));
}

/// Whether a code fits a pattern: "_" is anything, all else itself.
bool fits(const QString& code, const QString& pattern)
{
    return code.size() == pattern.size() &&
           std::equal(code.begin(), code.end(), pattern.begin(),
                      [](QChar have, QChar want) { return want == u'_' || have == want; });
}

using Test = std::function<bool(const OriginalWord&)>;

/// The number that a form is looked up under: that of its first row, which is the first met.
int firstNumber(const QList<OriginalVerse>& verses, bool hebrew, const QString& form)
{
    for (const OriginalVerse& verse : verses)
        if (verse.isHebrew() == hebrew)
            for (const OriginalWord& word : verse.words)
                if (word.form == form && word.strong > 0)
                    return word.strong;
    return 0;
}

/// The lemma that a beginning leads to: the least by its stored form among those that begin so.
QString firstLemma(const QList<OriginalWord>& words, const QString& beginning)
{
    QStringList lemmas;
    for (const OriginalWord& word : words)
        if (word.lemma.startsWith(beginning) && !word.lemma.isEmpty())
            lemmas << word.lemma;
    // The stored form puts upper case before lower, as the readable one does.
    return lemmas.isEmpty() ? QString() : *std::ranges::min_element(lemmas);
}

} // namespace

QList<OriginalVerse> madeOriginals()
{
    QRandomGenerator random(7);
    QList<OriginalVerse> verses;
    for (int book = 0; book < kBookCount; ++book) {
        const QList<OriginalWord>& words =
            book < kFirstNewTestamentBook ? kHebrewWords : kGreekWords;
        for (int verse = 1; verse <= 6; ++verse) {
            OriginalVerse made{book, 1, verse, {}};
            for (int i = random.bounded(1, 5); i > 0; --i)
                made.words << words.at(random.bounded(words.size()));
            verses << made;
        }
    }
    return verses;
}

QStringList plainMatches(const QList<OriginalVerse>& verses, OriginalLanguage language,
                         const OriginalCondition& condition)
{
    const bool hebrew = language == OriginalLanguage::Hebrew;
    const QString typed = condition.word.trimmed();
    const QString lemma = firstLemma(hebrew ? kHebrewWords : kGreekWords, typed);
    const int number =
        condition.kind == ConditionKind::Root ? firstNumber(verses, hebrew, typed) : typed.toInt();
    QStringList keys;
    for (const OriginalVerse& verse : verses) {
        const auto any = [&](const Test& test) { return std::ranges::any_of(verse.words, test); };
        bool found = false;
        if (condition.kind == ConditionKind::Parsing)
            found = any([&](const OriginalWord& word) {
                // A pattern may begin in the middle of a code, as "@" begins one only in Hebrew.
                return fits(word.code, condition.pattern);
            });
        else if (verse.isHebrew() != hebrew)
            continue;
        else if (condition.kind == ConditionKind::Literal)
            found = verse.text().contains(typed);
        else if (condition.kind == ConditionKind::Lemma)
            found = any(
                [&](const OriginalWord& word) { return !lemma.isEmpty() && word.lemma == lemma; });
        else
            found =
                any([&](const OriginalWord& word) { return number > 0 && word.strong == number; });
        if (found)
            keys << verse.key();
    }
    return keys;
}

QStringList plainAnswer(const QList<OriginalVerse>& verses, const OriginalQuestion& question,
                        const QStringList& earlier)
{
    QStringList keys = plainMatches(verses, question.language, question.conditions.front());
    for (int i = 1; i <= question.last(); ++i) {
        const auto place = static_cast<std::size_t>(i);
        const QStringList next =
            plainMatches(verses, question.language, question.conditions[place]);
        if (question.conjunctions[place - 1] == Conjunction::Or)
            keys << next;
        else
            keys.removeIf([&](const QString& key) { return !next.contains(key); });
    }
    QStringList answer;
    for (const OriginalVerse& verse : verses)
        if (keys.contains(verse.key()) && inScope(verse, question.scopeTag, earlier))
            answer << verse.key();
    return answer;
}

} // namespace lumen
