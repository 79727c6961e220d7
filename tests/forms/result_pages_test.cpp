// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/results/result_pages.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(ResultPages, AFullLastPageOpensOneMoreEmptyPage)
{
    const QStringList two{u" 1 ~  50"_s, u" 51 ~  100"_s};
    const std::pair<int, QStringList> rows[] = {{0, {u"1 page"_s}},
                                                {50, {u"1 page"_s}},
                                                {51, two},
                                                {99, two},
                                                {100, two + QStringList{u" 101 ~  150"_s}}};
    for (const auto& [records, labels] : rows) {
        SCOPED_TRACE(records);
        EXPECT_EQ(ResultPages(records).count(), labels.size());
        EXPECT_EQ(ResultPages(records).labels(), labels);
    }
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
