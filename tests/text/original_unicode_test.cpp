// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/original_unicode.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

struct WordRow
{
    const char* name;
    QString unicode;
    QString codes;
};

TEST(OriginalUnicode, HebrewWordsGoBothWays)
{
    // Unicode is composed here: points of a letter in canonical order.
    const WordRow rows[] = {
        {"dagesh behind the letter, sheva", u"\u05D1\u05B0\u05BC\u05E8\u05B5"_s, u"2r;5b"_s},
        {"shin with dot, vowel", u"\u05E9\u05B8\u05C1"_s, u"4`v"_s},
        {"sin with dagesh and vowel", u"\u05E9\u05B4\u05BC\u05C2"_s, u"i5~v"_s},
        {"two vowels, hiriq last", u"\u05DC\u05B4\u05B7\u05DD"_s, u"7i1l"_s},
        {"finals", u"\u05DA\u05DD\u05DF\u05E3\u05E5"_s, u"09876"_s},
        {"vav with holam, maqaf", u"\u05D0\u05D5\u05B9\u05BE\u05D1"_s, u"b-owa"_s},
        {"blank and sof pasuq", u"\u05D0\u05D1 \u05D2\u05C3"_s, u":g ba"_s},
        {"qere in brackets", u"\u05D0 [\u05D1]"_s, u"[b] a"_s},
    };
    for (const WordRow& row : rows) {
        SCOPED_TRACE(row.name);
        const FontCodes codes = hebrewToCodes(row.unicode, HebrewForm::Pointed);
        EXPECT_EQ(codes.codes, row.codes);
        EXPECT_EQ(codes.unknown, u""_s);
        EXPECT_EQ(hebrewToUnicode(row.codes), row.unicode);
    }
}

TEST(OriginalUnicode, AVerseInCodesReadsFromItsEnd)
{
    const QString reading = u"b5;r2av`iyt b54r4a a#lohiy7 a2t h1v`54m1yi7 w;a2t h4a4r30:"_s;
    const QString stored = u":03r4a4h t2a;w 7iy1m45`v1h t2a 7yihol#a a4r45b tyi`va2r;5b"_s;
    EXPECT_EQ(reversedHebrew(reading), stored);
    const QString unicode = hebrewToUnicode(stored);
    EXPECT_EQ(unicode.split(u' ').first(),
              u"\u05D1\u05B0\u05BC\u05E8\u05B5\u05D0\u05E9\u05B4\u05C1\u05D9\u05EA"_s);
    EXPECT_EQ(unicode.split(u' ').last(), u"\u05D4\u05B8\u05D0\u05B8\u05E8\u05B6\u05E5\u05C3"_s);
    // Read in, the marks take the one order that the font draws.
    const FontCodes again = hebrewToCodes(unicode, HebrewForm::Pointed);
    EXPECT_EQ(again.codes, u":03r4a4h t2a;w 7iy1m45`v1h t2a 7yihol#a a4r45b tyi`va2r;5b"_s);
    EXPECT_EQ(hebrewToCodes(unicode, HebrewForm::Consonants).codes,
              u":0rah taw 7ymvh ta 7yhla arb tyvarb"_s);
    EXPECT_EQ(hebrewConsonants(stored), u":0rah taw 7ymvh ta 7yhla arb tyvarb"_s);
}

TEST(OriginalUnicode, HebrewAccentsAreLeftOutAndStrangersReported)
{
    // Two accents, meteg, rafe, a joiner, a dot above; holam haser and qamats qatan have codes.
    const QString text = u"\u05D0\u0591\u05B8\u05BD\u05BF\u034F\u05AF\u05C4 \u05D5\u05BA"
                         "\u05DB\u05C7"_s;
    const FontCodes codes = hebrewToCodes(text, HebrewForm::Pointed);
    EXPECT_EQ(codes.codes, u"4kow 4a"_s);
    EXPECT_EQ(codes.unknown, u""_s);
    const FontCodes strange = hebrewToCodes(u"\u05D0x\u05F3"_s, HebrewForm::Pointed);
    EXPECT_EQ(strange.codes, u"a"_s);
    EXPECT_EQ(strange.unknown, u"x\u05F3"_s);
    // Composed letters come apart.
    EXPECT_EQ(hebrewToCodes(u"\uFB2A\uFB31"_s, HebrewForm::Pointed).codes, u"5b`v"_s);
}

TEST(OriginalUnicode, DividedHebrewKeepsItsLines)
{
    EXPECT_EQ(hebrewToUnicode(u"ba\r\n[g] d"), u"\u05D0\u05D1\r\n\u05D3 [\u05D2]"_s);
    EXPECT_EQ(hebrewToUnicode(u"=a<^"), u"\u25CC\u05BF\u05D0\u05BD"_s);
    EXPECT_EQ(hebrewToUnicode(u""), u""_s);
}

TEST(OriginalUnicode, GreekWordsGoBothWays)
{
    const WordRow rows[] = {
        {"plain", u"λόγος"_s, u"lo3goj"_s},
        {"breathing and acute", u"ἄλλος"_s, u"a13lloj"_s},
        {"rough breathing on a capital", u"Ῥήματα"_s, u"R2h3mata"_s},
        {"circumflex and iota subscript", u"τῷ"_s, u"tw56"_s},
        {"all three on one letter", u"ᾧ"_s, u"w256"_s},
        {"diaeresis and acute", u"πραΰς"_s, u"prau73j"_s},
        {"grave", u"τὸ φῶς"_s, u"to4 fw5j"_s},
        {"capitals", u"ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ"_s, u"ABGDEZHQIKLMNCOPRSTUFXYW"_s},
        {"signs", u"ὦ, τί; ναί· κατ’ (ἡ) [ὁ]. –"_s, u"w15, ti3; nai3: kat' (h2) [o2]. -"_s},
        {"stigma", u"ϛ"_s, u"v"_s},
    };
    for (const WordRow& row : rows) {
        SCOPED_TRACE(row.name);
        const FontCodes codes = greekToCodes(row.unicode);
        EXPECT_EQ(codes.codes, row.codes);
        EXPECT_EQ(codes.unknown, u""_s);
        EXPECT_EQ(greekToUnicode(row.codes), row.unicode);
    }
}

TEST(OriginalUnicode, GreekTakesOtherWritingsAndReportsStrangers)
{
    // Greek signs for semicolon and middle dot, acute of another block, elision as a letter mark.
    EXPECT_EQ(greekToCodes(u"\u1F71\u037E\u0387\u1FBD\u02BC\u2014").codes, u"a3;:''-"_s);
    const FontCodes strange = greekToCodes(u"αx\u0304");
    EXPECT_EQ(strange.codes, u"a"_s);
    EXPECT_EQ(strange.unknown, u"x\u0304"_s);
    EXPECT_EQ(greekToUnicode(u"3 a8 J"), u"3 α8 J"_s);
}

} // namespace
} // namespace lumen
