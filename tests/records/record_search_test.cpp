// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/user_files.h"
#include "jet/engine.h"
#include "jet/store/store_writer.h"
#include "records/search/record_search.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

using record_condition::Connector;
using record_condition::Terms;
using Outcome = RecordSearch::Outcome;

struct Sermon
{
    QString title;
    QString category;
    QVariant preached; ///< a day number or Null
    QString body;
};

/// Some hundred sermons whose bodies are put together from words that are hard to quote.
class RecordSearchTest : public testing::Test
{
protected:
    RecordSearchTest()
    {
        std::mt19937 random(1);
        const auto any = [&random](const QStringList& of) {
            return of[static_cast<qsizetype>(random()) % of.size()];
        };
        for (int i = 0; i < 300; ++i) {
            Sermon sermon{any(words), i % 7 == 0 ? QString() : any(categories), {}, {}};
            if (i % 5 != 0)
                sermon.preached = 37700 + static_cast<int>(random() % 100);
            for (int word = 0; word < 6; ++word)
                sermon.body += any(words) + (word % 2 == 0 ? u" "_s : u"\r\n"_s);
            sermons << sermon;
        }
        write();
    }
    void write()
    {
        StoreWriter writer(services.folders.data(u"설교매니저.mdb"_s), StoreCompare::Text);
        const TableSchema table = user_file::sermonTables().front();
        writer.createTable(table);
        for (int i = 0; i < sermons.size(); ++i) {
            QVariantList row;
            for (const ColumnDef& column : table.columns)
                row << (column.name == u"일련번호"              ? QVariant(i + 1)
                        : column.name == u"제목"                ? QVariant(sermons[i].title)
                        : column.name == u"본문"                ? QVariant(sermons[i].body)
                        : column.name == u"설교일"              ? sermons[i].preached
                        : column.name == u"분류" && i % 14 != 0 ? QVariant(sermons[i].category)
                                                                : QVariant());
            writer.addRow(table.name, row);
        }
        writer.commit();
    }
    QList<int> found()
    {
        QList<int> keys;
        for (int i = 0; i < search.count(); ++i)
            keys << search.row(i)->last().toInt();
        return keys;
    }
    template <typename Holds>
    QList<int> scan(Holds holds)
    {
        QList<int> keys;
        for (int i = 0; i < sermons.size(); ++i)
            if (holds(sermons[i]))
                keys << i + 1;
        return keys;
    }
    static bool holdsWord(const QString& text, const QString& word)
    {
        return text.contains(word, Qt::CaseInsensitive);
    }

    const QStringList words{u"은혜"_s, u"믿음"_s, u"it's"_s,   u"a*b"_s,   u"50%"_s,  u"[괄호]"_s,
                            u"왜?"_s,  u"#1"_s,   u"a|b"_s,    u"Grace"_s, u"恩惠"_s, u"✝︎"_s,
                            u"חֶסֶד"_s,  u"😀"_s,    u"\"말\""_s, u"a_b"_s};
    const QStringList categories{u"주일 낮"_s, u"목회자's"_s, u"a|b"_s};
    QList<Sermon> sermons;
    TestServices services;
    RecordSearch search{record_profile::kSermon, services.jet, services.state};
};

TEST_F(RecordSearchTest, EasySearchesFindWhatAPlainScanFinds)
{
    QStringList pieces = words;
    for (const QString& word : words)
        for (const QString& other : words)
            pieces << word.right(1) + u' ' + other.left(2);
    pieces << u"*"_s << u"?"_s << u"'"_s << u"없는 말"_s << u"%"_s << u"_"_s
           << QString(QChar(0xD83D));
    for (const QString& word : pieces) {
        SCOPED_TRACE(word.toStdString());
        ASSERT_EQ(search.easy(u"본문"_s, u"  "_s + word, RecordScope::All), Outcome::Searched);
        const bool isHalf = word.size() == 1 && word[0].isSurrogate();
        EXPECT_EQ(found(), scan([&](const Sermon& sermon) {
                      return !isHalf && holdsWord(sermon.body, word.trimmed());
                  }));
    }
}

TEST_F(RecordSearchTest, PowerSearchesConnectUpToThreeWords)
{
    struct Case
    {
        Terms terms;
        std::function<bool(bool, bool, bool)> holds;
    };
    const QString a = u"은혜"_s;
    const QString b = u"it's"_s;
    const QString c = u"a*b"_s;
    for (const Case& each : {Case{{{a, {}, {}}}, [](bool x, bool, bool) { return x; }},
                             Case{{{a, b, {}}}, [](bool x, bool y, bool) { return x && y; }},
                             Case{{{a, b, c}, {Connector::Or, Connector::Or}},
                                  [](bool x, bool y, bool z) { return x || y || z; }},
                             Case{{{a, b, c}, {Connector::Or, Connector::And}},
                                  [](bool x, bool y, bool z) { return x || (y && z); }},
                             Case{{{a, {}, c}, {Connector::Or, Connector::And}},
                                  [](bool x, bool, bool z) { return x && z; }}}) {
        ASSERT_EQ(search.power(u"본문"_s, each.terms, RecordScope::All), Outcome::Searched);
        EXPECT_EQ(found(), scan([&](const Sermon& sermon) {
                      return each.holds(holdsWord(sermon.body, a), holdsWord(sermon.body, b),
                                        holdsWord(sermon.body, c));
                  }));
    }
    EXPECT_EQ(search.power(u"본문"_s, {{u" "_s, a, b}}, RecordScope::All), Outcome::NoWord);
}

TEST_F(RecordSearchTest, NarrowingGoesOnWithTheResultAtHand)
{
    EXPECT_EQ(search.easy(u"본문"_s, u"은혜"_s, RecordScope::WithinResult), Outcome::NothingFound);
    ASSERT_EQ(search.easy(u"본문"_s, u"은혜"_s, RecordScope::All), Outcome::Searched);
    ASSERT_EQ(search.easy(u"본문"_s, u"it's"_s, RecordScope::WithinResult), Outcome::Searched);
    ASSERT_EQ(search.power(u"제목"_s, {{u"a*b"_s, u"믿음"_s, {}}, {Connector::Or, Connector::And}},
                           RecordScope::WithinResult),
              Outcome::Searched);
    const QList<int> expected = scan([&](const Sermon& sermon) {
        return holdsWord(sermon.body, u"은혜"_s) && holdsWord(sermon.body, u"it's"_s) &&
               (sermon.title == u"a*b" || sermon.title == u"믿음");
    });
    EXPECT_GT(expected.size(), 0);
    EXPECT_EQ(found(), expected);
    EXPECT_EQ(search.easy(u"본문"_s, u"없는 말"_s, RecordScope::WithinResult), Outcome::Searched);
    EXPECT_EQ(search.count(), 0);
    EXPECT_EQ(search.easy(u"본문"_s, u"은혜"_s, RecordScope::WithinResult), Outcome::NothingFound);
    EXPECT_EQ(search.easy(u"본문"_s, u"  "_s, RecordScope::All), Outcome::NoWord);
}

TEST_F(RecordSearchTest, DaysAndCategoriesFitExactly)
{
    const QDate first(2003, 4, 1); // 37712
    const QDate last(2003, 5, 1);
    search.byDays(u"설교일"_s, first, last);
    EXPECT_EQ(found(), scan([](const Sermon& sermon) {
                  return !sermon.preached.isNull() && sermon.preached.toInt() >= 37712 &&
                         sermon.preached.toInt() <= 37742;
              }));
    search.byDay(u"설교일"_s, last);
    EXPECT_EQ(found(), scan([](const Sermon& sermon) { return sermon.preached == 37742; }));
    QDate from = last;
    QDate to = first;
    EXPECT_TRUE(putInOrder(from, to));
    EXPECT_EQ(from, first);
    EXPECT_FALSE(putInOrder(from, to));

    QStringList listed = search.categories();
    listed.sort();
    EXPECT_EQ(listed, (QStringList{u""_s, u"a|b"_s, u"목회자's"_s, u"주일 낮"_s}));
    EXPECT_EQ(search.count(), 0) << "the list is no result";
    for (const QString& category : listed) {
        search.byCategory(category);
        EXPECT_EQ(found(), scan([&](const Sermon& sermon) { return sermon.category == category; }));
    }
}

TEST_F(RecordSearchTest, ARowShowsDaysPreviewsAndTheWholeTitle)
{
    sermons = {
        {QString(200, u'가'), u"기타"_s, 37742, u"첫 줄\r\n둘째\t줄 "_s + QString(40, u'나')}};
    write();
    search.showAll();
    EXPECT_EQ(
        *search.row(0),
        (QStringList{u"2003-05-01"_s, u""_s, u""_s, QString(200, u'가'), u""_s,
                     u"첫 줄 둘째 줄 "_s + QString(20, u'나') + u"..."_s, u""_s, u""_s, u"1"_s}));
    services.jet.OpenDatabase(u"C:\\lumenscript\\Data\\설교매니저.mdb"_s)
        ->Execute(u"delete * from 설교"_s);
    EXPECT_EQ(search.row(0), std::nullopt) << "deleted while the result was open";
}

TEST(RecordConditionTest, TextsOfTheQueries)
{
    EXPECT_EQ(record_condition::onDay(u"작성일"_s, QDate(2003, 5, 1)), u"작성일 = #2003-05-01#");
    EXPECT_EQ(record_condition::betweenDays(u"설교일"_s, QDate(1999, 1, 1), QDate(2003, 5, 1)),
              u"설교일 >= #1999-01-01# AND 설교일 <= #2003-05-01#");
    EXPECT_EQ(record_condition::ofCategory(u" it's "_s), u"분류 = 'it''s'");
    EXPECT_EQ(record_condition::holds(u"제목"_s, u" a*b "_s), u"[제목] like '*a[*]b*'");
    EXPECT_EQ(record_condition::holdsTerms(
                  u"본문"_s, {{u"가"_s, {}, u"나"_s}, {Connector::And, Connector::Or}}),
              u"본문 like '*가*'  OR 본문 like '*나*'");
}

} // namespace
} // namespace lumen
