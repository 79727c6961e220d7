// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"
#include "canon/verse_index.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen::BibleCode {
namespace {

TEST(VerseIndex, KeysAreBuiltAndReadBack)
{
    struct Row
    {
        QString reference;
        QString key;
        VersePlace place;
    };
    const Row rows[] = {
        {u"창1:1"_s, u"01창:001:001"_s, {0, 1, 1}},
        {u"욜3:21"_s, u"29욜:003:021"_s, {28, 3, 21}},
        {u"요3:16"_s, u"43요:003:016"_s, {42, 3, 16}},
        {u"요일1:1"_s, u"62요일:001:001"_s, {61, 1, 1}},
        {u"시119:176"_s, u"19시:119:176"_s, {18, 119, 176}},
        {u"말4:6"_s, u"39말:004:006"_s, {38, 4, 6}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.reference.toStdString());
        EXPECT_EQ(RefToIndex(row.reference), row.key);
        EXPECT_EQ(IndexToRef(row.key), row.reference);
        EXPECT_EQ(ParseRef(row.reference), row.place);
        EXPECT_EQ(verseKey(row.place.book, row.place.chapter, row.place.verse), row.key);
    }
    EXPECT_EQ(RefToIndex(u""), QString());
}

TEST(VerseIndex, EveryBookIsRecognisedInEveryForm)
{
    for (int book = 0; book < kBookCount; ++book) {
        const QString reference = bookAbbreviation(book) + u"1:2"_s;
        SCOPED_TRACE(reference.toStdString());
        EXPECT_EQ(GetBookNum(bookAbbreviation(book)), book);
        EXPECT_EQ(ParseRef(reference), (VersePlace{book, 1, 2}));
        EXPECT_EQ(IndexToRef(RefToIndex(reference)), reference);
    }
}

TEST(VerseIndex, ParseRefForgivesWhatItCannotPlace)
{
    EXPECT_EQ(ParseRef(u"창51:1"), (VersePlace{0, 1, 1}));
    EXPECT_EQ(ParseRef(u"창50:99"), (VersePlace{0, 50, 99}));
    EXPECT_EQ(ParseRef(u"갸3:4").book, 0);
    EXPECT_EQ(ParseRef(u""), (VersePlace{0, 0, 0}));
    EXPECT_EQ(ParseRef(u"요"), (VersePlace{42, 0, 0}));
    EXPECT_EQ(ParseRef(u"요3"), (VersePlace{42, 0, 0})) << "the colon ends the chapter";
    EXPECT_EQ(ParseRef(u"요3:"), (VersePlace{42, 3, 0}));
    EXPECT_EQ(ParseRef(u"요3:16-18"), (VersePlace{42, 3, 16}));
    EXPECT_EQ(ParseRef(u"요99999999999:1"), (VersePlace{42, 1, 1}));
}

TEST(VerseIndex, PlainSortingOfKeysIsCanonOrder)
{
    QStringList keys;
    for (int book = 0; book < kBookCount; ++book)
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            for (const int verse : {1, 2, 9, 10, 99, 100, 176})
                keys << verseKey(book, chapter, verse);
    EXPECT_TRUE(std::is_sorted(keys.cbegin(), keys.cend()));
}

} // namespace
} // namespace lumen::BibleCode
