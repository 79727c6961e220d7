// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "reader/move/typed_reference.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

struct Understood
{
    const char16_t* typed;
    const char16_t* place; ///< abbreviation, chapter:verse
};

template <std::size_t N>
void expectUnderstood(const Understood (&rows)[N])
{
    for (const Understood& row : rows) {
        const QString typed = QString::fromUtf16(row.typed);
        SCOPED_TRACE(typed.toStdString());
        const auto reference = parseTypedReference(typed);
        ASSERT_TRUE(reference);
        EXPECT_EQ(u"%1%2:%3"_s.arg(bookAbbreviation(reference->book))
                      .arg(reference->chapter)
                      .arg(reference->verse),
                  QString::fromUtf16(row.place));
    }
}

TEST(TypedReferenceTest, LooseReferencesAreUnderstood)
{
    expectUnderstood({
        {u"요 3:16", u"요3:16"},
        {u"  요한복음   3 : 16  ", u"요3:16"},
        {u"창3:16절", u"창3:16"},
        {u"창 3장 16절", u"창3:16"},
        {u"창3;16", u"창3:16"},
        {u"창3:16-18", u"창3:16"},
        {u"창 3장 16절~18절", u"창3:16"},
        {u"시;23", u"시0:23"},
        {u"창51:99", u"창51:99"},
        {u"창3:절", u"창3:0"},
        {u"요 3 1:2", u"요삼1:2"},
        {u"요한3서 1:2", u"요삼1:2"},
        {u"요2 1:2", u"요이1:2"},
        {u"요한 2서1:2", u"요이1:2"},
        {u"요 1 4:8", u"요일4:8"},
        {u"요한1서4:8", u"요일4:8"},
        {u"요일4:8", u"요일4:8"},
        {u"요1:2", u"요1:2"},
    });
}

TEST(TypedReferenceTest, FormsThatNameNoPlaceAsTheyStandAreReadAsReadersMeanThem)
{
    expectUnderstood({
        {u"시편 23:1", u"시23:1"},
        {u"욥기 1:1", u"욥1:1"},
        {u"시 23편 1절", u"시23:1"},
        {u"시편23편", u"시23:1"},
        {u"시편 119편 105-106절", u"시119:105"},
        {u"요한 일서 4:8", u"요일4:8"},
        {u"예레미야 애가 3:22", u"애3:22"},
        {u"사무엘 상 17:4", u"삼상17:4"},
        {u"유 3", u"유1:3"},
        {u"몬 1절", u"몬1:1"},
        {u"요한삼서 4", u"요삼1:4"},
        {u"요\t3:16", u"요3:16"},
        {u"요\u00A03:16", u"요3:16"},
        {u"요한복음\u30003:16", u"요3:16"},
        {u"요３：１６", u"요3:16"},
        {u"요3\u00A01:2", u"요삼1:2"},
        {u"\u110B\u116D\u1112\u1161\u11AB\u1107\u1169\u11A8\u110B\u1173\u11B73:16", u"요3:16"},
    });
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

TEST(TypedReferenceTest, WhatIsNoReferenceIsRefusedRatherThanLedElsewhere)
{
    for (const char16_t* text :
         {u"",         u"창",      u"창 3",     u"창세 3:1", u"3:16",       u"없는책 3:16",
          u"요한복음", u":",       u"Gen 3:16", u"창장:",    u"요1서 3:16", u"창1 2:3",
          u"창1.5:2",  u"창1E1:1", u"창 1장:2", u"창 1장-2", u"창3:1 6",    u"창3:1E1",
          u"창3:16.5", u"창3:가",  u"창 23편",  u"시편 23",  u"요3 16",     u"유"}) {
        SCOPED_TRACE(QString::fromUtf16(text).toStdString());
        EXPECT_FALSE(parseTypedReference(QString::fromUtf16(text)));
    }
}

TEST(TypedReferenceTest, NumbersBeyondAllBoundsStayNumbers)
{
    const auto reference = parseTypedReference(u"창99999999999999999999:88888888888888888888"_s);
    ASSERT_TRUE(reference);
    EXPECT_GT(reference->verse, 176);
    EXPECT_EQ(limitedTo(50, reference->chapter).value, 50);
    EXPECT_TRUE(limitedTo(50, 51).wasTooLarge);
    EXPECT_FALSE(limitedTo(50, 50).wasTooLarge) << "the last one";
}

} // namespace
} // namespace lumen
