// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/verse_index.h"
#include "search/plain_scan.h"
#include "search/verses/bible_search.h"
#include "search/verses/easy_search.h"
#include "search/verses/power_search.h"
#include "search/verses/search_scope.h"
#include "support/test_services.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr quint32 kSeed = 20030501;

/// Texts made of what could go wrong on the way into a query: wildcards, quotes, brackets, bars,
/// line ends, characters that are stored as wildcards, Hangul inside and outside the scrambled
/// blocks, Hanja, pairs of surrogates.
const QStringList& pieces()
{
    static const QStringList all{
        u"*"_s,      u"?"_s,      u"#"_s,  u"["_s,   u"]"_s,  u"!"_s,      u"-"_s,
        u"'"_s,      u"\""_s,     u"|"_s,  u"%"_s,   u"_"_s,  u"\\"_s,     u"&"_s,
        u";"_s,      u"("_s,      u")"_s,  u"--"_s,  u" "_s,  u"  "_s,     u"\t"_s,
        u"\r\n"_s,   u"I"_s,      u"B"_s,  u"^"_s,   u"F"_s,  u"z"_s,      u"a"_s,
        u"A"_s,      u"0"_s,      u"~"_s,  u"가"_s,  u"힝"_s, u"하나님"_s, u"똠"_s,
        u"펲"_s,     u"恩"_s,     u"é"_s,  u"ß"_s,   u"😀"_s,  u"𐤀"_s,      u"ﬀ"_s,
        u"\u200F"_s, u"\u0301"_s, u"or"_s, u"and"_s, u"%1"_s, u"[a-z]"_s,  u"\u0001"_s};
    return all;
}

class RandomWords
{
public:
    QString text(int mostPieces)
    {
        QString result;
        for (int left = m_random.bounded(1, mostPieces + 1); left > 0; --left)
            result += pieces().at(m_random.bounded(pieces().size()));
        return result;
    }
    /// A stretch of a verse or a text of its own, which most verses don't hold.
    QString word(const MadeBible& bible)
    {
        if (m_random.bounded(4) == 0)
            return text(4);
        const QString verse = *bible.at(m_random.bounded(bible.size())).cont;
        if (verse.isEmpty())
            return text(1);
        const auto start = m_random.bounded(verse.size());
        return verse.mid(start, m_random.bounded(1, 7));
    }

    /// The same trimmed, whole and not empty.
    QString plainWord(const MadeBible& bible)
    {
        QString result;
        while (result.isEmpty() || !result.isValidUtf16())
            result = Trim(word(bible)).toString();
        return result;
    }

private:
    QRandomGenerator m_random{kSeed};
};

/// Conditions are joined from left to right; a gap closes up.
bool meets(const PowerTerms& terms, const QString& text)
{
    bool result = text.contains(terms.first);
    const auto join = [&](const QString& word, Conjunction conjunction) {
        if (word.isEmpty())
            return;
        const bool holds = text.contains(word);
        result = conjunction == Conjunction::And ? result && holds : result || holds;
    };
    join(terms.second, terms.afterFirst);
    join(terms.third, terms.afterSecond);
    return result;
}

bool holdsLoneSurrogate(const QString& text)
{
    return !text.isValidUtf16();
}

class RandomWordsTest : public testing::Test
{
protected:
    void writeAndOpen(const MadeBible& verses)
    {
        bible = verses;
        writeVersion(test.folders.data(u"101.dts"_s), u"개역한글"_s, bible);
        search.setModule(u"C:\\lumenscript\\Data\\101.dts"_s);
    }

    QStringList found()
    {
        QStringList references;
        Recordset& result = *search.dacSearch.Recordset();
        for (; !result.Eof(); result.MoveNext())
            references << BibleCode::IndexToRef(Text(result.Fields(u"index")));
        EXPECT_EQ(references.size(), search.count());
        return references;
    }

    QStringList easy(const QString& word)
    {
        search.query(scopedQuery(SearchKind::Easy, u"개역한글"_s,
                                 easyCriterion(Trim(word).toString()), u"All"_s));
        return found();
    }

    MadeBible bible;
    TestServices test;
    BibleSearch search{test.jet};
};

TEST_F(RandomWordsTest, EasySearchFindsExactlyTheVersesThatHoldTheText)
{
    RandomWords random;
    MadeBible verses;
    for (int number = 0; number < 300; ++number)
        verses << madeVerse(number / 100, number / 10 % 10 + 1, number % 10 + 1, random.text(12));
    writeAndOpen(verses);
    int hits = 0;
    for (int round = 0; round < 4000; ++round) {
        const QString word = random.word(bible);
        const QString trimmed = Trim(word).toString();
        const QStringList expected =
            holdsLoneSurrogate(trimmed) ? QStringList() : plainScan(bible, trimmed);
        hits += static_cast<int>(expected.size());
        ASSERT_EQ(easy(word), expected) << round << ": " << word.toStdString();
    }
    EXPECT_GT(hits, 4000);
}

TEST_F(RandomWordsTest, PowerSearchAndNarrowingAgreeWithAPlainLook)
{
    RandomWords random;
    MadeBible verses;
    for (int number = 0; number < 200; ++number)
        verses << madeVerse(number / 100, number / 10 % 10 + 1, number % 10 + 1, random.text(12));
    writeAndOpen(verses);
    for (int round = 0; round < 800; ++round) {
        const auto word = [&](bool given) { return given ? random.plainWord(bible) : QString(); };
        const PowerTerms terms{word(true), word(round / 4 % 3 > 0), word(round / 12 % 3 > 0),
                               round % 2 == 0 ? Conjunction::And : Conjunction::Or,
                               round / 2 % 2 == 0 ? Conjunction::And : Conjunction::Or};
        search.query(
            scopedQuery(SearchKind::Power, u"개역한글"_s, powerCriterion(terms), u"All"_s));
        ASSERT_EQ(
            found(),
            plainScan(bible, [&](const PlainVerse& verse) { return meets(terms, *verse.cont); }))
            << round;
        const QString more = random.plainWord(bible);
        search.narrow(easyCriterion(more));
        ASSERT_EQ(found(), plainScan(bible,
                                     [&](const PlainVerse& verse) {
                                         return meets(terms, *verse.cont) &&
                                                verse.cont->contains(more);
                                     }))
            << round;
    }
}

TEST_F(RandomWordsTest, VeryLongTextsAndBrokenCharactersFindWhatHoldsThemOrNothing)
{
    const QString high(QChar(0xD83D));
    const QString low(QChar(0xDE00));
    const QString brackets(10000, u'[');
    const QString mixed = u"z*?#'I"_s.repeated(1500);
    writeAndOpen({madeVerse(0, 1, 1, u"smile "_s + high + low + u" end"_s),
                  madeVerse(0, 1, 2, brackets), madeVerse(0, 1, 3, u"a"_s + mixed + u"b"_s),
                  madeVerse(0, 1, 4, u"before\u0001after"_s), madeVerse(0, 1, 5, QString())});
    EXPECT_EQ(easy(high + low), QStringList{u"창1:1"_s});
    for (const QString& broken : {high, low, low + high, u"smile "_s + high, high + u" end"_s})
        EXPECT_EQ(easy(broken), QStringList());
    EXPECT_EQ(easy(brackets), QStringList{u"창1:2"_s});
    EXPECT_EQ(easy(brackets + u"["_s), QStringList());
    EXPECT_EQ(easy(mixed), QStringList{u"창1:3"_s});
    EXPECT_EQ(easy(u"\u0001"_s), QStringList{u"창1:4"_s});
    // A NUL ends no query early: the text in front of it isn't searched alone.
    EXPECT_EQ(easy(QString(QChar(u'\0'))), QStringList());
    EXPECT_EQ(easy(u"before"_s + QChar(u'\0')), QStringList());
    EXPECT_EQ(easy(u"before"_s + QChar(u'\0') + u"*"_s), QStringList());
    EXPECT_EQ(easy(QString()).size(), 5);
}

} // namespace
} // namespace lumen
