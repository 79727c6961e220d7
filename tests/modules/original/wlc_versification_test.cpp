// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "original/wlc_versification.h"
#include "recipes/original_recipes.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kFirstSamuel = 8;
constexpr int kFirstKings = 10;
constexpr int kPsalms = 18;
constexpr int kSong = 21;
constexpr int kIsaiah = 22;
constexpr int kJoel = 28;
constexpr int kSecondCorinthians = 46;
constexpr int kThirdJohn = 63;

OriginalVerse verseOf(const VersePlace& place, const QStringList& words)
{
    OriginalVerse verse{place, false, {}};
    for (const QString& text : words) {
        OriginalWord word;
        word.divided = text;
        word.isMark = text == u"|";
        verse.words.push_back(word);
    }
    return verse;
}

QString textOf(const OriginalVerse& verse)
{
    QStringList words;
    for (const OriginalWord& word : verse.words)
        words << word.divided;
    return words.join(u' ');
}

TEST(WlcVersification, FollowsTheInstalledMap)
{
    const auto map = WlcVersification::read(installedOriginals(installedFolders()).verseMap);
    ASSERT_TRUE(map.ok());
    const struct
    {
        VersePlace wlc;
        int word;
        VersePlace english;
    } cases[] = {
        {{kGenesis, 32, 1}, 1, {kGenesis, 31, 55}},
        {{kGenesis, 31, 54}, 1, {kGenesis, 31, 54}},
        {{kJoel, 3, 1}, 1, {kJoel, 2, 28}},
        {{kPsalms, 51, 1}, 1, {kPsalms, 51, 1}},
        {{kPsalms, 51, 2}, 1, {kPsalms, 51, 1}},
        {{kPsalms, 51, 3}, 1, {kPsalms, 51, 1}},
        {{kPsalms, 51, 4}, 1, {kPsalms, 51, 2}},
        {{kFirstKings, 22, 44}, 1, {kFirstKings, 22, 43}},
        {{kFirstKings, 18, 34}, 10, {kFirstKings, 18, 33}},
        {{kFirstKings, 18, 34}, 11, {kFirstKings, 18, 34}},
        {{kFirstKings, 20, 3}, 6, {kFirstKings, 20, 2}},
        {{kFirstKings, 20, 3}, 7, {kFirstKings, 20, 3}},
        {{kFirstKings, 22, 21}, 8, {kFirstKings, 22, 21}},
        {{kFirstKings, 22, 21}, 9, {kFirstKings, 22, 22}},
        {{kIsaiah, 63, 19}, 9, {kIsaiah, 63, 19}},
        {{kIsaiah, 63, 19}, 10, {kIsaiah, 64, 1}},
        {{kPsalms, 13, 6}, 6, {kPsalms, 13, 5}},
        {{kPsalms, 13, 6}, 7, {kPsalms, 13, 6}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(
            BibleCode::verseKey(one.wlc.book, one.wlc.chapter, one.wlc.verse).toStdString());
        EXPECT_EQ(map.value().english(one.wlc, one.word), one.english);
    }
}

TEST(WlcVersification, NamesTheLineThatItCannotRead)
{
    const SourceFiles files;
    const QString file = files.write(
        u"map.xml"_s, u"<verseMap>\n<verse wlc=\"Nix.1.1\" kjv=\"Gen.1.1\"/></verseMap>"_s);
    const auto map = WlcVersification::read(file);
    ASSERT_FALSE(map.ok());
    EXPECT_EQ(map.failure().kind, FailureKind::Damaged);
    EXPECT_TRUE(map.failure().detail.contains(u"map.xml:2"_s));
}

TEST(KoreanPlaces, JoinAndDivideWhatTheKoreanTextDoes)
{
    EXPECT_EQ(koreanPlace({kFirstSamuel, 30, 31}, 1), (VersePlace{kFirstSamuel, 30, 30}));
    EXPECT_EQ(koreanPlace({kSong, 6, 13}, 7), (VersePlace{kSong, 6, 13}));
    EXPECT_EQ(koreanPlace({kSong, 6, 13}, 8), (VersePlace{kSong, 6, 14}));
    EXPECT_EQ(koreanPlace({kSecondCorinthians, 13, 12}, 1),
              (VersePlace{kSecondCorinthians, 13, 11}));
    EXPECT_EQ(koreanPlace({kSecondCorinthians, 13, 13}, 1),
              (VersePlace{kSecondCorinthians, 13, 12}));
    EXPECT_EQ(koreanPlace({kSecondCorinthians, 13, 14}, 1),
              (VersePlace{kSecondCorinthians, 13, 13}));
    EXPECT_EQ(koreanPlace({kThirdJohn, 1, 14}, 11), (VersePlace{kThirdJohn, 1, 15}));
    EXPECT_EQ(koreanPlaces({kThirdJohn, 1, 14}).size(), 2u);
    EXPECT_EQ(koreanPlaces({kThirdJohn, 1, 13}).size(), 1u);
}

TEST(Regrouped, KeepsMarksWithTheWordBeforeThem)
{
    const VersePlace song{kSong, 6, 13};
    OriginalText text{
        verseOf(song, {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s, u"|"_s, u"8"_s}),
        verseOf({kSong, 7, 1}, {u"9"_s})};
    text = regrouped(std::move(text), koreanPlace);
    ASSERT_EQ(text.size(), 3u);
    EXPECT_EQ(textOf(text[0]), u"1 2 3 4 5 6 7 |"_s);
    EXPECT_EQ(text[1].place, (VersePlace{kSong, 6, 14}));
    EXPECT_EQ(textOf(text[1]), u"8"_s);
}

TEST(Regrouped, JoinsInTheOrderOfTheText)
{
    OriginalText text{verseOf({kFirstSamuel, 30, 30}, {u"a"_s, u"b"_s}),
                      verseOf({kFirstSamuel, 30, 31}, {u"c"_s}),
                      verseOf({kFirstSamuel, 29, 1}, {u"first"_s})};
    text = regrouped(std::move(text), koreanPlace);
    ASSERT_EQ(text.size(), 2u);
    EXPECT_EQ(textOf(text[0]), u"first"_s);
    EXPECT_EQ(textOf(text[1]), u"a b c"_s);
}

} // namespace
} // namespace lumen
