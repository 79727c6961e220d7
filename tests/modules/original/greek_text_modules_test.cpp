// SPDX-License-Identifier: GPL-2.0-or-later
#include "modules/source_files.h"
#include "original/original_versions.h"

#include <gtest/gtest.h>

#include <QDir>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

TEST(ByzantineVersion, KeepsTheWordsAndTheKeys)
{
    const SourceFiles files;
    const QString rows = u"13,12,α 1 {N-NSM} βς 2 {CONJ}\r\n13,13,γ 3 {X}\n\n13,14,ζ 4 {X}\n"_s;
    const QString corinthians = files.write(u"2CO.csv"_s, u"chapter,verse,text\n"_s + rows);
    const QString romans = files.write(u"rom.csv"_s, u"chapter,verse,text\n14,24,τω 1 {T-DSM}\n"_s);
    ASSERT_TRUE(looksLikeByzantine(corinthians));
    const auto version = byzantineVersion({corinthians, romans});
    ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
    EXPECT_EQ(wordsAt(version.value(), 46, 13, 11), u"a bj"_s);
    EXPECT_EQ(wordsAt(version.value(), 46, 13, 12), u"g"_s);
    EXPECT_EQ(wordsAt(version.value(), 46, 13, 13), u"z"_s);
    EXPECT_EQ(wordsAt(version.value(), 46, 13, 14), u"<no row>"_s);
    EXPECT_EQ(wordsAt(version.value(), 44, 16, 25), u"tw"_s);
}

VerseText greekVerse(int book, int chapter, int verse, const QString& text)
{
    return {book, chapter, verse, text, std::nullopt, {}};
}

TEST(GreekText, OfTheUserHasCodesWithoutAccents)
{
    VersionText version;
    version.verses = {greekVerse(42, 1, 1, u"Ἐν ἀρχῇ ἦν ὁ λόγος, καὶ…"_s),
                      greekVerse(42, 1, 2, QString())};
    encodeGreek(version);
    EXPECT_EQ(wordsAt(version, 42, 1, 1), u"En arxh hn o logoj, kai"_s);
    EXPECT_EQ(wordsAt(version, 42, 1, 2), u"<no row>"_s);
    EXPECT_EQ(version.remarks, QStringList{u"글꼴 코드가 없어 뺀 글자: …"_s});
}

TEST(GreekText, IsMovedOnlyWhereItCountsAsEnglishBiblesDo)
{
    const QString words = u"α β γ δ ε ζ η θ ι κ λ μ"_s;
    VersionText english;
    english.verses = {greekVerse(46, 13, 13, u"α"_s), greekVerse(46, 13, 14, u"β"_s),
                      greekVerse(63, 1, 14, words)};
    encodeGreek(english);
    EXPECT_EQ(wordsAt(english, 46, 13, 12), u"a"_s);
    EXPECT_EQ(wordsAt(english, 63, 1, 15), u"l m"_s);
    VersionText other;
    other.verses = {greekVerse(46, 13, 13, u"α"_s), greekVerse(63, 1, 14, words),
                    greekVerse(63, 1, 15, u"β"_s)};
    encodeGreek(other);
    EXPECT_EQ(wordsAt(other, 46, 13, 13), u"a"_s);
    EXPECT_EQ(wordsAt(other, 63, 1, 14), u"a b g d e z h q i k l m"_s);
    EXPECT_EQ(wordsAt(other, 63, 1, 15), u"b"_s);
}

TEST(ByzantineVersion, NamesTheLineThatItCannotRead)
{
    const SourceFiles files;
    const auto damaged = byzantineVersion(
        {files.write(u"MAT.csv"_s, u"chapter,verse,text\n1,1,α 1 {X}\n1,x,β\n"_s)});
    ASSERT_FALSE(damaged.ok());
    EXPECT_EQ(damaged.failure().kind, FailureKind::Damaged);
    EXPECT_TRUE(damaged.failure().detail.contains(u"MAT.csv:3"_s));
    EXPECT_FALSE(looksLikeByzantine(files.write(u"MAR.csv"_s, u"a,b\n"_s)));
    EXPECT_FALSE(looksLikeByzantine(files.write(u"other.csv"_s, u"chapter,verse,text\n"_s)));
}

TEST(ByzantineVersion, ReadsTheUsersFilesWithoutALoss)
{
    const QString folder = qEnvironmentVariable("LUMENSCRIPT_USER_DATA");
    const QDir tables(folder + u"/byzantine"_s);
    if (folder.isEmpty() || !tables.exists())
        GTEST_SKIP() << "LUMENSCRIPT_USER_DATA names no folder with the Byzantine text";
    QStringList files;
    const QStringList names = tables.entryList({u"*.csv"_s});
    for (const QString& name : names)
        files << tables.filePath(name);
    const auto version = byzantineVersion(files);
    ASSERT_TRUE(version.ok()) << version.failure().detail.toStdString();
    EXPECT_EQ(version.value().verses.size(), 7953u);
    EXPECT_EQ(version.value().remarks.size(), 1) << "only that the doxology was moved";
    EXPECT_EQ(wordsAt(version.value(), 42, 1, 1),
              u"en arxh hn o logoj kai o logoj hn proj ton qeon kai qeoj hn o logoj"_s);
}

} // namespace
} // namespace lumen
