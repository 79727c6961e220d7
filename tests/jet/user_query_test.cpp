// SPDX-License-Identifier: GPL-2.0-or-later
// The queries on the user's own databases, which compare texts without regard to case, and on the
// scratch tables of the original-language search.
#include "jet/engine_fixture.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

class UserQueryTest : public EngineTest
{
protected:
    void SetUp() override
    {
        makeStore(u"설교매니저.mdb"_s, StoreCompare::Text,
                  {.name = u"설교"_s,
                   .columns = {{.name = u"일련번호"_s, .type = FieldType::Long, .autonumber = true},
                               {.name = u"제목"_s, .size = 130},
                               {.name = u"분류"_s, .size = 20},
                               {.name = u"설교일"_s, .type = FieldType::Date},
                               {.name = u"본문"_s, .type = FieldType::Memo}}},
                  {{1, u"Grace"_s, u"주일 낮"_s, 45000, u"the Grace of God"_s},
                   {2, u"grace "_s, u"주일 밤"_s, 45001, u"it's 50% [x]"_s},
                   {3, u"GRACE alone"_s, u"주일 낮 "_s, 45001.5, QVariant()},
                   {4, QVariant(), QVariant(), QVariant(), u""_s},
                   {5, u"나중"_s, u"수요예배"_s, 45002, u"a?b*c#d"_s},
                   {6, u"가장"_s, u"수요예배"_s, -1.75, u"gr\nace"_s}});
        database = open(u"설교매니저.mdb"_s);
    }

    QStringList numbers(const QString& condition)
    {
        const auto records = database->OpenRecordset(u"select * from 설교 where "_s + condition);
        return columnOf(*records, u"일련번호");
    }

    std::unique_ptr<Database> database;
};

TEST_F(UserQueryTest, TextsCompareWithoutCaseAndTrailingBlanks)
{
    struct Row
    {
        QString condition;
        QString found;
    };
    const Row rows[] = {
        {u"분류 = '주일 낮'"_s, u"1 3"_s},
        {u"제목 = 'GRACE'"_s, u"1 2"_s},
        {u"제목 = \"grace  \""_s, u"1 2"_s},
        {u"제목 <> 'grace'"_s, u"3 5 6"_s},
        {u"제목 > 'grace'"_s, u"3 5 6"_s},
        {u"제목 >= '가' and 제목 < '나'"_s, u"6"_s},
        {u"[제목] like 'grace'"_s, u"1"_s},
        {u"[제목] like '*GRACE*'"_s, u"1 2 3"_s},
        {u"본문 like '*grace*'"_s, u"1"_s},
        {u"본문 like '*it''s*'"_s, u"2"_s},
        {u"본문 like '*[[]X]*'"_s, u"2"_s},
        {u"본문 like '*50%*'"_s, u"2"_s},
        {u"본문 like '*[?]*'  AND 본문 like '*[*]*'"_s, u"5"_s},
        {u"본문 like '**'"_s, u"1 2 4 5 6"_s},
        {u"본문 = ''"_s, u"4"_s},
        {u"본문 is null"_s, u"3"_s},
        {u"제목 = null"_s, u""_s},
        {u" 설교일 = #2023-03-16#"_s, u"2"_s},
        {u"설교일 >= #2023-03-15# AND 설교일 <= #2023-03-16#"_s, u"1 2"_s},
        {u"설교일 > #2023-03-16#"_s, u"3 5"_s},
        {u"설교일 = #2023-03-16 12:00#"_s, u"3"_s},
        {u"설교일 = #1899-12-29 오후 6:00#"_s, u"6"_s},
        {u"설교일 like '2023-03-1*'"_s, u"1 2 3 5"_s},
        {u"일련번호 = 3"_s, u"3"_s},
        {u"일련번호 = -3 or 일련번호 = --3"_s, u"3"_s},
        {u"일련번호 like '[1-2]'"_s, u"1 2"_s},
        {u"제목 & 분류 like 'grace*낮'"_s, u"1"_s},
        {u"일련번호 & '' = '4'"_s, u"4"_s},
        {u"(일련번호 = 2) = true"_s, u"2"_s},
        {u"not (일련번호 < 3 or 제목 is null) and 1"_s, u"3 5 6"_s},
        {u"left(제목, 2) = 'GR'"_s, u"1 2 3"_s},
        {u"Left$(제목, 1) = chr$(45994) or 제목 = chr(176) & 'x'"_s, u"5"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.condition.toStdString());
        EXPECT_EQ(numbers(row.condition).join(u' ').toStdString(), row.found.toStdString());
    }
}

TEST_F(UserQueryTest, DistinctValuesComeSortedWithOneNull)
{
    const auto kinds = database->OpenRecordset(u"select distinct 분류 from 설교"_s);
    EXPECT_EQ(columnOf(*kinds, u"분류"),
              (QStringList{u"NULL"_s, u"수요예배"_s, u"주일 낮"_s, u"주일 밤"_s}));
    const auto falling =
        database->OpenRecordset(u"Select distinct 분류 from 설교 order by 분류 desc"_s);
    EXPECT_EQ(columnOf(*falling, u"분류"),
              (QStringList{u"주일 밤"_s, u"주일 낮"_s, u"수요예배"_s, u"NULL"_s}));
    const auto titles = database->OpenRecordset(u"select 제목 from 설교 order by 제목"_s);
    EXPECT_EQ(columnOf(*titles, u"제목"), (QStringList{u"NULL"_s, u"Grace"_s, u"grace "_s,
                                                       u"GRACE alone"_s, u"가장"_s, u"나중"_s}));
    const auto named = database->OpenRecordset(u"select distinct 분류 as 종류 from 설교"_s);
    EXPECT_EQ(named->Fields(0).Name(), u"종류"_s);
}

TEST_F(UserQueryTest, ASelectIntoMakesATableOfTheSameTypes)
{
    database->Execute(
        u"select 일련번호, 제목 as 이름, 설교일 into 사본 from 설교 where 제목 is not null"_s);
    EXPECT_EQ(database->RecordsAffected(), 5);
    const auto copy = database->OpenRecordset(u"select * from 사본"_s);
    EXPECT_EQ(columnOf(*copy, u"이름").size(), 5);
    EXPECT_EQ(copy->Fields(u"설교일").Type(), FieldType::Date);
    EXPECT_EQ(copy->Fields(u"이름").Size(), 130);
    EXPECT_EQ(errorOf([&] { database->Execute(u"select * into 사본 from 설교"_s); }), 3010);
    engine.commitAll();
    database->Execute(u"select 일련번호 into 둘째 from 설교"_s);
    EXPECT_EQ(database->OpenRecordset(u"둘째"_s)->FieldCount(), 1);
    engine.rollbackAll();
    EXPECT_EQ(errorOf([&] { database->OpenRecordset(u"둘째"_s); }), 3078);
    database->Execute(u"select * into 둘째 from 설교"_s);
    EXPECT_EQ(database->OpenRecordset(u"둘째"_s)->FieldCount(), 5);
    engine.rollbackAll();
    EXPECT_EQ(errorOf([&] { database->Execute(u"select * from 설교"_s); }), 3001);
    EXPECT_EQ(database->TableDefs().Count(), 4);
    EXPECT_EQ(database->TableDefs()(0).Name, u"MSysOrigin"_s);
    EXPECT_EQ(errorOf([&] { database->TableDefs()(4); }), 3265);
    EXPECT_EQ(errorOf([&] { database->TableDefs()(-1); }), 3265);
}

/// The scratch tables hold verse keys; which ones, a test says by verse numbers.
class ScratchTest : public EngineTest
{
protected:
    void SetUp() override
    {
        StoreWriter writer(path(u"scratch"_s), StoreCompare::Binary);
        for (int i = 0; i <= 10; ++i)
            writer.createTable({.name = u"Table%1"_s.arg(i),
                                .columns = {{.name = u"Index"_s, .size = 20}},
                                .indexes = {{u"PrimaryKey"_s, {u"Index"_s}, false, true}}});
        writer.commit();
        database = open(u"SCRATCH"_s, u";pwd=any"_s);
    }

    void add(int table, const QStringList& keys)
    {
        const auto records = database->OpenRecordset(u"table%1"_s.arg(table));
        records->setIndex(u"PrimaryKey"_s);
        for (const QString& key : keys) {
            records->Seek(u"="_s, key);
            if (!records->NoMatch())
                continue;
            records->AddNew();
            records->Fields(u"index").setValue(key);
            records->Update();
        }
    }

    QString found(const QString& sql)
    {
        return columnOf(*database->OpenRecordset(sql), u"Index").join(u' ');
    }

    std::unique_ptr<Database> database;
};

TEST_F(ScratchTest, KeysAreAddedOnceJoinedAndUnited)
{
    add(0, {u"43요:001"_s, u"01창:001"_s, u"43요:001"_s, u"19시:001"_s});
    add(1, {u"66계:001"_s, u"19시:001"_s, u"01창:001"_s});
    EXPECT_EQ(found(u"select * from Table0"_s), u"43요:001 01창:001 19시:001"_s);
    EXPECT_EQ(found(u"select distinct table0.index from Table0 inner join Table1 on Table0.index = "
                    "Table1.index"_s),
              u"01창:001 19시:001"_s);
    EXPECT_EQ(found(u"select distinct index from Table0 union select index from Table1 "_s),
              u"01창:001 19시:001 43요:001 66계:001"_s);
    EXPECT_EQ(found(u"select index from Table0 union all select index from Table1"_s),
              u"43요:001 01창:001 19시:001 66계:001 19시:001 01창:001"_s);
    EXPECT_EQ(
        found(u"select index from Table0 union select index from Table1 order by INDEX desc"_s),
        u"66계:001 43요:001 19시:001 01창:001"_s);
    // An inner join keeps the stored order of its first table.
    EXPECT_EQ(found(u"select table0.index from Table0 inner join Table1 on Table0.index = "
                    "Table1.index"_s),
              u"01창:001 19시:001"_s);
    EXPECT_EQ(found(u"select table1.index from Table1 inner join Table0 on Table0.index = "
                    "Table1.index"_s),
              u"19시:001 01창:001"_s);
    EXPECT_EQ(errorOf([&] {
                  found(u"select index from Table0 inner join Table99 on Table0.index = "
                        "Table99.index"_s);
              }),
              3078);

    database->Execute(u"Delete * from Table0"_s);
    EXPECT_EQ(database->RecordsAffected(), 3);
    database->Execute(u"delete from Table1 where index like '19*'"_s);
    EXPECT_EQ(database->RecordsAffected(), 1);
    EXPECT_EQ(found(u"select * from table0"_s), u""_s);
    EXPECT_EQ(found(u"select * from table1"_s), u"66계:001 01창:001"_s);
}

TEST_F(ScratchTest, TheLeftOfAKeyComparesAsANumber)
{
    add(5, {u"06수:001"_s, u"17에:001"_s, u"18욥:001"_s, u"5신:001"_s, u"66계:001"_s, u"x"_s, u""_s,
            u" 7:"_s});
    EXPECT_EQ(
        found(u"select index from Table5 where Left(index, 2) >= 6 and Left(index, 2) <= 17"_s),
        u"06수:001 17에:001  7:"_s);
    EXPECT_EQ(found(u"select index from Table5 where Left(index, 2) >= 66"_s), u"66계:001"_s);
    EXPECT_EQ(found(u"select index from Table5 where 17 >= Left(index, 2)"_s),
              u"06수:001 17에:001  7:"_s);
    EXPECT_EQ(
        found(u"select index from Table5 where (index like '??욥:*' or index like '??계:*')"_s),
        u"18욥:001 66계:001"_s);
}

} // namespace

} // namespace lumen
