// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/parsing_decoder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

QString decoded(QString code)
{
    return BibleCode::ParsingDecoder(code);
}

struct Row
{
    QString code;
    QString phrases;
};

void expectRows(std::initializer_list<Row> rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(decoded(row.code), row.phrases) << row.code.toStdString();
}

TEST(ParsingDecoder, FirstCharacterIsTheLanguageAndUnknownPartsOfSpeechEndTheText)
{
    expectRows({
        {u""_s, u"언어: 히브리어/아람어"_s},
        {u"_"_s, u"언어: 히브리어/아람어"_s},
        {u"@"_s, u"언어: 히브리어"_s},
        {u"@y"_s, u"언어: 히브리어"_s},
        {u"@_c"_s, u"언어: 히브리어"_s},
        {u"%"_s, u"언어: 아람어"_s},
        {u"$"_s, u"언어: 헬라어"_s},
        {u"$P"_s, u"언어: 헬라어"_s},
        {u"_n_ms"_s, u"언어: 히브리어/아람어,품사: 명사,성 : 남성,수 : 단수"_s},
    });
}

TEST(ParsingDecoder, HebrewGroupsStandAtTheirPositions)
{
    expectRows({
        {u"@ncmsaS3fpEhH1Rq"_s,
         u"언어: 히브리어,품사: 명사,구분: 일반명사,성 : 남성,수 : 단수,형태: 절대형,접미 인칭: "
         u"3인칭,"
         "접미 성: 여성,접미 수: 복수,어미: 첨가어미 Heh,동음이의어: 1개,읽기: Qere"_s},
        {u"%PsS1bdEdH2Rk"_s, u"언어: 아람어,품사: 불변사 및 기타,구분: 관사 + 비분리 전치사,접미 "
                             u"인칭: 1인칭,접미 성: 양성,"
                             "접미 수: 쌍수,어미: 방향표시어미 Heh,동음이의어: 2개,읽기: Kethib"_s},
        {u"@acdcS2csEnH3R-"_s, u"언어: 히브리어,품사: 형용사,성 : 공성,수 : 쌍수,형태: 연계형,접미 "
                               u"인칭: 2인칭,접미 성: 공성,"
                               "접미 수: 단수,어미: 첨가어미 Nun,동음이의어: 3개,읽기: 미정"_s},
        {u"%vFP2fpdS3msJtCfAaEnH-Rk"_s,
         u"언어: 아람어,품사: 동사,어근: Hithpeel(아람어),상 : 분사,인칭: 2인칭,성 : 여성,수 : "
         u"복수,"
         "형태: 결정형(아람어),접미 인칭: 3인칭,접미 성: 남성,접미 수: 단수,단축형: 형태 및 의미,"
         "연장형: 형태,어미음 소실: 어미음 소실형,어미: 첨가어미 Nun,동음이의어: 없음,읽기: Kethib"_s},
        {u"@pi1cpS---E-H-R-"_s,
         u"언어: 히브리어,품사: 대명사,구분: 독립인칭대명사,인칭: 1인칭,성 : 공성,수 : 복수,"
         "동음이의어: 없음,읽기: 미정"_s},
    });
}

TEST(ParsingDecoder, PatternsYieldOnlyWhatWasChosen)
{
    expectRows({
        {u"@n____S___E_H_R_"_s, u"언어: 히브리어,품사: 명사"_s},
        {u"@n_f__S__pE_H_Rq"_s, u"언어: 히브리어,품사: 명사,성 : 여성,접미 수: 복수,읽기: Qere"_s},
        {u"_v_i___aS___J_C_A_E_H_R_"_s,
         u"언어: 히브리어/아람어,품사: 동사,상 : 미완료,형태: 절대형"_s},
        {u"$v_f_"_s, u"언어: 헬라어,품사: 동사,시제: 미래"_s},
    });
}

TEST(ParsingDecoder, GreekPartsOfSpeechHaveTheirOwnLayouts)
{
    expectRows({
        {u"$nnms"_s, u"언어: 헬라어,품사: 명사,격 : 주격,성 : 남성,수 : 단수"_s},
        {u"$rxgfp"_s, u"언어: 헬라어,품사: 대명사,구분: 재귀대명사,격: 소유격,성: 여성,수: 복수"_s},
        {u"$aafpc"_s, u"언어: 헬라어,품사: 형용사,격: 목적격,성: 여성,수: 복수,급: 비교급"_s},
        {u"$bi"_s, u"언어: 헬라어,품사: 부사,구분: 의문부사"_s},
        {u"$cnms"_s, u"언어: 헬라어,품사: 접속사"_s},
        {u"$nnmd"_s, u"언어: 헬라어,품사: 명사,격 : 주격,성 : 남성"_s},
    });
}

TEST(ParsingDecoder, GreekVerbTellsParticiplesByTheCharactersAlone)
{
    expectRows({
        {u"$viaa1s"_s,
         u"언어: 헬라어,품사: 동사,법: 직설법,시제: 과거,태: 능동태,인칭: 1인칭,수: 단수"_s},
        {u"$vpxpnms"_s,
         u"언어: 헬라어,품사: 동사,법: 분사,시제: 완료,태: 수동태,격: 주격,성: 남성,수: 단수"_s},
        {u"$vnpe"_s, u"언어: 헬라어,품사: 동사,법: 부정사,시제: 현재,태: 중간/수동태"_s},
        {u"$vsyx3p"_s,
         u"언어: 헬라어,품사: 동사,법: 가정법,시제: 과거완료,태: 미정,인칭: 3인칭,수: 복수"_s},
        {u"$viaangs"_s,
         u"언어: 헬라어,품사: 동사,법: 직설법,시제: 과거,태: 능동태,격: 주격,수: 단수"_s},
    });
}

TEST(ParsingDecoder, ParenthesesComeOffTheCallersCode)
{
    QString code = u"($nnms)"_s;
    EXPECT_EQ(BibleCode::ParsingDecoder(code),
              u"언어: 헬라어,품사: 명사,격 : 주격,성 : 남성,수 : 단수"_s);
    EXPECT_EQ(code, u"$nnms"_s);

    // The first and the last character go, whatever they are; what is left may be nothing.
    for (const auto& [given, left] : {std::pair{u"($nnms"_s, u"$nnm"_s},
                                      {u"()"_s, u""_s},
                                      {u"("_s, u""_s},
                                      {u"(xc)"_s, u"xc"_s}}) {
        QString shortened = given;
        BibleCode::ParsingDecoder(shortened);
        EXPECT_EQ(shortened, left) << given.toStdString();
    }
    EXPECT_EQ(decoded(u"(xc)"_s), u"언어: 헬라어,품사: 접속사"_s)
        << "the language is not looked at";

    QString bare = u"$c"_s;
    QString hebrew = u"@(n)"_s;
    BibleCode::ParsingDecoder(bare);
    BibleCode::ParsingDecoder(hebrew);
    EXPECT_EQ(bare, u"$c"_s);
    EXPECT_EQ(hebrew, u"@(n)"_s);
}

} // namespace
} // namespace lumen
