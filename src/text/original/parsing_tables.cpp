// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/parsing_tables.h"

#include <array>

namespace lumen {
namespace {

constexpr std::array kLanguages{ParsingValue{u'@', u"언어: 히브리어"},
                                ParsingValue{u'%', u"언어: 아람어"}};

// Hebrew and Aramaic.

constexpr std::array kNounKind{ParsingValue{u'c', u",구분: 일반명사"},
                               ParsingValue{u'p', u",구분: 고유명사"},
                               ParsingValue{u'g', u",구분: 인종표시명사"}};

constexpr std::array kParticleKind{
    ParsingValue{u'a', u",구분: 관사"},   ParsingValue{u's', u",구분: 관사 + 비분리 전치사"},
    ParsingValue{u'c', u",구분: 접속사"}, ParsingValue{u'd', u",구분: 부사"},
    ParsingValue{u'g', u",구분: 의문사"}, ParsingValue{u'i', u",구분: 감탄사"},
    ParsingValue{u'n', u",구분: 부정어"}, ParsingValue{u'o', u",구분: 직접목적어표시어"},
    ParsingValue{u'p', u",구분: 전치사"}, ParsingValue{u'r', u",구분: 관계사"}};

constexpr std::array kPronounKind{ParsingValue{u'i', u",구분: 독립인칭대명사"},
                                  ParsingValue{u'q', u",구분: 의문대명사"}};

// The sets of genders differ on purpose: a noun has no common gender, a verb no "both".
constexpr std::array kNounGender{ParsingValue{u'm', u",성 : 남성"},
                                 ParsingValue{u'f', u",성 : 여성"},
                                 ParsingValue{u'b', u",성 : 양성"}};

constexpr std::array kAdjectiveGender{
    ParsingValue{u'm', u",성 : 남성"}, ParsingValue{u'f', u",성 : 여성"},
    ParsingValue{u'b', u",성 : 양성"}, ParsingValue{u'c', u",성 : 공성"}};

constexpr std::array kVerbGender{ParsingValue{u'm', u",성 : 남성"},
                                 ParsingValue{u'f', u",성 : 여성"},
                                 ParsingValue{u'c', u",성 : 공성"}};

constexpr std::array kNumber{ParsingValue{u's', u",수 : 단수"}, ParsingValue{u'p', u",수 : 복수"},
                             ParsingValue{u'd', u",수 : 쌍수"}};

constexpr std::array kState{ParsingValue{u'c', u",형태: 연계형"},
                            ParsingValue{u'd', u",형태: 결정형(아람어)"},
                            ParsingValue{u'a', u",형태: 절대형"}};

constexpr std::array kPerson{ParsingValue{u'1', u",인칭: 1인칭"},
                             ParsingValue{u'2', u",인칭: 2인칭"},
                             ParsingValue{u'3', u",인칭: 3인칭"}};

constexpr std::array kSuffixPerson{ParsingValue{u'1', u",접미 인칭: 1인칭"},
                                   ParsingValue{u'2', u",접미 인칭: 2인칭"},
                                   ParsingValue{u'3', u",접미 인칭: 3인칭"}};

constexpr std::array kSuffixGender{
    ParsingValue{u'm', u",접미 성: 남성"}, ParsingValue{u'f', u",접미 성: 여성"},
    ParsingValue{u'b', u",접미 성: 양성"}, ParsingValue{u'c', u",접미 성: 공성"}};

constexpr std::array kSuffixNumber{ParsingValue{u's', u",접미 수: 단수"},
                                   ParsingValue{u'p', u",접미 수: 복수"},
                                   ParsingValue{u'd', u",접미 수: 쌍수"}};

constexpr std::array kEnding{ParsingValue{u'h', u",어미: 첨가어미 Heh"},
                             ParsingValue{u'd', u",어미: 방향표시어미 Heh"},
                             ParsingValue{u'n', u",어미: 첨가어미 Nun"}};

// In five tables "-" is a value of its own.
constexpr std::array kHomonym{
    ParsingValue{u'-', u",동음이의어: 없음"}, ParsingValue{u'1', u",동음이의어: 1개"},
    ParsingValue{u'2', u",동음이의어: 2개"}, ParsingValue{u'3', u",동음이의어: 3개"}};

constexpr std::array kReading{ParsingValue{u'q', u",읽기: Qere"},
                              ParsingValue{u'k', u",읽기: Kethib"},
                              ParsingValue{u'-', u",읽기: 미정"}};

constexpr std::array kAspect{
    ParsingValue{u'p', u",상 : 완료"},         ParsingValue{u'i', u",상 : 미완료"},
    ParsingValue{u'w', u",상 : 와우계속"},     ParsingValue{u'v', u",상 : 명령형"},
    ParsingValue{u'c', u",상 : 부정사연계형"}, ParsingValue{u'a', u",상 : 부정사절대형"},
    ParsingValue{u'P', u",상 : 분사"},         ParsingValue{u's', u",상 : Qal 수동분사"}};

constexpr std::array kShortened{
    ParsingValue{u'f', u",단축형: 형태"}, ParsingValue{u'm', u",단축형: 의미"},
    ParsingValue{u't', u",단축형: 형태 및 의미"}, ParsingValue{u'-', u",단축형: 단축형 아님"}};

constexpr std::array kLengthened{
    ParsingValue{u'f', u",연장형: 형태"}, ParsingValue{u'm', u",연장형: 의미"},
    ParsingValue{u't', u",연장형: 형태 및 의미"}, ParsingValue{u'-', u",연장형: 연장형 아님"}};

constexpr std::array kFinalLoss{ParsingValue{u'a', u",어미음 소실: 어미음 소실형"},
                                ParsingValue{u'-', u",어미음 소실: 소실형 아님"}};

// Upper-case letters are the Aramaic stems.
constexpr std::array kStem{ParsingValue{u'q', u",어근: Qal"},
                           ParsingValue{u'p', u",어근: Piel"},
                           ParsingValue{u'u', u",어근: Pual"},
                           ParsingValue{u'n', u",어근: Niphal"},
                           ParsingValue{u'h', u",어근: Hiphil"},
                           ParsingValue{u'o', u",어근: Hophal"},
                           ParsingValue{u't', u",어근: Hithpael"},
                           ParsingValue{u's', u",어근: Hishtaphel"},
                           ParsingValue{u'r', u",어근: Hothpaal"},
                           ParsingValue{u'v', u",어근: Hithpolel"},
                           ParsingValue{u'w', u",어근: Hithpalpel"},
                           ParsingValue{u'x', u",어근: Nithpael"},
                           ParsingValue{u'a', u",어근: Palel"},
                           ParsingValue{u'b', u",어근: Pealal"},
                           ParsingValue{u'c', u",어근: Pilel"},
                           ParsingValue{u'd', u",어근: Pilpel"},
                           ParsingValue{u'e', u",어근: Polel"},
                           ParsingValue{u'f', u",어근: Polal"},
                           ParsingValue{u'g', u",어근: Polpal"},
                           ParsingValue{u'i', u",어근: Pulal"},
                           ParsingValue{u'y', u",어근: Qal pass"},
                           ParsingValue{u'k', u",어근: Poel"},
                           ParsingValue{u'l', u",어근: Poal"},
                           ParsingValue{u'm', u",어근: Tiphil"},
                           ParsingValue{u'A', u",어근: Aphel(아람어)"},
                           ParsingValue{u'B', u",어근: Haphel(아람어)"},
                           ParsingValue{u'H', u",어근: Hishtaphel(아람어)"},
                           ParsingValue{u'E', u",어근: Hithaphel(아람어)"},
                           ParsingValue{u'S', u",어근: Hithpaal(아람어)"},
                           ParsingValue{u'F', u",어근: Hithpeel(아람어)"},
                           ParsingValue{u'G', u",어근: Hithpolel(아람어)"},
                           ParsingValue{u'T', u",어근: Hithpalpel(아람어)"},
                           ParsingValue{u'I', u",어근: Ishtaphel(아람어)"},
                           ParsingValue{u'J', u",어근: Ithpeel(아람어)"},
                           ParsingValue{u'P', u",어근: Polel(아람어)"},
                           ParsingValue{u'R', u",어근: Shaphel(아람어)"},
                           ParsingValue{u'N', u",어근: Peal(아람어)"},
                           ParsingValue{u'M', u",어근: Pael(아람어)"},
                           ParsingValue{u'O', u",어근: Peil(아람어)"},
                           ParsingValue{u'D', u",어근: Hophal(아람어)"},
                           ParsingValue{u'Q', u",어근: Saphal(아람어)"},
                           ParsingValue{u'K', u",어근: Ithpaal(아람어)"},
                           ParsingValue{u'V', u",어근: Ithpoel(아람어)"},
                           ParsingValue{u'L', u",어근: Itpeel(아람어)"},
                           ParsingValue{u'W', u",어근: Tiphel(아람어)"},
                           ParsingValue{u'C', u",어근: Hephal(아람어)"}};

// Greek.

// The Greek noun alone has a blank before the colon in case, gender and number.
constexpr std::array kGreekNounCase{
    ParsingValue{u'n', u",격 : 주격"}, ParsingValue{u'g', u",격 : 소유격"},
    ParsingValue{u'd', u",격 : 여격"}, ParsingValue{u'a', u",격 : 목적격"},
    ParsingValue{u'v', u",격 : 호격"}};

constexpr std::array kGreekNounGender{ParsingValue{u'm', u",성 : 남성"},
                                      ParsingValue{u'f', u",성 : 여성"},
                                      ParsingValue{u'n', u",성 : 중성"}};

constexpr std::array kGreekNounNumber{ParsingValue{u's', u",수 : 단수"},
                                      ParsingValue{u'p', u",수 : 복수"}};

constexpr std::array kGreekPronounKind{
    ParsingValue{u'r', u",구분: 관계대명사"},      ParsingValue{u'e', u",구분: 상호대명사"},
    ParsingValue{u'd', u",구분: 지시대명사"},      ParsingValue{u'c', u",구분: 상관대명사"},
    ParsingValue{u'q', u",구분: 의문대명사"},      ParsingValue{u'i', u",구분: 부정대명사"},
    ParsingValue{u'o', u",구분: 상관/의문대명사"}, ParsingValue{u'x', u",구분: 재귀대명사"},
    ParsingValue{u's', u",구분: 소유대명사"},      ParsingValue{u'p', u",구분: 인칭대명사"}};

constexpr std::array kGreekCase{
    ParsingValue{u'n', u",격: 주격"}, ParsingValue{u'g', u",격: 소유격"},
    ParsingValue{u'd', u",격: 여격"}, ParsingValue{u'a', u",격: 목적격"},
    ParsingValue{u'v', u",격: 호격"}};

constexpr std::array kGreekGender{ParsingValue{u'm', u",성: 남성"},
                                  ParsingValue{u'f', u",성: 여성"},
                                  ParsingValue{u'n', u",성: 중성"}};

constexpr std::array kGreekNumber{ParsingValue{u's', u",수: 단수"},
                                  ParsingValue{u'p', u",수: 복수"}};

constexpr std::array kMood{ParsingValue{u'p', u",법: 분사"},   ParsingValue{u'n', u",법: 부정사"},
                           ParsingValue{u'i', u",법: 직설법"}, ParsingValue{u'd', u",법: 명령법"},
                           ParsingValue{u's', u",법: 가정법"}, ParsingValue{u'o', u",법: 소원법"}};

constexpr std::array kTense{
    ParsingValue{u'p', u",시제: 현재"},       ParsingValue{u'f', u",시제: 미래"},
    ParsingValue{u'a', u",시제: 과거"},       ParsingValue{u'i', u",시제: 미완료"},
    ParsingValue{u'x', u",시제: 완료"},       ParsingValue{u'y', u",시제: 과거완료"},
    ParsingValue{u'v', u",시제: 부사적 명령"}};

constexpr std::array kVoice{
    ParsingValue{u'a', u",태: 능동태"},        ParsingValue{u'm', u",태: 중간태"},
    ParsingValue{u'p', u",태: 수동태"},        ParsingValue{u'e', u",태: 중간/수동태"},
    ParsingValue{u'd', u",태: 중간디포"},      ParsingValue{u'o', u",태: 수동디포"},
    ParsingValue{u'n', u",태: 중간/수동디포"}, ParsingValue{u'q', u",태: 비인칭능동태"},
    ParsingValue{u'x', u",태: 미정"}};

// The case of a participle or the person of a finite form: the character alone decides.
constexpr std::array kGreekCaseOrPerson{
    ParsingValue{u'n', u",격: 주격"},    ParsingValue{u'g', u",격: 소유격"},
    ParsingValue{u'd', u",격: 여격"},    ParsingValue{u'a', u",격: 목적격"},
    ParsingValue{u'v', u",격: 호격"},    ParsingValue{u'1', u",인칭: 1인칭"},
    ParsingValue{u'2', u",인칭: 2인칭"}, ParsingValue{u'3', u",인칭: 3인칭"}};

constexpr std::array kGreekGenderOrNumber{
    ParsingValue{u'm', u",성: 남성"}, ParsingValue{u'f', u",성: 여성"},
    ParsingValue{u'n', u",성: 중성"}, ParsingValue{u's', u",수: 단수"},
    ParsingValue{u'p', u",수: 복수"}};

constexpr std::array kDegree{ParsingValue{u'c', u",급: 비교급"}, ParsingValue{u's', u",급: 최상급"},
                             ParsingValue{u'n', u",급: 없음"}};

constexpr std::array kAdverbKind{
    ParsingValue{u'c', u",구분: 비교급부사"}, ParsingValue{u's', u",구분: 최상급부사"},
    ParsingValue{u'i', u",구분: 의문부사"}, ParsingValue{u'n', u",구분: 일반부사"}};

constexpr std::array kConjunctionKind{ParsingValue{u'c', u",구분: 단축형"},
                                      ParsingValue{u'o', u",구분: 비단축형"}};

constexpr std::array kPrefixKind{ParsingValue{u'i', u",구분: 의문접두사"},
                                 ParsingValue{u'n', u",구분: 부정접두사"},
                                 ParsingValue{u'o', u",구분: 기타접두사"}};

constexpr std::array kIndeclinableKind{
    ParsingValue{u'a', u",구분: 아람어"},   ParsingValue{u'h', u",구분: 히브리어"},
    ParsingValue{u'n', u",구분: 수사"},     ParsingValue{u'l', u",구분: 문자"},
    ParsingValue{u'p', u",구분: 고유명사"}, ParsingValue{u'o', u",구분: 기타명사"}};

// Where the tables stand in the codes.

constexpr std::array kNounPositions{
    ParsingPosition{3, kNounKind},      ParsingPosition{4, kNounGender},
    ParsingPosition{5, kNumber},        ParsingPosition{6, kState},
    ParsingPosition{8, kSuffixPerson},  ParsingPosition{9, kSuffixGender},
    ParsingPosition{10, kSuffixNumber}, ParsingPosition{12, kEnding},
    ParsingPosition{14, kHomonym},      ParsingPosition{16, kReading}};

constexpr std::array kParticlePositions{
    ParsingPosition{3, kParticleKind}, ParsingPosition{5, kSuffixPerson},
    ParsingPosition{6, kSuffixGender}, ParsingPosition{7, kSuffixNumber},
    ParsingPosition{9, kEnding},       ParsingPosition{11, kHomonym},
    ParsingPosition{13, kReading}};

constexpr std::array kAdjectivePositions{
    ParsingPosition{3, kAdjectiveGender}, ParsingPosition{4, kNumber},
    ParsingPosition{5, kState},           ParsingPosition{7, kSuffixPerson},
    ParsingPosition{8, kSuffixGender},    ParsingPosition{9, kSuffixNumber},
    ParsingPosition{11, kEnding},         ParsingPosition{13, kHomonym},
    ParsingPosition{15, kReading}};

constexpr std::array kVerbPositions{
    ParsingPosition{3, kStem},          ParsingPosition{4, kAspect},
    ParsingPosition{5, kPerson},        ParsingPosition{6, kVerbGender},
    ParsingPosition{7, kNumber},        ParsingPosition{8, kState},
    ParsingPosition{10, kSuffixPerson}, ParsingPosition{11, kSuffixGender},
    ParsingPosition{12, kSuffixNumber}, ParsingPosition{14, kShortened},
    ParsingPosition{16, kLengthened},   ParsingPosition{18, kFinalLoss},
    ParsingPosition{20, kEnding},       ParsingPosition{22, kHomonym},
    ParsingPosition{24, kReading}};

constexpr std::array kPronounPositions{
    ParsingPosition{3, kPronounKind},   ParsingPosition{4, kPerson},
    ParsingPosition{5, kVerbGender},    ParsingPosition{6, kNumber},
    ParsingPosition{8, kSuffixPerson},  ParsingPosition{9, kSuffixGender},
    ParsingPosition{10, kSuffixNumber}, ParsingPosition{12, kEnding},
    ParsingPosition{14, kHomonym},      ParsingPosition{16, kReading}};

constexpr std::array kGreekNounPositions{ParsingPosition{3, kGreekNounCase},
                                         ParsingPosition{4, kGreekNounGender},
                                         ParsingPosition{5, kGreekNounNumber}};

constexpr std::array kGreekPronounPositions{
    ParsingPosition{3, kGreekPronounKind}, ParsingPosition{4, kGreekCase},
    ParsingPosition{5, kGreekGender}, ParsingPosition{6, kGreekNumber}};

constexpr std::array kGreekArticlePositions{ParsingPosition{3, kGreekCase},
                                            ParsingPosition{4, kGreekGender},
                                            ParsingPosition{5, kGreekNumber}};

constexpr std::array kGreekVerbPositions{ParsingPosition{3, kMood},
                                         ParsingPosition{4, kTense},
                                         ParsingPosition{5, kVoice},
                                         ParsingPosition{6, kGreekCaseOrPerson},
                                         ParsingPosition{7, kGreekGenderOrNumber},
                                         ParsingPosition{8, kGreekNumber}};

constexpr std::array kGreekAdjectivePositions{
    ParsingPosition{3, kGreekCase}, ParsingPosition{4, kGreekGender},
    ParsingPosition{5, kGreekNumber}, ParsingPosition{6, kDegree}};

constexpr std::array kGreekAdverbPositions{ParsingPosition{3, kAdverbKind}};

constexpr std::array kGreekConjunctionPositions{ParsingPosition{3, kConjunctionKind}};

constexpr std::array kGreekPrefixPositions{ParsingPosition{3, kPrefixKind}};

constexpr std::array kGreekIndeclinablePositions{ParsingPosition{3, kIndeclinableKind}};

constexpr std::array kSemitic{ParsingLayout{u'n', u",품사: 명사", kNounPositions},
                              ParsingLayout{u'P', u",품사: 불변사 및 기타", kParticlePositions},
                              ParsingLayout{u'a', u",품사: 형용사", kAdjectivePositions},
                              ParsingLayout{u'v', u",품사: 동사", kVerbPositions},
                              ParsingLayout{u'p', u",품사: 대명사", kPronounPositions},
                              ParsingLayout{u'x', u",품사: 문단구분자", {}}};

constexpr std::array kGreek{
    ParsingLayout{u'n', u",품사: 명사", kGreekNounPositions},
    ParsingLayout{u'r', u",품사: 대명사", kGreekPronounPositions},
    ParsingLayout{u'd', u",품사: 정관사", kGreekArticlePositions},
    ParsingLayout{u'v', u",품사: 동사", kGreekVerbPositions},
    ParsingLayout{u'a', u",품사: 형용사", kGreekAdjectivePositions},
    ParsingLayout{u'b', u",품사: 부사", kGreekAdverbPositions},
    ParsingLayout{u'c', u",품사: 접속사", {}},
    ParsingLayout{u'p', u",품사: 전치사", {}},
    ParsingLayout{u'q', u",품사: 접속사/접속접두사", kGreekConjunctionPositions},
    ParsingLayout{u'x', u",품사: 접두사/분리접두사", kGreekPrefixPositions},
    ParsingLayout{u't', u",품사: 불변사", kGreekIndeclinablePositions},
    ParsingLayout{u'i', u",품사: 감탄사", {}}};

// A phrase joins with its own comma and holds no other, as callers split at commas; a character
// stands once in a table, a position once in a layout.
constexpr bool isSound(ParsingTable table)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        const QStringView phrase = table[i].phrase;
        if (phrase.front() != u',')
            return false;
        for (qsizetype at = 1; at < phrase.size(); ++at)
            if (phrase[at] == u',')
                return false;
        for (std::size_t k = 0; k < i; ++k)
            if (table[k].character == table[i].character)
                return false;
    }
    return true;
}

constexpr bool areSound(std::span<const ParsingLayout> layouts)
{
    for (const ParsingLayout& layout : layouts) {
        qsizetype last = 2;
        for (const ParsingPosition& position : layout.positions) {
            if (position.position <= last || !isSound(position.table))
                return false;
            last = position.position;
        }
    }
    return true;
}
static_assert(areSound(kSemitic) && areSound(kGreek));

} // namespace

constinit const ParsingTable kSemiticLanguages{kLanguages};
constinit const std::span<const ParsingLayout> kSemiticLayouts{kSemitic};
constinit const std::span<const ParsingLayout> kGreekLayouts{kGreek};

} // namespace lumen
