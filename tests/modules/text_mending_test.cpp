// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "sources/psalm_titles.h"
#include "sources/text_mending.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

VerseText verse(int book, int chapter, int number, const QString& text)
{
    return {book, chapter, number, text, {}, {}};
}

TEST(Mending, KoreanPlaceholdersBecomeNoWords)
{
    VersionText version{{verse(0, 1, 1, u"(없음)"_s), verse(0, 1, 2, u"(없 음)"_s),
                         verse(0, 1, 3, u"없음"_s), verse(0, 1, 4, u"{상동}"_s),
                         verse(0, 1, 5, u"없음이 아님"_s)},
                        {}};
    Mending::korean(version);
    for (int number = 1; number <= 4; ++number)
        EXPECT_EQ(wordsAt(version, 0, 1, number), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 5), u"없음이 아님"_s);
}

TEST(Mending, KoreanBracketsAreMendedOnlyWhereTheyCloseNothing)
{
    VersionText version{{verse(0, 1, 1, u"통(桶))과 {주}"_s), verse(0, 1, 2, u"(여는 절"_s),
                         verse(0, 1, 3, u"닫는 절)"_s), verse(0, 2, 1, u"명(五十)名) 끝"_s),
                         verse(0, 50, 26, u"(끝까지"_s), verse(1, 1, 1, u"새 책)"_s)},
                        {}};
    Mending::korean(version);
    EXPECT_EQ(wordsAt(version, 0, 1, 1), u"통(桶)과 (주)"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 3), u"닫는 절)"_s);
    EXPECT_EQ(wordsAt(version, 0, 2, 1), u"명(五十)名 끝"_s);
    EXPECT_EQ(wordsAt(version, 1, 1, 1), u"새 책"_s);
}

TEST(Mending, KoreanTextIsComposedAndStraySignsAreToldButKept)
{
    VersionText version{{verse(0, 1, 1, u"\uF90A과 인내_로"_s)}, {}};
    Mending::korean(version);
    EXPECT_EQ(wordsAt(version, 0, 1, 1), u"\u91D1과 인내_로"_s);
    ASSERT_EQ(version.remarks.size(), 1);
    EXPECT_TRUE(version.remarks[0].endsWith(u"창1:1"_s));
}

TEST(Mending, BaptistEditionChangesEveryPlaceOfTheWord)
{
    VersionText version{{verse(39, 3, 1, u"세례 요한의 세례"_s)}, {}};
    Mending::baptist(version);
    EXPECT_EQ(wordsAt(version, 39, 3, 1), u"침례 요한의 침례"_s);
}

TEST(Mending, AsvLosesTheMarksOfAddedWords)
{
    VersionText version{{verse(0, 1, 1, u"`so' it's `the king's matter', the sons' `And'"_s)}, {}};
    Mending::asv(version);
    EXPECT_EQ(wordsAt(version, 0, 1, 1), u"so it's the king's matter, the sons' And"_s);
}

TEST(Mending, DarbyTitlesAndLettersLeaveTheText)
{
    VersionText version{{verse(18, 3, 1, u"{A song.} one *two*"_s), verse(18, 3, 2, u"{x} one"_s),
                         verse(18, 119, 9, u"BETH. one"_s), verse(18, 120, 1, u"AB. one"_s),
                         verse(22, 38, 9, u"{x} one"_s)},
                        {}};
    Mending::darby(version);
    EXPECT_EQ(wordsAt(version, 18, 3, 1), u"one two"_s);
    EXPECT_EQ(verseAt(version, 18, 3, 1)->part.value_or(QString()), u"A song."_s);
    EXPECT_EQ(wordsAt(version, 18, 3, 2), u"{x} one"_s);
    EXPECT_EQ(wordsAt(version, 18, 119, 9), u"one"_s);
    EXPECT_EQ(verseAt(version, 18, 119, 9)->miniTitle, u"BETH"_s);
    EXPECT_EQ(wordsAt(version, 18, 120, 1), u"AB. one"_s);
    EXPECT_EQ(wordsAt(version, 22, 38, 9), u"{x} one"_s);
}

TEST(Mending, CutWordsAreJoinedAsTheOtherCopyHasThem)
{
    VersionText version{{verse(0, 1, 1, u"Bold ly he can not. There in the"_s),
                         verse(0, 1, 2, u"who soever, where in"_s),
                         verse(0, 1, 3, u"in all, inall"_s)},
                        {}};
    const VersionText witness{{verse(0, 1, 1, u"Boldly<1> he cannot<2>. There in the"_s),
                               verse(0, 1, 3, u"in all, inall"_s)},
                              {}};
    Mending::joinCutWords(version, witness);
    EXPECT_EQ(wordsAt(version, 0, 1, 1), u"Boldly he cannot. There in the"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 2), u"who soever, where in"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 3), u"in all, inall"_s);
}

TEST(PsalmTitles, StandApartFromTheVerse)
{
    const struct
    {
        void (*mend)(VersionText&);
        int chapter;
        QString text, part, heading, left;
    } rows[] = {
        {PsalmTitles::english,
         3,
         u"A Psalm of X, when he fled. One? Two."_s,
         u"A Psalm of X, when he fled."_s,
         {},
         u"One? Two."_s},
        {PsalmTitles::english,
         18,
         u"To the Overseer. -- By a servant, and he saith: -- One."_s,
         u"To the Overseer. -- By a servant, and he saith:"_s,
         {},
         u"One."_s},
        {PsalmTitles::english, 33, u"A Psalm of one. Two."_s, {}, {}, u"A Psalm of one. Two."_s},
        {PsalmTitles::english, 98, u"One. A Psalm."_s, {}, {}, u"One. A Psalm."_s},
        {PsalmTitles::english, 119, u"[Aleph.] One."_s, {}, u"Aleph"_s, u"One."_s},
        {PsalmTitles::english, 119, u"ALEPH. One."_s, {}, u"ALEPH"_s, u"One."_s},
        {PsalmTitles::spanish,
         3,
         u"Salmo de X. ¡OH uno! dos."_s,
         u"Salmo de X."_s,
         {},
         u"¡OH uno! dos."_s},
        {PsalmTitles::spanish, 111, u"Aleluya. UNO dos."_s, {}, {}, u"Aleluya. UNO dos."_s},
        {PsalmTitles::spanish, 119, u"BETH ¿Uno?"_s, {}, u"BETH"_s, u"¿Uno?"_s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text.toStdString());
        VersionText version{{verse(18, row.chapter, 1, row.text)}, {}};
        version.verses.push_back(verse(18, 3, 2, u"A Psalm of X. ¡OH uno!"_s));
        row.mend(version);
        EXPECT_EQ(wordsAt(version, 18, 3, 2), u"A Psalm of X. ¡OH uno!"_s);
        EXPECT_EQ(wordsAt(version, 18, row.chapter, 1), row.left);
        EXPECT_EQ(verseAt(version, 18, row.chapter, 1)->part.value_or(QString()), row.part);
        EXPECT_EQ(verseAt(version, 18, row.chapter, 1)->miniTitle, row.heading);
    }
}

TEST(Mending, WebsterFollowsTheNumbersInItsText)
{
    VersionText version{
        {verse(0, 5, 32, u"\\6:1\\ one"_s), verse(0, 6, 1, u"two\\"_s), verse(0, 6, 2, u"+"_s)},
        {}};
    Mending::webster(version);
    ASSERT_EQ(version.verses.size(), 2U);
    arrangeVerses(version);
    EXPECT_EQ(wordsAt(version, 0, 6, 1), u"one two"_s);
}

TEST(Mending, DouayPsalmsComeToTheChaptersOfTheHebrewText)
{
    struct Row
    {
        int chapter, verse, toChapter, toVerse;
    };
    const Row rows[] = {
        {9, 21, 9, 21},     {10, 1, 10, 1},    {11, 1, 11, 1},     {11, 2, 10, 2},
        {11, 4, 11, 2},     {11, 5, 10, 3},    {11, 20, 10, 8},    {11, 22, 11, 8},
        {11, 23, 10, 9},    {11, 32, 10, 18},  {114, 8, 114, 8},   {114, 9, 115, 1},
        {115, 9, 116, 9},   {116, 1, 116, 10}, {116, 11, 116, 11}, {120, 176, 119, 176},
        {148, 11, 147, 11}, {149, 1, 147, 12}, {149, 20, 147, 20}, {150, 1, 148, 1},
        {151, 9, 149, 9},   {152, 5, 150, 5},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.chapter * 1000 + row.verse);
        VersionText version{{verse(18, row.chapter, row.verse, u"one\\"_s)}, {}};
        Mending::douay(version);
        EXPECT_EQ(wordsAt(version, 18, row.toChapter, row.toVerse), u"one"_s);
    }
}

TEST(Mending, DouayFillersAreNoText)
{
    const QString filler = u"dummy verses inserted by amos"_s;
    VersionText version{{verse(44, 9, 2, filler), verse(18, 116, 5, filler),
                         verse(18, 119, 1, u"Aleph"_s), verse(18, 120, 1, u"one"_s)},
                        {}};
    Mending::douay(version);
    arrangeVerses(version);
    EXPECT_EQ(wordsAt(version, 44, 9, 2), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version, 18, 116, 5), u"<no row>"_s);
    EXPECT_EQ(wordsAt(version, 18, 119, 1), u"one"_s);
    EXPECT_EQ(verseAt(version, 18, 119, 1)->miniTitle, u"Aleph"_s);
}

TEST(Mending, DouayVersesComeBackToTheirNumbers)
{
    const QString filler = u"dummy verses inserted by amos"_s;
    VersionText version{{verse(0, 17, 25, u"a"_s), verse(0, 17, 26, filler),
                         verse(0, 17, 27, u"h Abc be- fore, in- all, forty- five"_s),
                         verse(0, 17, 28, u"before forty-five"_s), verse(5, 2, 10, u"halves"_s),
                         verse(5, 2, 11, u"nine"_s), verse(5, 2, 12, u"two"_s),
                         verse(42, 15, 1, u"three"_s), verse(42, 15, 2, filler),
                         verse(42, 15, 3, filler), verse(42, 15, 4, u"four"_s)},
                        {}};
    Mending::douay(version);
    arrangeVerses(version);
    EXPECT_EQ(wordsAt(version, 0, 17, 26), u"Abc before, in- all, forty-five"_s);
    EXPECT_EQ(wordsAt(version, 0, 17, 27), u"before forty-five"_s);
    EXPECT_EQ(wordsAt(version, 5, 2, 9), u"nine"_s);
    EXPECT_EQ(wordsAt(version, 5, 2, 10), u"two halves"_s);
    EXPECT_EQ(wordsAt(version, 42, 15, 1), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version, 42, 15, 3), u"three"_s);
    EXPECT_EQ(wordsAt(version, 42, 15, 4), u"four"_s);
}

TEST(Mending, RomansDoxologyMovesToItsKeys)
{
    VersionText version{{verse(44, 14, 23, u"a"_s), verse(44, 14, 24, u"b"_s),
                         verse(44, 14, 26, u"c"_s), verse(45, 14, 24, u"d"_s)},
                        {}};
    Mending::romansDoxology(version);
    EXPECT_EQ(wordsAt(version, 44, 14, 23), u"a"_s);
    EXPECT_EQ(wordsAt(version, 44, 16, 25), u"b"_s);
    EXPECT_EQ(wordsAt(version, 44, 16, 27), u"c"_s);
    EXPECT_EQ(wordsAt(version, 45, 14, 24), u"d"_s);
}

TEST(ArrangeVerses, PlaceholdersAreNoText)
{
    VersionText version{{verse(0, 1, 1, u"Not available"_s), verse(0, 1, 2, u"[-]"_s),
                         verse(0, 1, 3, u"Not available to him."_s), verse(0, 1, 4, u"\u5B50"_s)},
                        {}};
    arrangeVerses(version);
    EXPECT_EQ(wordsAt(version, 0, 1, 1), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 2), u"<no words>"_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 3), u"Not available to him."_s);
    EXPECT_EQ(wordsAt(version, 0, 1, 4), u"\u5B50"_s);
}

TEST(ArrangeVerses, SortsJoinsAndDropsWhatTheCanonDoesNotKnow)
{
    VersionText version{{verse(0, 2, 1, u"c"_s), verse(0, 1, 1, u"a"_s), verse(26, 13, 1, u"x"_s),
                         verse(0, 1, 1, u"b"_s), verse(16, 10, 0, u"x"_s)},
                        {}};
    version.verses[1].miniTitle = u"H1"_s;
    version.verses[3].miniTitle = u"H2"_s;
    version.verses[3].part = u"p"_s;
    arrangeVerses(version);
    ASSERT_EQ(version.verses.size(), 2U);
    EXPECT_EQ(version.verses[0].text.value_or(QString()), u"a b"_s);
    EXPECT_EQ(version.verses[0].miniTitle, u"H1 / H2"_s);
    EXPECT_EQ(version.verses[0].part.value_or(QString()), u"p"_s);
    EXPECT_EQ(version.verses[1].chapter, 2);
    EXPECT_TRUE(version.remarks.join(u' ').contains(u"다니엘 13장, 1절"_s));
    EXPECT_TRUE(version.remarks.join(u' ').contains(u"창1:1"_s));
}

TEST(ArrangeVerses, LettersOfPsalm119BecomeHeadings)
{
    VersionText version{{verse(18, 119, 9, u"a"_s), verse(18, 118, 1, u"b"_s)}, {}};
    version.verses[0].part = u"BETH"_s;
    version.verses[1].part = u"title"_s;
    arrangeVerses(version);
    EXPECT_EQ(verseAt(version, 18, 119, 9)->miniTitle, u"BETH"_s);
    EXPECT_FALSE(verseAt(version, 18, 119, 9)->part.has_value());
    EXPECT_EQ(verseAt(version, 18, 118, 1)->part.value_or(QString()), u"title"_s);
}

} // namespace
} // namespace lumen
