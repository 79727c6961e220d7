// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/search_scope.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

struct QueryRow
{
    const char16_t* tag;
    const char16_t* easy;
    const char16_t* power;
};

QString query(SearchKind kind, const QString& tag)
{
    return scopedQuery(kind, u"현대인의 성경"_s, u"<C>"_s, tag);
}

TEST(SearchScope, QueriesOfEveryScopeAreExactToTheBlank)
{
    const QString head = u"select Chap, Verse, Cont, index from [현대인의 성경] where "_s;
    const QueryRow rows[] = {
        {u"All", u"<C> order by index", u"<C> order by index"},
        {u"OldTesta", u"(<C>) and Testa = '구'  order by index",
         u"(<C>) and Testa = '구'  order by index"},
        {u"NewTesta", u"(<C>) and Testa = '신' order by index",
         u"(<C>) and Testa = '신'  order by index"},
        {u"모", u"(<C>) and Category = '모' order by index",
         u"(<C>) and Category = '모' order by index"},
        {u"역", u"(<C>) and Category = '역' order by index",
         u"(<C>) and Category ='역' order by index"},
        {u"식", u"(<C>) and Category = '시' order by index",
         u"(<C>) and Category = '시' order by index"},
        {u"대", u"(<C>) and Category = '대' order by index",
         u"(<C>) and Category ='대' order by index"},
        {u"소", u"(<C>) and Category = '소' order by index",
         u"(<C>) and Category = '소' order by index"},
        {u"삽", u"(<C>) and Category = '사' order by index",
         u"(<C>) and Category  = '사' order by index"},
        {u"바", u"(<C>) and Category = '바' order by index",
         u"(<C>) and Category ='바' order by index"},
        {u"공", u"(<C>) and Category = '공' order by index",
         u"(<C>) and Category ='공' order by index"},
        {u"계", u"(<C>) and Category = '계' order by index",
         u"(<C>) and Category ='계' order by index"},
        {u"막", u"(<C>) and (index like '??막:*')  order by index",
         u"(<C>) and (index like '??막:*')  order by index"},
        {u"창,막", u"(<C>) and (index like '??창:*' or index like '??막:*')  order by index",
         u"(<C>) and (index like '??창:*' or index like '??막:*')  order by index"},
    };
    for (const QueryRow& row : rows) {
        const QString tag = QString::fromUtf16(row.tag);
        SCOPED_TRACE(tag.toStdString());
        EXPECT_EQ(query(SearchKind::Easy, tag), head + QString::fromUtf16(row.easy));
        EXPECT_EQ(query(SearchKind::Power, tag), head + QString::fromUtf16(row.power));
    }
}

TEST(SearchScope, AWordThatLooksLikeAPlaceholderStaysAsItIs)
{
    EXPECT_EQ(scopedQuery(SearchKind::Easy, u"KJV"_s, u"(Cont like '*%1 %2*')"_s, u"창"_s),
              u"select Chap, Verse, Cont, index from [KJV] where ((Cont like '*%1 %2*')) and "
              u"(index like '??창:*')  order by index"_s);
}

TEST(SearchScope, EveryTagButTheTwoSpecialOnesGivesATail)
{
    for (const ScopeRow& scope : kScopes) {
        SCOPED_TRACE(scope.text.toUtf8().toStdString());
        const bool plain =
            scope.tag.isEmpty() || scope.tag == kScopeTagAll || scope.tag == kScopeTagWithin;
        EXPECT_EQ(scope.easyTail.isEmpty(), plain);
        EXPECT_EQ(scope.powerTail.isEmpty(), plain);
    }
}

} // namespace
} // namespace lumen
