// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/query_literal.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(QueryLiteral, EachRoutineTreatsUsersTextInItsOwnWay)
{
    struct Row
    {
        QString value;
        QString quoted;
        QString removed;
        QString keptQuote;
        QString literal;
    };
    const Row rows[] = {
        {u"50%"_s, u"50%"_s, u"50%"_s, u"50%"_s, u"50%"_s},
        {u"a[b"_s, u"a[[]b"_s, u"a[b"_s, u"a[[]b"_s, u"a[b"_s},
        {u"it's"_s, u"it''s"_s, u"its"_s, u"it's"_s, u"it''s"_s},
        {u"*"_s, u"[*]"_s, u"*"_s, u"[*]"_s, u"*"_s},
        {u"[?*#]"_s, u"[[][?][*][#]]"_s, u"[?*#]"_s, u"[[][?][*][#]]"_s, u"[?*#]"_s},
        {u"a|b"_s, u"a|b"_s, u"a|b"_s, u"a|b"_s, u"a' & chr(124) & 'b"_s},
        {u"'|'"_s, u"''|''"_s, u"|"_s, u"'|'"_s, u"''' & chr(124) & '''"_s},
        {u""_s, u""_s, u""_s, u""_s, u""_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(EscapeLikeText(row.value, true), row.quoted);
        EXPECT_EQ(EscapeLikeText(row.value, false), row.removed);
        EXPECT_EQ(EscapeLikeKeepQuote(row.value), row.keptQuote);
        EXPECT_EQ(EscapeSqlText(row.value), row.literal);
        QString inPlace = row.value;
        EscapeLikeInPlace(inPlace);
        EXPECT_EQ(inPlace, row.keptQuote);
    }
}

TEST(QueryLiteral, ReplaceTextNeverSearchesWhatItPutIn)
{
    EXPECT_EQ(ReplaceText(u"aXa"_s, u"a"_s, u"aa"_s), u"aaXaa"_s);
    EXPECT_EQ(ReplaceText(u"AbaB"_s, u"ab"_s, u"-"_s, Qt::CaseInsensitive), u"--"_s);
    EXPECT_EQ(ReplaceText(u"AbaB"_s, u"ab"_s, u"-"_s), u"AbaB"_s);
    EXPECT_EQ(ReplaceText(u"abc"_s, u""_s, u"-"_s), u"abc"_s);
    EXPECT_EQ(ReplaceText(std::nullopt, u"a"_s, u"b"_s), std::nullopt);
}

} // namespace
} // namespace lumen
