// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/greek_morphology.h"
#include "original/strong_dictionaries.h"
#include "text/original/parsing_decoder.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(GreekMorphology, GivesEachTagItsCode)
{
    const struct
    {
        QString tag;
        QString code;
    } cases[] = {
        {u"N-NSM"_s, u"$nnms"_s},
        {u"N-VPF"_s, u"$nvfp"_s},
        {u"N-PRI"_s, u"$tp"_s},
        {u"N-LI"_s, u"$tl"_s},
        {u"A-GPN"_s, u"$agnpn"_s},
        {u"A-NSM-C"_s, u"$anmsc"_s},
        {u"A-ASN-S"_s, u"$aanss"_s},
        {u"A-NUI"_s, u"$tn"_s},
        {u"A-NUI-ABB"_s, u"$tn"_s},
        {u"T-DPM"_s, u"$ddmp"_s},
        {u"P-1GS"_s, u"$rpg-s"_s},
        {u"P-ASM"_s, u"$rpams"_s},
        {u"F-2APM"_s, u"$rxamp"_s},
        {u"S-1SNSM"_s, u"$rsnms"_s},
        {u"X-NSN"_s, u"$rinns"_s},
        {u"V-2AAI-3S"_s, u"$viaa3s"_s},
        {u"V-PAN"_s, u"$vnpa"_s},
        {u"V-PAP-NSM-ATT"_s, u"$vppanms"_s},
        {u"V-RPP-DPN"_s, u"$vpxpdnp"_s},
        {u"V-ADM-2P"_s, u"$vdad2p"_s},
        {u"V-2LAI-1S"_s, u"$viya1s"_s},
        {u"T-PAP-NSM"_s, u"$vppanms"_s},
        {u"ADV"_s, u"$bn"_s},
        {u"ADV-C"_s, u"$bc"_s},
        {u"ADV-N"_s, u"$bn"_s},
        {u"CONJ"_s, u"$qo"_s},
        {u"CONJ-K"_s, u"$qc"_s},
        {u"COND"_s, u"$c"_s},
        {u"COND-K"_s, u"$c"_s},
        {u"PREP"_s, u"$p"_s},
        {u"PRT_N"_s, u"$xn"_s},
        {u"PRT"_s, u"$xo"_s},
        {u"INJ"_s, u"$i"_s},
        {u"ARAM"_s, u"$ta"_s},
        {u"HEB"_s, u"$th"_s},
        {u"Z-NSM"_s, QString()},
        {u""_s, QString()},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.tag.toStdString());
        EXPECT_EQ(parseGreek(one.tag), one.code);
    }
}

TEST(GreekMorphology, CodesReadAsTheyAreMeant)
{
    QString verb = u"("_s + parseGreek(u"V-PAP-NSM"_s) + u")"_s;
    EXPECT_EQ(
        BibleCode::ParsingDecoder(verb),
        u"언어: 헬라어,품사: 동사,법: 분사,시제: 현재,태: 능동태,격: 주격,성: 남성,수: 단수"_s);
    QString pronoun = parseGreek(u"P-1GS"_s);
    EXPECT_EQ(BibleCode::ParsingDecoder(pronoun),
              u"언어: 헬라어,품사: 대명사,구분: 인칭대명사,격: 소유격,수: 단수"_s);
}

TEST(GreekMorphology, ShorterPatternsFindConjunctionsAndParticles)
{
    EXPECT_EQ(greekSearchCodes(u"$nnms"_s), u"($nnms);"_s);
    EXPECT_EQ(greekSearchCodes(u"$qo"_s), u"($qo);($q);($c);"_s);
    EXPECT_EQ(greekSearchCodes(u"$xn"_s), u"($xn);($x);"_s);
    EXPECT_EQ(greekSearchCodes(u"$c"_s), u"($c);"_s);
}

TEST(GreekMorphology, NamesPartsOfSpeechForTheDictionary)
{
    EXPECT_EQ(greekPartOfSpeech(u"$nafs"), u"여성명사"_s);
    EXPECT_EQ(greekPartOfSpeech(u"$na-s"), u"명사"_s);
    EXPECT_EQ(greekPartOfSpeech(u"$tp"), u"고유명사"_s);
    EXPECT_EQ(greekPartOfSpeech(u"$qc"), u"접속사"_s);
    EXPECT_EQ(greekPartOfSpeech(u""), QString());
}

} // namespace
} // namespace lumen
