// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/wizard/parsing_pages.h"

#include "search/wizard/parsing_grammar.h"

#include <algorithm>
#include <array>

namespace lumen {
namespace {

constexpr std::array kNounKinds{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"일반명사", u'c'},
                                ParsingChoice{u"고유명사", u'p'},
                                ParsingChoice{u"인종표시명사", u'g'}};

constexpr std::array kPronounKinds{ParsingChoice{u"모두", u'_'},
                                   ParsingChoice{u"독립인칭대명사", u'i'},
                                   ParsingChoice{u"의문대명사", u'q'}};

constexpr std::array kParticleKinds{ParsingChoice{u"모두", u'_'},
                                    ParsingChoice{u"관사", u'a'},
                                    ParsingChoice{u"관사 + 비분리 전치사", u's'},
                                    ParsingChoice{u"접속사", u'c'},
                                    ParsingChoice{u"부사", u'd'},
                                    ParsingChoice{u"의문사", u'g'},
                                    ParsingChoice{u"감탄사", u'i'},
                                    ParsingChoice{u"부정어", u'n'},
                                    ParsingChoice{u"직접 목적어 표시어", u'o'},
                                    ParsingChoice{u"전치사", u'p'},
                                    ParsingChoice{u"관계사", u'r'}};

constexpr std::array kNounGenders{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"남성", u'm'},
                                  ParsingChoice{u"여성", u'f'}, ParsingChoice{u"양성", u'b'}};

constexpr std::array kVerbGenders{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"남성", u'm'},
                                  ParsingChoice{u"여성", u'f'}, ParsingChoice{u"공성", u'c'}};

constexpr std::array kAllGenders{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"남성", u'm'},
                                 ParsingChoice{u"여성", u'f'}, ParsingChoice{u"양성", u'b'},
                                 ParsingChoice{u"공성", u'c'}};

constexpr std::array kNumbers{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"단수", u's'},
                              ParsingChoice{u"복수", u'p'}, ParsingChoice{u"쌍수", u'd'}};

constexpr std::array kStates{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"연계형", u'c'},
                             ParsingChoice{u"결정형(아람어)", u'd'},
                             ParsingChoice{u"절대형", u'a'}};

constexpr std::array kPersons{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"1인칭", u'1'},
                              ParsingChoice{u"2인칭", u'2'}, ParsingChoice{u"3인칭", u'3'}};

constexpr std::array kEndings{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"첨가어미 Heh", u'h'},
                              ParsingChoice{u"방향표시어미 Heh", u'd'},
                              ParsingChoice{u"첨가어미 Nun", u'n'}};

// "-" is a value of the codes, not an open position.
constexpr std::array kHomonyms{ParsingChoice{u"모두(설정 않음)", u'_'},
                               ParsingChoice{u"없음", u'-'}, ParsingChoice{u"1개", u'1'},
                               ParsingChoice{u"2개", u'2'}, ParsingChoice{u"3개", u'3'}};

constexpr std::array kReadings{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"Qere", u'q'},
                               ParsingChoice{u"Kethib", u'k'}, ParsingChoice{u"미정", u'-'}};

constexpr std::array kAspects{
    ParsingChoice{u"모두", u'_'},          ParsingChoice{u"완료", u'p'},
    ParsingChoice{u"미완료", u'i'},        ParsingChoice{u"와우계속", u'w'},
    ParsingChoice{u"명령형", u'v'},        ParsingChoice{u"부정사 연계형", u'c'},
    ParsingChoice{u"부정사 절대형", u'a'}, ParsingChoice{u"분사", u'P'},
    ParsingChoice{u"Qal 수동분사", u's'}};

constexpr std::array kShortForms{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"형태", u'f'},
                                 ParsingChoice{u"의미", u'm'}, ParsingChoice{u"형태 및 의미", u't'},
                                 ParsingChoice{u"단축형 아님", u'-'}};

constexpr std::array kLongForms{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"형태", u'f'},
                                ParsingChoice{u"의미", u'm'}, ParsingChoice{u"형태 및 의미", u't'},
                                ParsingChoice{u"연장형 아님", u'-'}};

constexpr std::array kFinalLosses{ParsingChoice{u"모두", u'_'},
                                  ParsingChoice{u"어미음 소실형", u'a'},
                                  ParsingChoice{u"어미음 소실형 아님", u'-'}};

// Upper-case letters are the Aramaic stems.
constexpr std::array kStems{ParsingChoice{u"모두", u'_'},
                            ParsingChoice{u"Qal", u'q'},
                            ParsingChoice{u"Piel", u'p'},
                            ParsingChoice{u"Pual", u'u'},
                            ParsingChoice{u"Niphal", u'n'},
                            ParsingChoice{u"Hiphil", u'h'},
                            ParsingChoice{u"Hophal", u'o'},
                            ParsingChoice{u"Hithpael", u't'},
                            ParsingChoice{u"Hishtaphel", u's'},
                            ParsingChoice{u"Hothpaal", u'r'},
                            ParsingChoice{u"Hithpolel", u'v'},
                            ParsingChoice{u"Hithpalpel", u'w'},
                            ParsingChoice{u"Nithpael", u'x'},
                            ParsingChoice{u"Palel", u'a'},
                            ParsingChoice{u"Pealal", u'b'},
                            ParsingChoice{u"Pilel", u'c'},
                            ParsingChoice{u"Pilpel", u'd'},
                            ParsingChoice{u"Polel", u'e'},
                            ParsingChoice{u"Polal", u'f'},
                            ParsingChoice{u"Polpal", u'g'},
                            ParsingChoice{u"Pulal", u'i'},
                            ParsingChoice{u"Qal pass", u'y'},
                            ParsingChoice{u"Poel", u'k'},
                            ParsingChoice{u"Poal", u'l'},
                            ParsingChoice{u"Tiphil", u'm'},
                            ParsingChoice{u"Aphel(아람어)", u'A'},
                            ParsingChoice{u"Haphel(아람어)", u'B'},
                            ParsingChoice{u"Hishtaphel(아람어)", u'H'},
                            ParsingChoice{u"Hithaphel(아람어)", u'E'},
                            ParsingChoice{u"Hithpaal(아람어)", u'S'},
                            ParsingChoice{u"Hithpeel(아람어)", u'F'},
                            ParsingChoice{u"Hithpolel(아람어)", u'G'},
                            ParsingChoice{u"Hithpalpel(아람어)", u'T'},
                            ParsingChoice{u"Ishtaphel(아람어)", u'I'},
                            ParsingChoice{u"Ithpeel(아람어)", u'J'},
                            ParsingChoice{u"Polel(아람어)", u'P'},
                            ParsingChoice{u"Shaphel(아람어)", u'R'},
                            ParsingChoice{u"Peal(아람어)", u'N'},
                            ParsingChoice{u"Pael(아람어)", u'M'},
                            ParsingChoice{u"Peil(아람어)", u'O'},
                            ParsingChoice{u"Hophal(아람어)", u'D'},
                            ParsingChoice{u"Saphal(아람어)", u'Q'},
                            ParsingChoice{u"Ithpaal(아람어)", u'K'},
                            ParsingChoice{u"Ithpoel(아람어)", u'V'},
                            ParsingChoice{u"Itpeel(아람어)", u'L'},
                            ParsingChoice{u"Tiphel(아람어)", u'W'},
                            ParsingChoice{u"Hephal(아람어)", u'C'}};

constexpr std::array kGreekCases{ParsingChoice{u"모두", u'_'},   ParsingChoice{u"주격", u'n'},
                                 ParsingChoice{u"소유격", u'g'}, ParsingChoice{u"여격", u'd'},
                                 ParsingChoice{u"목적격", u'a'}, ParsingChoice{u"호격", u'v'}};

constexpr std::array kGreekGenders{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"남성", u'm'},
                                   ParsingChoice{u"여성", u'f'}, ParsingChoice{u"중성", u'n'}};

constexpr std::array kGreekNumbers{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"단수", u's'},
                                   ParsingChoice{u"복수", u'p'}};

constexpr std::array kGreekPronounKinds{
    ParsingChoice{u"모두", u'_'},       ParsingChoice{u"관계대명사", u'r'},
    ParsingChoice{u"상호대명사", u'e'}, ParsingChoice{u"지시대명사", u'd'},
    ParsingChoice{u"상관대명사", u'c'}, ParsingChoice{u"의문대명사", u'q'},
    ParsingChoice{u"부정대명사", u'i'}, ParsingChoice{u"상관/의문대명사", u'o'},
    ParsingChoice{u"재귀대명사", u'x'}, ParsingChoice{u"소유대명사", u's'},
    ParsingChoice{u"인칭대명사", u'p'}};

constexpr std::array kDegrees{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"비교급", u'c'},
                              ParsingChoice{u"최상급", u's'}, ParsingChoice{u"없음", u'n'}};

constexpr std::array kMoods{ParsingChoice{u"분사", u'p'},   ParsingChoice{u"부정사", u'n'},
                            ParsingChoice{u"직설법", u'i'}, ParsingChoice{u"명령법", u'd'},
                            ParsingChoice{u"가정법", u's'}, ParsingChoice{u"소원법", u'o'}};

constexpr std::array kTenses{ParsingChoice{u"모두", u'_'},     ParsingChoice{u"현재", u'p'},
                             ParsingChoice{u"미래", u'f'},     ParsingChoice{u"과거", u'a'},
                             ParsingChoice{u"미완료", u'i'},   ParsingChoice{u"완료", u'x'},
                             ParsingChoice{u"과거완료", u'y'}, ParsingChoice{u"부사적 명령", u'v'}};

constexpr std::array kVoices{
    ParsingChoice{u"모두", u'_'},          ParsingChoice{u"능동태", u'a'},
    ParsingChoice{u"중간태", u'm'},        ParsingChoice{u"수동태", u'p'},
    ParsingChoice{u"중간/수동태", u'e'},   ParsingChoice{u"중간디포", u'd'},
    ParsingChoice{u"수동디포", u'o'},      ParsingChoice{u"중간/수동디포", u'n'},
    ParsingChoice{u"비인칭 능동태", u'q'}, ParsingChoice{u"미정", u'x'}};

// The kind of an adverb never enters the code, which is "any" for all of them.
constexpr std::array kAdverbKinds{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"비교급 부사", u'_'},
                                  ParsingChoice{u"최상급 부사", u'_'},
                                  ParsingChoice{u"의문 부사", u'_'},
                                  ParsingChoice{u"일반 부사", u'_'}};

constexpr std::array kConjunctionKinds{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"단축형", u'c'},
                                       ParsingChoice{u"비단축형", u'o'}};

constexpr std::array kPrefixKinds{ParsingChoice{u"모두", u'_'}, ParsingChoice{u"의문접두사", u'i'},
                                  ParsingChoice{u"부정접두사", u'n'},
                                  ParsingChoice{u"기타접두사", u'o'}};

constexpr std::array kIndeclinableKinds{
    ParsingChoice{u"모두", u'_'},     ParsingChoice{u"아람어", u'a'},
    ParsingChoice{u"히브리어", u'h'}, ParsingChoice{u"수사", u'n'},
    ParsingChoice{u"문자", u'l'},     ParsingChoice{u"고유명사", u'p'},
    ParsingChoice{u"기타명사", u'o'}};

// The lists of the pages. Suffix, ending, homonym and reading close each Hebrew code.

constexpr std::array kMyungsaFields{ParsingField{3, u"cbnGubun", u"구분", kNounKinds},
                                    ParsingField{4, u"cbnSung", u"성", kNounGenders},
                                    ParsingField{5, u"cbnSu", u"수", kNumbers},
                                    ParsingField{6, u"cbnHyungtae", u"형태", kStates},
                                    ParsingField{8, u"cbnsInching", u"접미 인칭", kPersons},
                                    ParsingField{9, u"cbnsSung", u"접미 성", kAllGenders},
                                    ParsingField{10, u"cbnsSu", u"접미 수", kNumbers},
                                    ParsingField{12, u"cbnEomi", u"어미", kEndings},
                                    ParsingField{14, u"cbnDongeum", u"동음이의어", kHomonyms},
                                    ParsingField{16, u"cbnIlgi", u"읽기", kReadings}};

constexpr std::array kDaemyungsaFields{ParsingField{3, u"cbdGubun", u"구분", kPronounKinds},
                                       ParsingField{4, u"cbdInching", u"인칭", kPersons},
                                       ParsingField{5, u"cbdSung", u"성", kVerbGenders},
                                       ParsingField{6, u"cbdSu", u"수", kNumbers},
                                       ParsingField{8, u"cbdsInching", u"접미 인칭", kPersons},
                                       ParsingField{9, u"cbdsSung", u"접미 성", kAllGenders},
                                       ParsingField{10, u"cbdsSu", u"접미 수", kNumbers},
                                       ParsingField{12, u"cbdEomi", u"어미", kEndings},
                                       ParsingField{14, u"cbdDongeum", u"동음이의어", kHomonyms},
                                       ParsingField{16, u"cbdIlgi", u"읽기", kReadings}};

constexpr std::array kHyungyongsaFields{ParsingField{3, u"cbaSung", u"성", kAllGenders},
                                        ParsingField{4, u"cbaSu", u"수", kNumbers},
                                        ParsingField{5, u"cbaHyungtae", u"형태", kStates},
                                        ParsingField{7, u"cbasInching", u"접미 인칭", kPersons},
                                        ParsingField{8, u"cbasSung", u"접미 성", kAllGenders},
                                        ParsingField{9, u"cbasSu", u"접미 수", kNumbers},
                                        ParsingField{11, u"cbaEomi", u"어미", kEndings},
                                        ParsingField{13, u"cbaDongeum", u"동음이의어", kHomonyms},
                                        ParsingField{15, u"cbaIlgi", u"읽기", kReadings}};

constexpr std::array kDongsa1Fields{ParsingField{3, u"cbvEogeun", u"어근", kStems},
                                    ParsingField{4, u"cbvSang", u"상", kAspects},
                                    ParsingField{5, u"cbvInching", u"인칭", kPersons},
                                    ParsingField{6, u"cbvSung", u"성", kVerbGenders},
                                    ParsingField{7, u"cbvSu", u"수", kNumbers},
                                    ParsingField{8, u"cbvHyungtae", u"형태", kStates},
                                    ParsingField{10, u"cbvsInching", u"접미 인칭", kPersons},
                                    ParsingField{11, u"cbvsSung", u"접미 성", kAllGenders},
                                    ParsingField{12, u"cbvsSu", u"접미 수", kNumbers}};

// A module that was taken over from elsewhere may tell more than one of open data: the choices
// stay.
constexpr QStringView kShortFormHint =
    u"공개 원전 자료가 알리는 단축형은 '의미'뿐입니다. 그 밖의 미완료, 와우계속, 명령형은 "
    u"'모두'일 때만 찾습니다.";
constexpr QStringView kFinalLossHint =
    u"공개 원전 자료는 어미음 소실을 알리지 않습니다. 그 자료로 만든 모듈에서는 '모두'가 아니면 "
    u"찾는 절이 없습니다.";

constexpr std::array kDongsa2Fields{
    ParsingField{14, u"cbvsDanchuk", u"단축형", kShortForms, {}, kShortFormHint},
    ParsingField{16, u"cbvsYeonjang", u"연장형", kLongForms},
    ParsingField{18, u"cbvsEomieumsosil", u"어미음 소실", kFinalLosses, {}, kFinalLossHint},
    ParsingField{20, u"cbvsEomi", u"어미", kEndings},
    ParsingField{22, u"cbvsDongeum", u"동음이의어", kHomonyms},
    ParsingField{24, u"cbvsIlgi", u"읽기", kReadings}};

constexpr std::array kBulbyunsaFields{ParsingField{3, u"cbbGubun", u"구분", kParticleKinds},
                                      ParsingField{5, u"cbbsInching", u"접미 인칭", kPersons},
                                      ParsingField{6, u"cbbsSung", u"접미 성", kAllGenders},
                                      ParsingField{7, u"cbbsSu", u"접미 수", kNumbers},
                                      ParsingField{9, u"cbbEomi", u"어미", kEndings},
                                      ParsingField{11, u"cbbDongeum", u"동음이의어", kHomonyms},
                                      ParsingField{13, u"cbbIlgi", u"읽기", kReadings}};

constexpr std::array kNMyungsaFields{ParsingField{3, u"NcbnGyeok", u"격", kGreekCases},
                                     ParsingField{4, u"NcbnSung", u"성", kGreekGenders},
                                     ParsingField{5, u"NcbnSu", u"수", kGreekNumbers}};

constexpr std::array kNDaemyungsaFields{ParsingField{3, u"NcbdGubun", u"구분", kGreekPronounKinds},
                                        ParsingField{4, u"NcbdGyeok", u"격", kGreekCases},
                                        ParsingField{5, u"NcbdSung", u"성", kGreekGenders},
                                        ParsingField{6, u"NcbdSu", u"수", kGreekNumbers}};

constexpr std::array kNJungguansaFields{ParsingField{3, u"NcbjGyeok", u"격", kGreekCases},
                                        ParsingField{4, u"NcbjSung", u"성", kGreekGenders},
                                        ParsingField{5, u"NcbjSu", u"수", kGreekNumbers}};

constexpr std::array kNDongsaFields{ParsingField{3, u"NcbvBup", u"법", kMoods},
                                    ParsingField{4, u"NcbvSije", u"시제", kTenses},
                                    ParsingField{5, u"NcbvTae", u"태", kVoices},
                                    ParsingField{6, u"NcbvGyeok", u"격", kGreekCases},
                                    ParsingField{7, u"NcbvSung", u"성", kGreekGenders},
                                    ParsingField{8, u"NcbvSu", u"수", kGreekNumbers},
                                    ParsingField{6, u"NcbvInching", u"인칭", kPersons}};

constexpr std::array kNHyungyongsaFields{ParsingField{3, u"NcbaGyeok", u"격", kGreekCases},
                                         ParsingField{4, u"NcbaSung", u"성", kGreekGenders},
                                         ParsingField{5, u"NcbaSu", u"수", kGreekNumbers},
                                         ParsingField{6, u"NcbaGeup", u"급", kDegrees}};

constexpr std::array kNBusaFields{ParsingField{3, u"NcbbGubun", u"구분", kAdverbKinds, u"Label81"}};

constexpr std::array kNJupsokJupdusaFields{
    ParsingField{3, u"NcbqGubun", u"구분", kConjunctionKinds}};

constexpr std::array kNBunlyJupdusaFields{ParsingField{3, u"NcbxGubun", u"구분", kPrefixKinds}};

constexpr std::array kNBulbyunsaFields{ParsingField{3, u"NcbtGubun", u"구분", kIndeclinableKinds}};

constexpr std::array kNounMarkers{ParsingMarker{7, u'S'}, ParsingMarker{11, u'E'},
                                  ParsingMarker{13, u'H'}, ParsingMarker{15, u'R'}};
constexpr std::array kAdjectiveMarkers{ParsingMarker{6, u'S'}, ParsingMarker{10, u'E'},
                                       ParsingMarker{12, u'H'}, ParsingMarker{14, u'R'}};
constexpr std::array kVerbMarkers1{ParsingMarker{9, u'S'}};
constexpr std::array kVerbMarkers2{ParsingMarker{13, u'J'}, ParsingMarker{15, u'C'},
                                   ParsingMarker{17, u'A'}, ParsingMarker{19, u'E'},
                                   ParsingMarker{21, u'H'}, ParsingMarker{23, u'R'}};
constexpr std::array kParticleMarkers{ParsingMarker{4, u'S'}, ParsingMarker{8, u'E'},
                                      ParsingMarker{10, u'H'}, ParsingMarker{12, u'R'}};

constexpr std::array kPages{
    ParsingPage{WizardPage::Myungsa, u"Myungsa", u"명사", kMyungsaFields, kNounMarkers, 17},
    ParsingPage{WizardPage::Daemyungsa, u"Daemyungsa", u"대명사", kDaemyungsaFields, kNounMarkers,
                17},
    ParsingPage{WizardPage::Hyungyongsa, u"Hyungyongsa", u"형용사", kHyungyongsaFields,
                kAdjectiveMarkers, 16},
    ParsingPage{WizardPage::Dongsa1, u"Dongsa1", u"동사 (1)", kDongsa1Fields, kVerbMarkers1, 0},
    ParsingPage{WizardPage::Dongsa2, u"Dongsa2", u"동사 (2)", kDongsa2Fields, kVerbMarkers2, 0},
    ParsingPage{WizardPage::Bulbyunsa, u"Bulbyunsa", u"불변사 및 기타", kBulbyunsaFields,
                kParticleMarkers, 14},
    ParsingPage{WizardPage::NMyungsa, u"NMyungsa", u"헬라어 명사", kNMyungsaFields, {}, 6},
    ParsingPage{
        WizardPage::NDaemyungsa, u"NDaemyungsa", u"헬라어 대명사", kNDaemyungsaFields, {}, 7},
    ParsingPage{
        WizardPage::NJungguansa, u"NJungguansa", u"헬라어 정관사", kNJungguansaFields, {}, 6},
    ParsingPage{WizardPage::NDongsa, u"NDongsa", u"헬라어 동사", kNDongsaFields, {}, 9},
    ParsingPage{
        WizardPage::NHyungyongsa, u"NHyungyongsa", u"헬라어 형용사", kNHyungyongsaFields, {}, 7},
    ParsingPage{WizardPage::NBusa, u"NBusa", u"헬라어 부사", kNBusaFields, {}, 4},
    ParsingPage{WizardPage::NJupsokJupdusa,
                u"NJupsokJupdusa",
                u"접속사/접속접두사",
                kNJupsokJupdusaFields,
                {},
                4},
    ParsingPage{WizardPage::NBunlyJupdusa,
                u"NBunlyJupdusa",
                u"접두사/분리접두사",
                kNBunlyJupdusaFields,
                {},
                4},
    ParsingPage{WizardPage::NBulbyunsa, u"NBulbyunsa", u"헬라어 불변사", kNBulbyunsaFields, {}, 4}};

constexpr std::array kSemiticParts{PartOfSpeech{u"명사", u'n', WizardPage::Myungsa},
                                   PartOfSpeech{u"대명사", u'p', WizardPage::Daemyungsa},
                                   PartOfSpeech{u"형용사", u'a', WizardPage::Hyungyongsa},
                                   PartOfSpeech{u"동사", u'v', WizardPage::Dongsa1},
                                   PartOfSpeech{u"불변사 및 기타", u'P', WizardPage::Bulbyunsa},
                                   PartOfSpeech{u"문단구분자", u'x'}};

constexpr std::array kGreekParts{
    PartOfSpeech{u"명사", u'n', WizardPage::NMyungsa},
    PartOfSpeech{u"대명사", u'r', WizardPage::NDaemyungsa},
    PartOfSpeech{u"정관사", u'd', WizardPage::NJungguansa},
    PartOfSpeech{u"동사", u'v', WizardPage::NDongsa},
    PartOfSpeech{u"형용사", u'a', WizardPage::NHyungyongsa},
    PartOfSpeech{u"부사", u'b', WizardPage::NBusa},
    PartOfSpeech{u"접속사", u'c'},
    PartOfSpeech{u"전치사", u'p'},
    PartOfSpeech{u"접속사/접속접두사", u'q', WizardPage::NJupsokJupdusa},
    PartOfSpeech{u"접두사/분리접두사", u'x', WizardPage::NBunlyJupdusa},
    PartOfSpeech{u"불변사", u't', WizardPage::NBulbyunsa},
    PartOfSpeech{u"감탄사", u'i'}};

void buildGreekVerb(const QList<QChar>& chosen, ParsingPattern& pattern)
{
    const auto choice = [&chosen](GreekVerbField field) { return chosen[int(field)]; };
    const auto put = [&](int position, std::initializer_list<GreekVerbField> fields) {
        for (const GreekVerbField field : fields)
            pattern.set(position++, choice(field));
        pattern.end(position);
    };
    using enum GreekVerbField;
    switch (fieldsOfMood(choice(Mood))) {
    case MoodFields::Nominal:
        return put(3, {Mood, Tense, Voice, Case, Gender, Number});
    case MoodFields::PersonNumber:
        return put(3, {Mood, Tense, Voice, Person, Number});
    case MoodFields::None:
        return put(3, {Mood, Tense, Voice});
    }
}

} // namespace

std::span<const ParsingPage> parsingPages()
{
    return kPages;
}

const ParsingPage& parsingPage(WizardPage page)
{
    const auto found = std::ranges::find(kPages, page, &ParsingPage::page);
    Q_ASSERT(found != kPages.end());
    return *found;
}

std::span<const PartOfSpeech> semiticPartsOfSpeech()
{
    return kSemiticParts;
}

std::span<const PartOfSpeech> greekPartsOfSpeech()
{
    return kGreekParts;
}

void buildParsingPage(const ParsingPage& page, const QList<QChar>& chosen, ParsingPattern& pattern)
{
    if (page.page == WizardPage::NDongsa)
        return buildGreekVerb(chosen, pattern);
    for (std::size_t i = 0; i < page.fields.size(); ++i)
        pattern.set(page.fields[i].position, chosen[qsizetype(i)]);
    for (const ParsingMarker& marker : page.markers)
        pattern.set(marker.position, marker.letter);
    if (page.end > 0)
        pattern.end(page.end);
}

} // namespace lumen
