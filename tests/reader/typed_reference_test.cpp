// SPDX-License-Identifier: GPL-2.0-or-later
#include "reader/typed_reference.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

constexpr int kGenesis = 0;
constexpr int kPsalms = 18;
constexpr int kJohn = 42;
constexpr int kFirstJohn = 61;
constexpr int kSecondJohn = 62;
constexpr int kThirdJohn = 63;

struct Understood
{
    const char16_t* text;
    int book;
    int chapter;
    int verse;
};

TEST(TypedReferenceTest, LooseReferencesAreUnderstood)
{
    const Understood rows[] = {
        {u"요 3:16", kJohn, 3, 16},       {u"요3:16", kJohn, 3, 16},
        {u"요한복음 3:16", kJohn, 3, 16}, {u"  요한복음   3 : 16  ", kJohn, 3, 16},
        {u"창3:16절", kGenesis, 3, 16},   {u"창 3장 16절", kGenesis, 3, 16},
        {u"창3;16", kGenesis, 3, 16},     {u"창3:16-18", kGenesis, 3, 16},
        {u"시;23", kPsalms, 0, 23},       {u"시119:176", kPsalms, 119, 176},
        {u"창51:99", kGenesis, 51, 99},   {u"창3:절", kGenesis, 3, 0},
    };
    for (const Understood& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.text).toStdString());
        const auto reference = parseTypedReference(QString::fromUtf16(row.text));
        ASSERT_TRUE(reference);
        EXPECT_EQ(reference->book, row.book);
        EXPECT_EQ(reference->chapter, row.chapter);
        EXPECT_EQ(reference->verse, row.verse);
        EXPECT_EQ(reference->reference, QString::fromUtf16(row.text));
    }
}

TEST(TypedReferenceTest, LettersOfJohnMayBeWrittenWithADigit)
{
    const Understood rows[] = {
        {u"요 3 1:2", kThirdJohn, 1, 2},
        {u"요3 1:2", kThirdJohn, 1, 2},
        {u"요한3서 1:2", kThirdJohn, 1, 2},
        {u"요한 3서 1:2", kThirdJohn, 1, 2},
        {u"요2 1:2", kSecondJohn, 1, 2},
        {u"요한 2서1:2", kSecondJohn, 1, 2},
        {u"요 1 4:8", kFirstJohn, 4, 8},
        {u"요한1서4:8", kFirstJohn, 4, 8},
        {u"요일4:8", kFirstJohn, 4, 8},
        {u"요한일서 4:8", kFirstJohn, 4, 8},
        {u"요1:2", kJohn, 1, 2},
        {u"요 1:2", kJohn, 1, 2},
    };
    for (const Understood& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.text).toStdString());
        const auto reference = parseTypedReference(QString::fromUtf16(row.text));
        ASSERT_TRUE(reference);
        EXPECT_EQ(reference->book, row.book);
        EXPECT_EQ(reference->chapter, row.chapter);
        EXPECT_EQ(reference->verse, row.verse);
    }
}

TEST(TypedReferenceTest, WithoutAVerseTheFirstOneIsMeantAndAddedToTheText)
{
    const auto chapter = parseTypedReference(u"창3장"_s);
    ASSERT_TRUE(chapter);
    EXPECT_EQ(chapter->chapter, 3);
    EXPECT_EQ(chapter->verse, 1);
    EXPECT_EQ(chapter->reference, u"창3장1"_s);

    const auto colon = parseTypedReference(u"사무엘상 23:"_s);
    ASSERT_TRUE(colon);
    EXPECT_EQ(colon->verse, 1);
    EXPECT_EQ(colon->reference, u"사무엘상 23:1"_s);
}

TEST(TypedReferenceTest, FullNamesOfTwoSyllablesAreTakenForAbbreviations)
{
    EXPECT_FALSE(parseTypedReference(u"시편 23:1"_s));
    EXPECT_TRUE(parseTypedReference(u"시 23:1"_s));
    EXPECT_TRUE(parseTypedReference(u"삼상 3:1"_s));
}

TEST(TypedReferenceTest, WhatIsNoReferenceIsRefused)
{
    for (const char16_t* text : {u"", u"창", u"창 3", u"창세 3:1", u"3:16", u"없는책 3:16",
                                 u"요한복음", u":", u"Gen 3:16", u"창장:"}) {
        SCOPED_TRACE(QString::fromUtf16(text).toStdString());
        EXPECT_FALSE(parseTypedReference(QString::fromUtf16(text)));
    }
}

TEST(TypedReferenceTest, NumbersBeyondAllBoundsStayNumbers)
{
    const auto reference = parseTypedReference(u"창99999999999999999999:88888888888888888888"_s);
    ASSERT_TRUE(reference);
    const LimitedNumber chapter = limitedTo(50, reference->chapter);
    EXPECT_TRUE(chapter.wasTooLarge);
    EXPECT_EQ(chapter.value, 50);
    EXPECT_GT(reference->verse, 176);
}

TEST(TypedReferenceTest, TheLastNumberIsNotTooLarge)
{
    EXPECT_FALSE(limitedTo(50, 50).wasTooLarge);
    EXPECT_TRUE(limitedTo(50, 51).wasTooLarge);
    EXPECT_EQ(limitedTo(50, 7).value, 7);
}

} // namespace
} // namespace lumen
