// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/glosses/korean_pronunciation.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(KoreanPronunciation, SpellsHebrewWords)
{
    const struct
    {
        QString spelling;
        QString korean;
    } cases[] = {
        {u"ʼĕlôhîym"_s, u"엘로힘"_s},  {u"shâlôwm"_s, u"샬롬"_s},    {u"tôwrâh"_s, u"토라"_s},
        {u"chêçêd"_s, u"헤세드"_s},    {u"Yᵉhôvâh"_s, u"예호바"_s},  {u"ʻôwlâm"_s, u"올람"_s},
        {u"Dâvid"_s, u"다비드"_s},     {u"rêʼshîyth"_s, u"레싯"_s},  {u"ʼabbâʼ"_s, u"압바"_s},
        {u"ʼĂdônây"_s, u"아도나이"_s}, {u"bêyth ʼêl"_s, u"벳 엘"_s}, {u"Bêyth-ʼĔl"_s, u"벳-엘"_s},
        {u"ʼêsh"_s, u"에시"_s},        {u"rûwach"_s, u"루아흐"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.spelling.toStdString());
        EXPECT_EQ(koreanFromHebrew(one.spelling), one.korean);
    }
}

TEST(KoreanPronunciation, SpellsGreekWords)
{
    const struct
    {
        QString spelling;
        QString korean;
    } cases[] = {
        {u"agápē"_s, u"아가페"_s},        {u"ekklēsía"_s, u"엑클레시아"_s},
        {u"Christós"_s, u"크리스토스"_s}, {u"psychḗ"_s, u"프쉬케"_s},
        {u"dýnamis"_s, u"뒤나미스"_s},    {u"pneûma"_s, u"프네우마"_s},
        {u"ángelos"_s, u"앙겔로스"_s},    {u"doûlos"_s, u"둘로스"_s},
        {u"huiós"_s, u"휘오스"_s},        {u"rhabbí"_s, u"랍비"_s},
        {u"xýlon"_s, u"크쉴론"_s},        {u"éxō"_s, u"엑소"_s},
        {u"Pétros"_s, u"페트로스"_s},     {u"paráklētos"_s, u"파라클레토스"_s},
        {u"Abraám"_s, u"아브라암"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.spelling.toStdString());
        EXPECT_EQ(koreanFromGreek(one.spelling), one.korean);
    }
}

} // namespace
} // namespace lumen
