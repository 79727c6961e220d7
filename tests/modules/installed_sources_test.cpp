// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "recipes/recipes.h"
#include "recipes/user_sources.h"
#include "reference/module_builder.h"
#include "text/field_scramble.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kPsalms = 18;
constexpr int kJohn = 42;
constexpr int kRomans = 44;
constexpr int kThirdJohn = 63;

// Each version is read once for all tests, as it would be for its module.
struct ReadVersion
{
    VersionResult version = Failure{};
    VersionTask task;
};

VersionResult readTask(const VersionTask& task)
{
    VersionResult version = task.reader ? task.reader() : readSource(task.source);
    if (!version)
        return version;
    for (const Mend mend : task.mends)
        mend(version.value());
    arrangeVerses(version.value());
    return version;
}

const ReadVersion& installed(int code)
{
    static std::map<int, ReadVersion> read;
    const auto known = read.find(code);
    if (known != read.end())
        return known->second;
    ReadVersion& made = read[code];
    for (const VersionTask& task : installedTasks(installedFolders(), Renumbering::Keep)) {
        if (task.code() == code) {
            made.task = task;
            made.version = readTask(task);
        }
    }
    return made;
}

int filled(const VersionText& version)
{
    return static_cast<int>(std::count_if(version.verses.begin(), version.verses.end(),
                                          [](const VerseText& verse) { return verse.text; }));
}

int parts(const VersionText& version)
{
    return static_cast<int>(
        std::count_if(version.verses.begin(), version.verses.end(), [](const VerseText& verse) {
            return verse.part && verse.book == kPsalms && verse.verse == 1;
        }));
}

int letters(const VersionText& version)
{
    return static_cast<int>(
        std::count_if(version.verses.begin(), version.verses.end(), [](const VerseText& verse) {
            return verse.book == kPsalms && verse.chapter == 119 && verse.verse % 8 == 1 &&
                   !verse.miniTitle.isEmpty();
        }));
}

// Left-overs of mark-up and typing that no text may hold.
QStringList versesWith(const VersionText& version, QStringView refused)
{
    QStringList found;
    for (const VerseText& verse : version.verses)
        for (const QChar c : verse.text.value_or(QString()) + verse.part.value_or(QString()))
            if (refused.contains(c))
                found << u"%1 %2:%3"_s.arg(verse.book).arg(verse.chapter).arg(verse.verse);
    return found;
}

TEST(DebianSources, HaveTheirVersesTitlesAndLetters)
{
    struct Row
    {
        int code, filled, parts, letters;
        QStringView refused;
    };
    const Row rows[] = {
        {201, 31102, 116, 22, u"<>{}\\¶|_="},
        {202, 31102, 116, 22, u"{}\\¶|_=–"},
        {213, 31098, 116, 22, u"<>{}\\¶|_="},
        {223, 31084, 116, 22, u"<>{}\\¶|_="},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.code);
        const ReadVersion& read = installed(row.code);
        ASSERT_TRUE(read.version.ok()) << read.version.failure().detail.toStdString();
        const VersionText& version = read.version.value();
        EXPECT_EQ(version.verses.size(), 31102U);
        EXPECT_EQ(filled(version), row.filled);
        EXPECT_EQ(parts(version), row.parts);
        EXPECT_EQ(letters(version), row.letters);
        const CanonCheck check = checkAgainstCanon(version, Numbering::English);
        EXPECT_EQ(check.missing, 0);
        EXPECT_EQ(check.beyond, 0);
        EXPECT_EQ(versesWith(version, row.refused), QStringList());
    }
}

TEST(DebianSources, TheTwoEnglishTextsOfOneTranslationAgree)
{
    // Two packages made them of different files; only spellings and dashes differ.
    const auto letterText = [](const VersionText& version, std::size_t i) {
        QString text = version.verses[i].text.value_or(QString());
        static const QRegularExpression number(u"<[0-9]+>|[^A-Za-z]"_s);
        return text.remove(number).toLower();
    };
    ASSERT_TRUE(installed(201).version.ok() && installed(202).version.ok());
    const VersionText& plain = installed(201).version.value();
    const VersionText& tagged = installed(202).version.value();
    ASSERT_EQ(plain.verses.size(), tagged.verses.size());
    int different = 0;
    int titles = 0;
    int cutWords = 0;
    for (std::size_t i = 0; i < plain.verses.size(); ++i) {
        different += letterText(plain, i) == letterText(tagged, i) ? 0 : 1;
        cutWords += plain.verses[i].text->count(u' ') > tagged.verses[i].text->count(u' ') ? 1 : 0;
        titles += plain.verses[i].part.has_value() == tagged.verses[i].part.has_value() ? 0 : 1;
    }
    EXPECT_LE(different, 4);
    EXPECT_EQ(cutWords, 0);
    EXPECT_EQ(titles, 0);
}

TEST(DebianSources, NumbersStandBehindTheirWords)
{
    ASSERT_TRUE(installed(202).version.ok());
    const VersionText& version = installed(202).version.value();
    const QString genesis = wordsAt(version, kGenesis, 1, 1);
    for (const QString& number : {u"<7225>"_s, u"<430>"_s, u"<1254>"_s, u"<8064>"_s})
        EXPECT_TRUE(genesis.contains(number)) << number.toStdString();
    EXPECT_FALSE(genesis.startsWith(u'<'));
    EXPECT_TRUE(wordsAt(version, kJohn, 3, 16).contains(u"<2316>"_s));
    static const QRegularExpression loose(u"(^|\\s)<"_s);
    const auto withLoose =
        std::count_if(version.verses.begin(), version.verses.end(), [](const VerseText& verse) {
            return verse.text && verse.text->contains(loose);
        });
    EXPECT_EQ(withLoose, 0);
}

TEST(DebianSources, WebHasTheDoxologyAtItsKeysAndTheFiveBooksOfPsalms)
{
    ASSERT_TRUE(installed(213).version.ok());
    const VersionText& version = installed(213).version.value();
    EXPECT_EQ(wordsAt(version, kRomans, 14, 24), u"<no row>"_s);
    EXPECT_GT(wordsAt(version, kRomans, 16, 27).size(), 20);
    EXPECT_EQ(wordsAt(version, kThirdJohn, 1, 15), u"<no row>"_s);
    EXPECT_EQ(wordsAt(version, 43, 8, 37), u"<no words>"_s);
    for (const int chapter : {1, 42, 73, 90, 107})
        EXPECT_FALSE(verseAt(version, kPsalms, chapter, 1)->miniTitle.isEmpty()) << chapter;
}

TEST(DebianSources, ABuiltModuleHoldsWhatWasRead)
{
    const SourceFiles out;
    const ReadVersion& read = installed(201);
    ASSERT_TRUE(read.version.ok());
    const ModuleOutcome outcome = buildModule(read.task, out.path(), [](double) { return true; });
    ASSERT_EQ(outcome.state, ModuleState::Built) << outcome.problem.toStdString();
    const auto rows = storeRows(out.path(u"201.dts"_s),
                                u"select Cont, part from KJV where Chap = '시03' order by Verse"_s);
    ASSERT_EQ(rows.size(), 8U);
    for (int verse = 1; verse <= 8; ++verse)
        EXPECT_EQ(DES::UnscrambleField(rows[static_cast<std::size_t>(verse) - 1][0].toString()),
                  wordsAt(read.version.value(), kPsalms, 3, verse));
    EXPECT_FALSE(rows[0][1].isNull());
    EXPECT_TRUE(rows[1][1].isNull());
    // The packages are whole Bibles: one that lacks a chapter isn't taken for one.
    VersionTask cut = read.task;
    cut.reader = [&read]() -> VersionResult {
        VersionText version = read.version.value();
        std::erase_if(version.verses, [](const VerseText& verse) {
            return verse.book == kJohn && verse.chapter == 21;
        });
        return version;
    };
    const SourceFiles empty;
    EXPECT_EQ(buildModule(cut, empty.path(), [](double) { return true; }).state,
              ModuleState::Failed);
}

TEST(NpmSources, HaveTheirVersesAfterMending)
{
    struct Row
    {
        int code, rows, filled, missing;
        QStringView refused;
    };
    const Row rows[] = {
        {205, 31102, 31102, 0, u"<>{}\\|[]"}, {209, 31102, 31102, 0, u"<>{}\\|`"},
        {210, 31102, 31099, 6, u"<>{}\\|*`"}, {212, 31098, 31098, 4, u"<>{}\\|+`"},
        {216, 31139, 31086, 64, u"<{}\\|`"},
    };
    if (!sourceIsThere(installed(205).task.source) || !sourceIsThere(installed(216).task.source))
        GTEST_SKIP() << "the npm packages were not fetched";
    for (const Row& row : rows) {
        SCOPED_TRACE(row.code);
        const ReadVersion& read = installed(row.code);
        ASSERT_TRUE(read.version.ok()) << read.version.failure().detail.toStdString();
        const VersionText& version = read.version.value();
        EXPECT_EQ(static_cast<int>(version.verses.size()), row.rows);
        EXPECT_EQ(filled(version), row.filled);
        EXPECT_EQ(checkAgainstCanon(version, Numbering::English).missing, row.missing);
        EXPECT_EQ(versesWith(version, row.refused), QStringList());
        EXPECT_GT(wordsAt(version, 65, 22, 21).size(), 10);
    }
}

class KoreanSources : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString folder = qEnvironmentVariable("LUMENSCRIPT_USER_DATA");
        if (folder.isEmpty())
            GTEST_SKIP() << "LUMENSCRIPT_USER_DATA is not set";
        sources = findUserSources(folder);
    }
    VersionResult read(int code) const
    {
        for (const UserSource& source : sources.found)
            if (source.code == code)
                return readTask(userTask(code, {}, source.source, {}, Renumbering::Keep));
        return missingSource(QString::number(code));
    }

    UserSources sources;
};

TEST_F(KoreanSources, HaveTheVersesThatTheirMakersTell)
{
    const auto plain = read(101);
    ASSERT_TRUE(plain.ok()) << plain.failure().detail.toStdString();
    EXPECT_EQ(plain.value().verses.size(), 31102U);
    EXPECT_EQ(filled(plain.value()), 31102 - 13);
    EXPECT_EQ(checkAgainstCanon(plain.value(), Numbering::Korean).missing, 0);
    EXPECT_EQ(checkAgainstCanon(plain.value(), Numbering::Korean).beyond, 0);
    const auto mixed = read(102);
    ASSERT_TRUE(mixed.ok()) << mixed.failure().detail.toStdString();
    EXPECT_EQ(mixed.value().verses.size(), 31104U);
    EXPECT_EQ(filled(mixed.value()), 31104 - 29);
    EXPECT_EQ(versesWith(mixed.value(), u"{}"), QStringList());
    const QString remarks = mixed.value().remarks.join(u'\n');
    EXPECT_TRUE(remarks.contains(u"(4절): 출27:3 민2:32 스10:15 요4:23"_s))
        << remarks.toStdString();
    EXPECT_TRUE(remarks.contains(u"(15절): 창43:10"_s)) << remarks.toStdString();
}

} // namespace
} // namespace lumen
