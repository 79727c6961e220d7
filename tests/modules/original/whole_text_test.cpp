// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/original_versions.h"
#include "original/parsing_search.h"
#include "recipes/original_recipes.h"
#include "text/original/original_unicode.h"
#include "text/original/parsing_tables.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kNehemiah = 15;
constexpr int kPsalms = 18;
constexpr int kJohn = 42;
constexpr int kRomans = 44;

// What the installed sources give, read once for all tests of this program.
class WholeText : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        corpus = new OriginalCorpus(installedOriginals(installedFolders()));
    }
    static void TearDownTestSuite()
    {
        delete corpus;
        corpus = nullptr;
    }

    void SetUp() override
    {
        const auto& content = corpus->content();
        ASSERT_TRUE(content.ok()) << content.failure().detail.toStdString();
    }

    static const OriginalText& text() { return corpus->content().value().verses; }
    static const OriginalVerse* verse(int book, int chapter, int number)
    {
        const VersePlace place{book, chapter, number};
        const auto found = std::ranges::find(text(), place, &OriginalVerse::place);
        return found == text().end() ? nullptr : &*found;
    }
    static QString english(int book, int chapter, int number)
    {
        const OriginalVerse* found = verse(book, chapter, number);
        QStringList words;
        if (found)
            for (const OriginalWord& word : found->words)
                words << word.english;
        return words.join(u'|');
    }

    static OriginalCorpus* corpus;
};

OriginalCorpus* WholeText::corpus = nullptr;

const ParsingLayout* layoutOf(const QString& code)
{
    const auto& layouts = code.startsWith(u'$') ? kGreekLayouts : kSemiticLayouts;
    const auto found = std::ranges::find(layouts, code[1].unicode(), &ParsingLayout::partOfSpeech);
    return found == layouts.end() ? nullptr : &*found;
}

// "" for a code whose every position holds a value of its table or is left open.
QString faultOf(const QString& code)
{
    static const std::map<QChar, qsizetype> lengths{{u'n', 16}, {u'P', 13}, {u'a', 15},
                                                    {u'v', 24}, {u'p', 16}, {u'x', 7}};
    const ParsingLayout* layout = code.size() < 2 ? nullptr : layoutOf(code);
    if (!layout)
        return u"no layout"_s;
    if (!code.startsWith(u'$') && code.size() != lengths.at(code[1]))
        return u"length"_s;
    for (const ParsingPosition& position : layout->positions) {
        if (position.position > code.size())
            continue;
        const QChar value = code[position.position - 1];
        // Shortening and lost endings are not told of every form.
        const bool mayBeUntold =
            code[1] == u'v' && (position.position == 14 || position.position == 18);
        if (value != u'-' && !(mayBeUntold && value == u'.') &&
            std::ranges::find(position.table, value.unicode(), &ParsingValue::character) ==
                position.table.end())
            return u"position %1"_s.arg(position.position);
    }
    return {};
}

TEST_F(WholeText, EveryCodeIsOfTheAlphabetAndEveryVerseFits)
{
    QHash<QString, bool> checked;
    for (const OriginalVerse& one : text()) {
        EXPECT_LE(one.words.size(), 74u);
        for (const OriginalWord& word : one.words) {
            const QStringList codes = (word.prefixes + word.parsing).split(u';');
            for (const QString& code : codes)
                if (!word.parsing.isEmpty() && !checked.contains(code)) {
                    checked.insert(code, true);
                    EXPECT_EQ(faultOf(code), QString()) << code.toStdString();
                }
        }
    }
    EXPECT_GT(checked.size(), 1500);
}

TEST_F(WholeText, HasTheWordsOfTheSources)
{
    std::map<QString, int> counts;
    for (const OriginalVerse& one : text()) {
        const QString language = one.isGreek ? u"greek "_s : u"hebrew "_s;
        ++counts[language + u"verses"_s];
        for (const OriginalWord& word : one.words) {
            ++counts[language + (word.isMark ? u"marks"_s : u"words"_s)];
            counts[language + u"without number"_s] += !word.isMark && word.strong == 0 ? 1 : 0;
            counts[language + u"without code"_s] += word.parsing.isEmpty() ? 1 : 0;
            counts[language + u"ketiv"_s] += word.reading == Reading::Ketiv ? 1 : 0;
            counts[language + u"qere"_s] += word.reading == Reading::Qere ? 1 : 0;
        }
    }
    // Counted in the source files by other means.
    EXPECT_EQ(counts[u"hebrew verses"_s], 23144);
    EXPECT_EQ(counts[u"hebrew words"_s], 306785);
    EXPECT_EQ(counts[u"hebrew marks"_s], 3162);
    EXPECT_EQ(counts[u"hebrew ketiv"_s], 1268);
    EXPECT_EQ(counts[u"hebrew qere"_s], 1278);
    EXPECT_EQ(counts[u"hebrew without code"_s], 0);
    EXPECT_LT(counts[u"hebrew without number"_s], 6100);
    EXPECT_EQ(counts[u"greek verses"_s], 7957);
    EXPECT_EQ(counts[u"greek words"_s], 140617);
    EXPECT_EQ(counts[u"greek without number"_s], 0);
    EXPECT_EQ(counts[u"greek without code"_s], 2);
}

TEST_F(WholeText, ConsonantsAreThePointedTextWithoutItsPoints)
{
    static const QRegularExpression letters(u"^[abgdhwzxjyklmnsepcqrvt67890\\[\\]: -]*$"_s);
    for (const OriginalVerse& one : text()) {
        if (one.isGreek)
            continue;
        const QString pointed = hebrewVerseText(one, HebrewEdition::Pointed);
        const QString consonants = hebrewVerseText(one, HebrewEdition::Consonants);
        ASSERT_EQ(hebrewConsonants(pointed), consonants);
        ASSERT_TRUE(letters.match(consonants).hasMatch()) << consonants.toStdString();
        const QString divided = hebrewVerseText(one, HebrewEdition::Divided);
        ASSERT_EQ(QString(divided).remove(u'/'), consonants);
    }
}

TEST_F(WholeText, VersesStandWhereTheKeysHaveThem)
{
    EXPECT_EQ(verse(kNehemiah, 7, 68), nullptr) << "the manuscript lacks it";
    EXPECT_EQ(verse(kPsalms, 13, 5)->words.size(), 6u);
    ASSERT_NE(verse(kPsalms, 51, 1), nullptr);
    EXPECT_EQ(verse(kPsalms, 51, 1)->words[0].strong, 5329) << "the title stands in verse 1";
    EXPECT_EQ(verse(21, 6, 14)->words.size(), 5u);
    EXPECT_EQ(verse(46, 13, 14), nullptr);
    EXPECT_EQ(verse(63, 1, 14)->words.size(), 10u);
    EXPECT_EQ(verse(63, 1, 15)->words.size(), 11u);
    // Aramaic begins within the verse.
    const auto& daniel = verse(26, 2, 4)->words;
    EXPECT_TRUE(daniel[3].parsing.startsWith(u'@'));
    EXPECT_TRUE(daniel[4].parsing.startsWith(u'%'));
}

TEST_F(WholeText, EnglishWordsStandAtWhatTheyRender)
{
    EXPECT_TRUE(english(kGenesis, 1, 1).startsWith(u"In the beginning|created|God||the heaven"_s))
        << english(kGenesis, 1, 1).toStdString();
    const QString fifth = english(kGenesis, 1, 5);
    EXPECT_EQ(fifth.count(u"Day"_s), 1) << fifth.toStdString();
    EXPECT_LT(fifth.indexOf(u"Day"_s), fifth.indexOf(u"day"_s));
    EXPECT_TRUE(english(kJohn, 3, 16).contains(u"|not|should … perish|"_s));
    // Words of verse 4 that the translation puts into verse 3.
    EXPECT_TRUE(english(kRomans, 1, 4).endsWith(u"Jesus|Christ||Lord|our"_s))
        << english(kRomans, 1, 4).toStdString();
}

TEST_F(WholeText, PatternsFindTheVersesThatHoldSuchAWord)
{
    const struct
    {
        QString pattern;
        QString firstPiece; ///< what the code of such a word begins with
        int verses;
    } cases[] = {
        {u"@n....S...E.H.R.;"_s, u"@n"_s, 22754},
        {u"@vqw....S...J.C.A.E.H.R.;"_s, u"@vqw"_s, 6926},
        {u"@PaS...E.H.R.;"_s, u"@Pa"_s, -1},
        {u"\\(\\$vppa...\\);"_s, u"$vppa"_s, -1},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.pattern.toStdString());
        const QRegularExpression pattern(one.pattern);
        int found = 0;
        int direct = 0;
        for (const OriginalVerse& row : text()) {
            found += searchedCodes(row).contains(pattern) ? 1 : 0;
            direct += std::ranges::any_of(row.words, [&one](const OriginalWord& word) {
                return word.parsing.startsWith(one.firstPiece) ||
                       word.prefixes.contains(one.firstPiece);
            });
        }
        EXPECT_EQ(found, direct);
        EXPECT_GT(found, 0);
        if (one.verses >= 0) {
            EXPECT_EQ(found, one.verses);
        }
    }
}

} // namespace
} // namespace lumen
