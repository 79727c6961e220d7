// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/book_selection.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(BookSelection, TheRangesReachEveryBookOnceButActsAndRevelation)
{
    BookSet reached;
    for (const BookRange& range : kBookRanges)
        for (int book = range.first; book <= range.last; ++book) {
            EXPECT_FALSE(reached.test(static_cast<size_t>(book))) << book;
            reached.set(static_cast<size_t>(book));
        }
    reached.flip();
    EXPECT_EQ(bookListTag(reached), u"행,계"_s);
}

TEST(BookSelection, EachRangeHoldsTheBooksOfOneGroup)
{
    for (const BookRange& range : kBookRanges) {
        SCOPED_TRACE(range.caption.toUtf8().toStdString());
        for (int book = range.first; book <= range.last; ++book)
            EXPECT_EQ(bookGroup(book), bookGroup(range.first));
        EXPECT_NE(bookGroup(range.first - 1), bookGroup(range.first));
        EXPECT_NE(bookGroup(range.last + 1), bookGroup(range.last));
    }
}

TEST(BookSelection, ATagOfOneBookHasNoComma)
{
    BookSet books;
    EXPECT_EQ(bookListTag(books), QString());
    books.set(42);
    EXPECT_EQ(bookListTag(books), u"요"_s);
    books.set(0);
    EXPECT_EQ(bookListTag(books), u"창,요"_s);
}

} // namespace
} // namespace lumen
