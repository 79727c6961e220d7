// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/result_pages.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(ResultPages, AFullLastPageOpensOneMoreEmptyPage)
{
    struct Row
    {
        int records;
        int pages;
    };
    for (const Row& row : {Row{0, 1}, Row{1, 1}, Row{50, 1}, Row{51, 2}, Row{99, 2}, Row{100, 3},
                           Row{101, 3}, Row{501, 11}}) {
        SCOPED_TRACE(row.records);
        EXPECT_EQ(ResultPages(row.records).count(), row.pages);
        EXPECT_EQ(ResultPages(row.records).labels().size(), row.pages);
    }
}

TEST(ResultPages, LabelsTellTheRecordsWithALeadingBlankToEachNumber)
{
    EXPECT_EQ(ResultPages(50).labels(), QStringList{u"1 page"_s});
    EXPECT_EQ(ResultPages(51).labels(), (QStringList{u" 1 ~  50"_s, u" 51 ~  100"_s}));
    EXPECT_EQ(ResultPages(100).labels().last(), u" 101 ~  150"_s);
}

TEST(ResultPages, MovingWrapsRoundAtBothEnds)
{
    const ResultPages pages(120);
    EXPECT_EQ(pages.next(0), 1);
    EXPECT_EQ(pages.next(2), 0);
    EXPECT_EQ(pages.previous(0), 2);
    EXPECT_EQ(pages.previous(1), 0);
    EXPECT_EQ(ResultPages(3).next(0), 0);
    EXPECT_EQ(ResultPages(3).previous(0), 0);
}

} // namespace
} // namespace lumen
