// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(CanonTable, NamesAndAbbreviationsAreDistinctAndShort)
{
    QSet<QString> abbreviations;
    QSet<QString> names;
    for (int book = 0; book < kBookCount; ++book) {
        abbreviations.insert(bookAbbreviation(book));
        names.insert(bookName(book));
        EXPECT_GE(bookAbbreviation(book).size(), 1);
        EXPECT_LE(bookAbbreviation(book).size(), 2);
    }
    EXPECT_EQ(abbreviations.size(), 66);
    EXPECT_EQ(names.size(), 66);
}

TEST(CanonTable, TablesRunInStepAtTheirSeams)
{
    struct Row
    {
        int book;
        QString abbreviation;
        QString name;
        int chapters;
        QString group;
        QString testament;
    };
    const Row rows[] = {
        {0, u"창"_s, u"창세기"_s, 50, u"모"_s, u"구"_s},
        {4, u"신"_s, u"신명기"_s, 34, u"모"_s, u"구"_s},
        {5, u"수"_s, u"여호수아"_s, 24, u"역"_s, u"구"_s},
        {18, u"시"_s, u"시편"_s, 150, u"시"_s, u"구"_s},
        {38, u"말"_s, u"말라기"_s, 4, u"소"_s, u"구"_s},
        {39, u"마"_s, u"마태복음"_s, 28, u"사"_s, u"신"_s},
        {43, u"행"_s, u"사도행전"_s, 28, QString(), u"신"_s},
        {44, u"롬"_s, u"로마서"_s, 16, u"바"_s, u"신"_s},
        {61, u"요일"_s, u"요한일서"_s, 5, u"공"_s, u"신"_s},
        {65, u"계"_s, u"요한계시록"_s, 22, u"계"_s, u"신"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.book);
        EXPECT_EQ(bookAbbreviation(row.book), row.abbreviation);
        EXPECT_EQ(bookName(row.book), row.name);
        EXPECT_EQ(chapterCount(row.book), row.chapters);
        EXPECT_EQ(bookGroup(row.book), row.group);
        EXPECT_EQ(testament(row.book), row.testament);
    }
}

} // namespace
} // namespace lumen
