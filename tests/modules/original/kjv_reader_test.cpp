// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/original/mini_sources.h"
#include "original/greek_words.h"
#include "original/readers/kjv_reader.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

std::vector<KjvVerse> readChapter(const QString& content)
{
    const SourceFiles files;
    const auto verses =
        readKjv(files.write(u"kjv.xml"_s, kjvBible(u"<chapter>"_s + content + u"</chapter>"_s)));
    EXPECT_TRUE(verses.ok());
    return verses.ok() ? verses.value() : std::vector<KjvVerse>();
}

QString greekPiece(const QString& src, const QString& word, const QString& text,
                   const QString& more = {})
{
    return u"<w src=\"%1\" lemma=\"strong:G1 lemma.TR:%2\" morph=\"robinson:N-NSM\" %4>%3</w> "_s
        .arg(src, word, text, more);
}

QString glossLine(const OriginalVerse& verse)
{
    QStringList words;
    for (const OriginalWord& word : verse.words)
        words << word.divided + u'=' + word.english;
    return words.join(u'|');
}

TEST(KjvReader, GivesATitleToTheFirstVerseAndPassesNotesOver)
{
    const auto verses = readChapter(
        u"<title type=\"chapter\"><w lemma=\"strong:H01\">PSALM</w></title>"
        "<title type=\"psalm\"><w lemma=\"strong:H02\">A Song</w></title>"_s +
        kjvVerse(u"Ps.3.1"_s,
                 u"<w lemma=\"strong:H0853 strong:H03068\"><divineName>Lord</divineName>"
                 "<note>left out</note></w> loose <w lemma=\" strong:H05\">x</w>"_s) +
        u"<div type=\"colophon\"><w lemma=\"strong:H06\">end</w></div>"_s);
    ASSERT_EQ(verses.size(), 1u);
    EXPECT_EQ(verses[0].place, (VersePlace{18, 3, 1}));
    const auto& segments = verses[0].segments;
    ASSERT_EQ(segments.size(), 3u);
    EXPECT_EQ(segments[0].text, u"A Song"_s);
    EXPECT_EQ(segments[1].text, u"LORD"_s);
    EXPECT_EQ(segments[1].strong, (std::vector<int>{853, 3068}));
    EXPECT_EQ(segments[2].strong, std::vector<int>{5});
}

TEST(KjvReader, TellsWhatItCannotRead)
{
    const SourceFiles files;
    const QString bad = kjvBible(
        kjvVerse(u"John.1.1"_s,
                 u"<w src=\"x\" lemma=\"strong:G1 lemma.TR:α\" morph=\"robinson:N\">a</w>"_s));
    const auto damaged = readKjv(files.write(u"kjv.xml"_s, bad));
    ASSERT_FALSE(damaged.ok());
    EXPECT_EQ(damaged.failure().kind, FailureKind::Damaged);
    EXPECT_EQ(readKjv(files.path(u"none.xml"_s)).failure().kind, FailureKind::NotFound);
}

TEST(GreekWords, StandInTheirOwnOrderWithTheirRendering)
{
    const auto verses = readChapter(kjvVerse(
        u"John.1.1"_s,
        greekPiece(u"3"_s, u"γ"_s, u"should"_s, u"type=\"x-split-1\""_s) +
            greekPiece(u"1"_s, u"α"_s, u"not"_s) +
            greekPiece(u"3"_s, u"γ"_s, u"perish"_s, u"type=\"x-split-1\""_s) +
            u"<w src=\"4 5\" lemma=\"strong:G3588 strong:G2 lemma.TR:ο lemma.TR:δ\" "
            "morph=\"robinson:T-NSM robinson:N-NSM\">the end</w>"
            "<w src=\"6\" lemma=\"strong:G3588 lemma.TR:ο\" morph=\"robinson:T-NSM\"/>"_s));
    const GreekWords words = greekWords(verses);
    ASSERT_EQ(words.verses.size(), 1u);
    EXPECT_EQ(glossLine(words.verses[0]), u"a=not|g=should … perish|o=|d=the end|o="_s);
    EXPECT_EQ(words.missing, 1);
    EXPECT_EQ(words.verses[0].words[3].strong, 2);
}

TEST(GreekWords, GoToTheNeighbouringVerseThatTheyBelongTo)
{
    const auto verses =
        readChapter(kjvVerse(u"Rom.1.3"_s, greekPiece(u"1"_s, u"α"_s, u"a"_s) +
                                               greekPiece(u"2n"_s, u"δ"_s, u"early"_s)) +
                    kjvVerse(u"Rom.1.4"_s, greekPiece(u"1"_s, u"γ"_s, u"c"_s) +
                                               greekPiece(u"2p"_s, u"β"_s, u"late"_s)));
    const GreekWords words = greekWords(verses);
    ASSERT_EQ(words.verses.size(), 2u);
    EXPECT_EQ(glossLine(words.verses[0]), u"a=a|b=late"_s);
    EXPECT_EQ(glossLine(words.verses[1]), u"g=c|d=early"_s);
}

TEST(GreekWords, WithoutAReadableTagHaveNoCode)
{
    const auto verses = readChapter(
        kjvVerse(u"John.1.1"_s,
                 u"<w src=\"1\" lemma=\"strong:G1 lemma.TR:α\" morph=\"broken:N-NSM\">a</w>"_s));
    const GreekWords words = greekWords(verses);
    ASSERT_EQ(words.verses.size(), 1u);
    EXPECT_EQ(words.verses[0].words[0].parsing, QString());
    EXPECT_EQ(words.withoutCode, QStringList{u"요1:1 a"_s});
}

} // namespace
} // namespace lumen
