// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "original/glosses/english_korean.h"
#include "original/glosses/korean_glosses.h"
#include "original/glosses/korean_stems.h"
#include "original/glosses/word_alignment.h"

#include <gtest/gtest.h>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(KoreanStems, CutWhatManyWordsShare)
{
    QStringList words;
    for (const QString& ending : {u""_s, u"이"_s, u"을"_s, u"에"_s, u"과"_s})
        words << u"하늘"_s + ending << u"하늘"_s + ending;
    for (const QString& ending : {u"고"_s, u"으니"_s, u"으매"_s, u"었더라"_s})
        words << u"먹"_s + ending;
    const KoreanStems stems(words);
    EXPECT_EQ(stems.stem(u"하늘에"_s), u"하늘"_s);
    EXPECT_EQ(stems.stem(u"하늘"_s), u"하늘"_s);
    // A single syllable that is not all over the text tells nothing.
    EXPECT_NE(stems.stem(u"먹으니"_s), u"먹다"_s);
}

TEST(KoreanStems, GiveVerbsTheirDictionaryForm)
{
    QStringList words;
    for (int i = 0; i < 20; ++i)
        for (const QString& ending :
             {u"고"_s, u"으니"_s, u"으매"_s, u"었더라"_s, u"는"_s, u"지"_s, u"을지라"_s, u"더라"_s})
            words << u"먹"_s + ending;
    EXPECT_EQ(KoreanStems(words).stem(u"먹었더라"_s), u"먹다"_s);
}

TEST(KoreanStems, AreFoundBetweenSigns)
{
    EXPECT_EQ(koreanWords(u"태초에(太初) 하늘·땅을, 'a' 만드니"_s),
              QStringList({u"태초에"_s, u"하늘"_s, u"땅을"_s, u"만드니"_s}));
}

TEST(WordAlignment, FindsWhatStandsTogether)
{
    // 0 stands with 10 always, 1 with 11; 12 is in every verse and so belongs to no one.
    std::vector<SentencePair> pairs;
    for (int i = 0; i < 4; ++i) {
        pairs.push_back({{0}, {0, 2}});
        pairs.push_back({{1}, {1, 2}});
        pairs.push_back({{0, 1}, {0, 1, 2}});
    }
    const auto words = alignWords(pairs, 2, 3);
    ASSERT_EQ(words.size(), 2u);
    ASSERT_FALSE(words[0].empty());
    EXPECT_EQ(words[0][0].target, 0);
    EXPECT_EQ(words[1][0].target, 1);
    EXPECT_GT(words[0][0].score(), 2 * words[0][1].score());
    for (const AlignedWord& word : words[0])
        EXPECT_LE(word.share, 1.0 + 1e-9);
}

// Ten verses in which one number stands for one word, and a number that stands once only.
OriginalText repeatedText()
{
    OriginalText text;
    for (int verse = 1; verse <= 10; ++verse) {
        OriginalWord word;
        word.strong = verse % 2 == 0 ? 7001 : 7002;
        OriginalVerse row{{7, 1, verse}, false, {word}};
        if (verse == 10) {
            word.strong = 7003;
            row.words.push_back(word);
        }
        text.push_back(row);
    }
    return text;
}

QString repeatedJson()
{
    const QStringList particles{u"을"_s, u"에"_s, u"이"_s, u"과"_s, u"의"_s};
    QStringList verses;
    for (int verse = 1; verse <= 10; ++verse) {
        const QString word = verse % 2 == 0 ? u"하늘"_s : u"바람"_s;
        verses << u"{\"verse\": %1, \"text\": \"%2%3 모든\"}"_s.arg(verse).arg(
            word, particles[(verse - 1) / 2]);
    }
    return u"{\"book\": \"Ruth\", \"chapters\": [{\"chapter\": 1, \"verses\": [%1]}]}"_s.arg(
        verses.join(u", "_s));
}

TEST(KoreanGlosses, AreDerivedFromTheUsersText)
{
    const SourceFiles files;
    const auto glosses =
        koreanGlosses(repeatedText(), {}, {files.write(u"Ruth.json"_s, repeatedJson())});
    ASSERT_TRUE(glosses.ok());
    EXPECT_EQ(glosses.value().gloss(false, 7001), u"하늘"_s);
    EXPECT_EQ(glosses.value().gloss(false, 7002), u"바람"_s);
    EXPECT_TRUE(glosses.value().isDerived(false, 7001));
    EXPECT_EQ(glosses.value().gloss(false, 7003), QString()) << "seen once";
    EXPECT_EQ(glosses.value().gloss(true, 7001), QString()) << "other language";
}

TEST(KoreanGlosses, WrittenOnesWinAndAreComparedWithTheText)
{
    const SourceFiles files;
    const WrittenGlosses written{
        files.write(u"hebrew.tsv"_s, u"# \n7001\t하늘, 공중\n7002\t숨\n"_s),
        u"/nowhere/greek.tsv"_s};
    const auto alone = koreanGlosses(repeatedText(), written, {});
    ASSERT_TRUE(alone.ok());
    EXPECT_EQ(alone.value().words(false, 7001), (QStringList{u"하늘"_s, u"공중"_s}));
    const auto both =
        koreanGlosses(repeatedText(), written, {files.write(u"Ruth.json"_s, repeatedJson())});
    ASSERT_TRUE(both.ok());
    EXPECT_EQ(both.value().gloss(false, 7002), u"숨"_s);
    EXPECT_FALSE(both.value().isDerived(false, 7002));
    const auto tells = [](const QString& remark) {
        return remark.contains(u"같은 번호 50.0%"_s) && remark.endsWith(u"7002 숨≠바람"_s);
    };
    EXPECT_TRUE(std::ranges::any_of(both.value().remarks(), tells));
    const auto bad = koreanGlosses(
        repeatedText(), {files.write(u"bad.tsv"_s, u"7001\t하늘\n\x20\t뜻\n"_s), {}}, {});
    ASSERT_FALSE(bad.ok());
    EXPECT_TRUE(bad.failure().detail.contains(u"bad.tsv:2"_s));
    const auto missing = koreanGlosses(repeatedText(), {}, {u"/nowhere/Ruth.json"_s});
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.failure().kind, FailureKind::NotFound);
}

TEST(EnglishKorean, OneWordOfARenderingStandsForItsNumber)
{
    KoreanGlosses glosses;
    glosses.add(false, 1, {u"하늘"_s, u"공중"_s}, KoreanGlosses::Source::Written);
    glosses.add(false, 2, {u"공기"_s}, KoreanGlosses::Source::Written);
    glosses.add(false, 3, {u"(목적격)"_s}, KoreanGlosses::Source::Written);
    OriginalVerse verse{{0, 1, 1}, false, {}};
    const auto add = [&verse](int times, int strong, const QString& english) {
        OriginalWord word;
        word.strong = strong;
        word.english = english;
        verse.words.insert(verse.words.end(), static_cast<std::size_t>(times), word);
    };
    add(20, 1, u"of the Heaven"_s);
    add(2, 2, u"heaven"_s);   // a tenth of them
    add(1, 2, u"air"_s);      // seen once
    add(5, 1, u"fair sky"_s); // two words
    add(5, 3, u"heaven"_s);   // no word
    add(5, 1, u"and the"_s);  // none left
    const auto entries = englishKoreanEntries({verse}, glosses);
    EXPECT_EQ(entries,
              (std::vector<DictionaryEntry>{{u"heaven"_s, u"하늘, 공기 〔성경 원어의 뜻〕"_s},
                                            {u"공기"_s, u"heaven 〔성경 원어의 뜻〕"_s},
                                            {u"하늘"_s, u"heaven 〔성경 원어의 뜻〕"_s}}));
}

} // namespace
} // namespace lumen
