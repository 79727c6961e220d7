// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/hebrew_morphology.h"
#include "text/original/parsing_decoder.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

struct MorphCase
{
    const char* what;
    QString morph;
    QString lemma;
    QString code;
    int strong;
    QString consonants = {};
    Reading reading = Reading::Plain;
};

TEST(HebrewMorphology, GivesEachKindOfWordItsCode)
{
    const MorphCase cases[] = {
        {"common noun", u"HNcfsa"_s, u"7225"_s, u"@ncfsaS---E-H-R-"_s, 7225},
        {"noun of common gender", u"HNcbpc"_s, u"6440"_s, u"@ncbpcS---E-H-R-"_s, 6440},
        {"name", u"HNp"_s, u"85"_s, u"@np---S---E-H-R-"_s, 85},
        {"tribe as a noun", u"HNgmsa"_s, u"3569"_s, u"@ngmsaS---E-H-R-"_s, 3569},
        {"tribe as an adjective", u"HAgfsa"_s, u"4125"_s, u"@ngfsaS---E-H-R-"_s, 4125},
        {"adjective", u"HAampc"_s, u"1419 a"_s, u"@ampcS---E-H1R-"_s, 1419},
        {"number", u"HAcfsa"_s, u"259"_s, u"@afsaS---E-H-R-"_s, 259},
        {"suffix of a noun", u"HNcmsc/Sp3ms"_s, u"168"_s, u"@ncmscS3msE-H-R-"_s, 168},
        {"pronoun as a suffix", u"HNcmsc/Pp3mp"_s, u"168"_s, u"@ncmscS3mpE-H-R-"_s, 168},
        {"ending of direction", u"HNcbsa/Sd"_s, u"776"_s, u"@ncbsaS---EdH-R-"_s, 776},
        {"perfect", u"HVqp3ms"_s, u"1254 a"_s, u"@vqp3ms-S---J-C-A.E-H1R-"_s, 1254},
        {"fourth homonym", u"HVqp3ms"_s, u"1 d"_s, u"@vqp3ms-S---J-C-A.E-H3R-"_s, 1},
        {"jussive", u"HVhj3ms"_s, u"1"_s, u"@vhi3ms-S---JmC-A.E-H-R-"_s, 1},
        {"long cohortative", u"HVqh1cs"_s, u"1"_s, u"@vqi1cs-S---J-CtA.E-H-R-"_s, 1, u"arah"_s},
        {"short cohortative", u"HVqh1cs"_s, u"1"_s, u"@vqi1cs-S---J-CmA.E-H-R-"_s, 1, u"ara"_s},
        {"participle", u"HVprmsc"_s, u"1"_s, u"@vpP-mscS---J-C-A.E-H-R-"_s, 1},
        {"passive participle", u"HVqsfpa"_s, u"1"_s, u"@vqs-fpaS---J-C-A.E-H-R-"_s, 1},
        {"passive participle of a stem without one", u"HVPsmsa"_s, u"1"_s,
         u"@vuP-msaS---J-C-A.E-H-R-"_s, 1},
        {"infinitive with suffix", u"HVqc/Sp2fs"_s, u"1"_s, u"@vqc----S2fsJ-C-A.E-H-R-"_s, 1},
        {"paragogic nun", u"HVqi3mp/Sn"_s, u"1"_s, u"@vqi3mp-S---J.C-A.EnH-R-"_s, 1},
        {"pronoun", u"HPp3fs"_s, u"1931"_s, u"@pi3fsS---E-H-R-"_s, 1931},
        {"demonstrative", u"HPdxms"_s, u"2088"_s, u"@p--msS---E-H-R-"_s, 2088},
        {"who", u"HTi"_s, u"4310"_s, u"@pq---S---E-H-R-"_s, 4310},
        {"the asking particle", u"HTi"_s, u"999"_s, u"@PgS---E-H-R-"_s, 999},
        {"object sign with suffix", u"HTo/Sp3mp"_s, u"853"_s, u"@PoS3mpE-H-R-"_s, 853},
        {"relative", u"HTr"_s, u"834 a"_s, u"@PrS---E-H1R-"_s, 834},
        {"adverb", u"HD"_s, u"8033"_s, u"@PdS---E-H-R-"_s, 8033},
        {"Aramaic emphatic", u"ANcmsd/Td"_s, u"4430"_s, u"%ncmsdS---E-H-R-"_s, 4430},
        {"Aramaic stem", u"AVhp3ms"_s, u"1"_s, u"%vBp3ms-S---J-C-A.E-H-R-"_s, 1},
        {"Aramaic what", u"APi"_s, u"4101"_s, u"%pq---S---E-H-R-"_s, 4101},
        {"ketiv", u"HNcmsa"_s, u"168"_s, u"@ncmsaS---E-H-Rk"_s, 168, {}, Reading::Ketiv},
        {"qere", u"HNcmsa"_s, u"168"_s, u"@ncmsaS---E-H-Rq"_s, 168, {}, Reading::Qere},
        {"part of a name", u"HNp"_s, u"1008+"_s, u"@np---S---E-H-R-"_s, 1008},
    };
    for (const MorphCase& one : cases) {
        SCOPED_TRACE(one.what);
        const HebrewParsing parsing =
            parseHebrew(one.morph, one.lemma, one.consonants, one.reading);
        EXPECT_EQ(parsing.code, one.code);
        EXPECT_EQ(parsing.strong, one.strong);
        EXPECT_EQ(parsing.prefixes, QStringList());
    }
}

TEST(HebrewMorphology, GivesPrefixesCodesOfTheirOwn)
{
    const HebrewParsing parsing =
        parseHebrew(u"HC/Rd/Ncfsa"_s, u"c/b/929"_s, u"wbbhmh"_s, Reading::Qere);
    EXPECT_EQ(parsing.prefixes, QStringList({u"@PcS---E-H-Rq"_s, u"@PsS---E-H-Rq"_s}));
    EXPECT_EQ(parsing.code, u"@ncfsaS---E-H-Rq"_s);
    EXPECT_EQ(parsing.strong, 929);
}

TEST(HebrewMorphology, TakesAPrepositionWithAPronounAsOneWordWithoutNumber)
{
    const HebrewParsing parsing = parseHebrew(u"HR/Sp1cs"_s, u"l"_s, u"ly"_s, Reading::Plain);
    EXPECT_EQ(parsing.code, u"@PpS1csE-H-R-"_s);
    EXPECT_EQ(parsing.strong, 0);
    EXPECT_TRUE(parsing.prefixes.isEmpty());
}

TEST(HebrewMorphology, CodesReadAsTheyAreMeant)
{
    QString verb = parseHebrew(u"HVqw3ms"_s, u"559"_s, u"wyamr"_s, Reading::Plain).code;
    EXPECT_EQ(BibleCode::ParsingDecoder(verb),
              u"언어: 히브리어,품사: 동사,어근: Qal,상 : 와우계속,인칭: 3인칭,성 : 남성,수 : 단수,"
              "연장형: 연장형 아님,"
              "동음이의어: 없음,읽기: 미정"_s);
    QString mark = hebrewMarkCode(true);
    EXPECT_EQ(BibleCode::ParsingDecoder(mark), u"언어: 아람어,품사: 문단구분자"_s);
}

} // namespace
} // namespace lumen
