// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/engine_fixture.h"
#include "jet/rows/recordset.h"

#include <QFile>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kManyRows = 200; // more than are read ahead at once

TableSchema noteSchema()
{
    return {.name = u"쪽지"_s,
            .columns = {{.name = u"번호"_s, .type = FieldType::Long, .autonumber = true},
                        {.name = u"title"_s, .size = 20},
                        {.name = u"글"_s, .type = FieldType::Memo},
                        {.name = u"날"_s, .type = FieldType::Date},
                        {.name = u"끝"_s, .type = FieldType::Boolean},
                        {.name = u"순서"_s, .type = FieldType::Short}},
            .indexes = {{u"제목"_s, {u"title"_s}, true, false},
                        {u"PrimaryKey"_s, {u"번호"_s}, false, true}}};
}

class RecordsetTest : public EngineTest
{
protected:
    void make(int rows)
    {
        QList<QVariantList> values;
        for (int i = 1; i <= rows; ++i)
            values << QVariantList{i, u"t%1"_s.arg(i), u"글 %1"_s.arg(i), 45000 + i, i % 2 == 0, i};
        makeStore(u"myc.mdb"_s, StoreCompare::Text, noteSchema(), values);
        database = open(u"C:\\data\\MYC.mdb"_s);
    }

    std::unique_ptr<Recordset> all() { return database->OpenRecordset(u"select * from 쪽지"_s); }

    std::unique_ptr<Database> database;
};

TEST_F(RecordsetTest, MovesKeepToThePositionTable)
{
    make(3);
    const auto records = all();
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_EQ(records->AbsolutePosition(), 0);
    records->MovePrevious();
    EXPECT_TRUE(records->Bof());
    EXPECT_FALSE(records->Eof());
    EXPECT_EQ(records->AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { records->MovePrevious(); }), 3021);
    EXPECT_EQ(errorOf([&] { records->Fields(0).Value(); }), 3021);
    records->MoveNext();
    EXPECT_EQ(records->AbsolutePosition(), 0);
    records->MoveLast();
    EXPECT_EQ(Number(records->Fields(u"번호")), 3);
    records->MoveNext();
    EXPECT_TRUE(records->Eof());
    EXPECT_FALSE(records->Bof());
    EXPECT_EQ(errorOf([&] { records->MoveNext(); }), 3021);
    records->MovePrevious();
    EXPECT_EQ(records->AbsolutePosition(), 2);

    records->setAbsolutePosition(0);
    EXPECT_EQ(Text(records->Fields(u"TITLE")), u"t1"_s);
    records->setAbsolutePosition(2);
    EXPECT_EQ(Text(records->Fields(u"title")), u"t3"_s);
    records->setAbsolutePosition(3);
    EXPECT_TRUE(records->Eof());
    EXPECT_EQ(errorOf([&] { records->setAbsolutePosition(-1); }), 3001);
}

TEST_F(RecordsetTest, AnEmptyResultIsBeforeAndBehindItsRecordsAtOnce)
{
    make(0);
    const auto records = all();
    EXPECT_TRUE(records->Bof());
    EXPECT_TRUE(records->Eof());
    EXPECT_EQ(records->RecordCount(), 0);
    for (const auto& move : {&Recordset::MoveFirst, &Recordset::MoveLast, &Recordset::MoveNext,
                             &Recordset::MovePrevious, &Recordset::Edit, &Recordset::Delete})
        EXPECT_EQ(errorOf([&] { (records.get()->*move)(); }), 3021);
    records->setAbsolutePosition(0);
    EXPECT_TRUE(records->Eof());
    EXPECT_EQ(records->FieldCount(), 6);
}

TEST_F(RecordsetTest, WalkingBothWaysReadsEveryRecordOnce)
{
    make(kManyRows);
    const auto records = all();
    for (int i = 1; i <= kManyRows; ++i, records->MoveNext())
        ASSERT_EQ(Number(records->Fields(u"순서")), i);
    ASSERT_TRUE(records->Eof());
    for (int i = kManyRows; i >= 1; --i) {
        records->MovePrevious();
        ASSERT_EQ(Number(records->Fields(u"순서")), i);
    }
}

TEST_F(RecordsetTest, DeletedRecordsLeaveAGapThatTheNextMoveCloses)
{
    for (const int victim : {0, 1, 2}) {
        SCOPED_TRACE(victim);
        make(3);
        const auto records = all();
        records->setAbsolutePosition(victim);
        records->Delete();
        EXPECT_EQ(records->RecordCount(), 2);
        EXPECT_EQ(records->AbsolutePosition(), -1);
        EXPECT_FALSE(records->Bof() || records->Eof());
        EXPECT_EQ(errorOf([&] { records->Fields(0).Value(); }), 3167);
        EXPECT_EQ(errorOf([&] { records->Delete(); }), 3167);
        records->MoveNext();
        if (victim == 2)
            EXPECT_TRUE(records->Eof());
        else
            EXPECT_EQ(Number(records->Fields(u"번호")), victim + 2);
        database->Close();
    }
    make(3);
    const auto records = all();
    for (int left = 3; left > 0; --left, records->MoveNext())
        records->Delete();
    EXPECT_TRUE(records->Eof() && records->Bof());
    EXPECT_EQ(all()->RecordCount(), 0);
}

TEST_F(RecordsetTest, AddedRecordsComeLastAndTheOldOneStaysCurrent)
{
    make(2);
    const auto records = all();
    records->MoveNext();
    records->AddNew();
    EXPECT_EQ(records->editMode(), EditMode::Add);
    EXPECT_EQ(Number(records->Fields(u"번호")), 3);
    EXPECT_TRUE(records->Fields(u"title").Value().isNull());
    EXPECT_EQ(records->Fields(u"끝").Value(), QVariant(0));
    records->Fields(u"title").setValue(u"새 글"_s);
    records->Fields(u"날").setValue(u"2024-02-29"_s);
    records->Update();
    EXPECT_EQ(records->editMode(), EditMode::None);
    EXPECT_EQ(records->RecordCount(), 3);
    EXPECT_EQ(Text(records->Fields(u"title")), u"t2"_s);
    records->setBookmark(records->LastModified());
    EXPECT_EQ(records->AbsolutePosition(), 2);
    EXPECT_EQ(Text(records->Fields(u"title")), u"새 글"_s);
    EXPECT_EQ(records->Fields(u"날").Value(), QVariant(45351));
    EXPECT_TRUE(records->Fields(u"글").Value().isNull());
    // A number that was given is never given again, also not behind a deletion.
    records->Delete();
    records->AddNew();
    EXPECT_EQ(Number(records->Fields(u"번호")), 4);
}

TEST_F(RecordsetTest, AnAutonumberThatIsNotTheKeyIsGivenToNewRecordsAndNeverAgain)
{
    makeStore(u"myc.mdb"_s, StoreCompare::Text,
              {.name = u"쪽지"_s,
               .columns = {{.name = u"title"_s, .size = 20},
                           {.name = u"번호"_s, .type = FieldType::Long, .counter = true}},
               .indexes = {{u"PrimaryKey"_s, {u"title"_s}, true, true}}},
              {{u"a"_s, 7}, {u"b"_s, QVariant()}, {u"c"_s, 3}});
    for (const int number : {8, 9}) {
        SCOPED_TRACE(number);
        const auto former = open(u"myc.mdb"_s);
        const auto records = former->OpenRecordset(u"select title from 쪽지"_s);
        records->AddNew();
        records->Fields(u"title").setValue(u"새 글"_s);
        records->Update();
        const auto table = former->OpenRecordset(u"쪽지"_s);
        table->MoveLast();
        EXPECT_EQ(Number(table->Fields(u"번호")), number);
        table->Edit();
        EXPECT_EQ(errorOf([&] { table->Fields(u"번호").setValue(1); }), 3027);
        table->Delete();
        EXPECT_EQ(columnOf(*table, u"번호"), (QStringList{u"7"_s, u"NULL"_s, u"3"_s}));
        former->Close();
        engine.CompactDatabase(u"myc.mdb"_s, u"copy.mdb"_s);
        ASSERT_TRUE(QFile::remove(path(u"myc.mdb"_s)));
        ASSERT_TRUE(QFile::rename(path(u"copy.mdb"_s), path(u"myc.mdb"_s)));
    }
}

TEST_F(RecordsetTest, ARollbackBringsBackTheRecordsAsTheyStood)
{
    make(5);
    const auto records = all();
    const auto clone = records->Clone();
    clone->MoveLast();
    records->setAbsolutePosition(1);
    records->Delete();
    records->MoveNext();
    records->Delete();
    records->AddNew();
    records->Fields(u"title").setValue(u"새 글"_s);
    records->Update();
    const QByteArray added = records->LastModified();
    EXPECT_EQ(records->RecordCount(), 4);
    engine.rollbackAll();

    EXPECT_EQ(Text(records->Fields(u"title")), u"t3"_s);
    EXPECT_EQ(records->AbsolutePosition(), 2);
    EXPECT_EQ(Text(clone->Fields(u"title")), u"t5"_s);
    EXPECT_EQ(clone->AbsolutePosition(), 4);
    EXPECT_EQ(errorOf([&] { records->setBookmark(added); }), 3167);
    const QStringList titles{u"t1"_s, u"t2"_s, u"t3"_s, u"t4"_s, u"t5"_s};
    EXPECT_EQ(columnOf(*records, u"title"), titles);

    // What was committed since is not undone by a later rollback.
    records->MoveFirst();
    records->Delete();
    engine.commitAll();
    records->MoveNext();
    records->Delete();
    engine.rollbackAll();
    EXPECT_EQ(columnOf(*records, u"title"), titles.sliced(1));
}

TEST_F(RecordsetTest, EditsAreWrittenKeptForAnotherTryOrDropped)
{
    make(3);
    const auto records = all();
    EXPECT_EQ(errorOf([&] { records->Update(); }), 3020);
    EXPECT_EQ(errorOf([&] { records->Fields(u"title").setValue(u"x"_s); }), 3020);
    records->Edit();
    EXPECT_EQ(errorOf([&] { records->Fields(u"title").setValue(QString(21, u'x')); }), 3163);
    EXPECT_EQ(errorOf([&] { records->Fields(u"순서").setValue(u"셋"_s); }), 3421);
    EXPECT_EQ(errorOf([&] { records->Fields(u"날").setValue(u"2023-02-30"_s); }), 3421);
    EXPECT_EQ(errorOf([&] { records->Fields(u"번호").setValue(9); }), 3027);
    EXPECT_EQ(errorOf([&] { records->Fields(u"없음").setValue(9); }), 3265);
    EXPECT_EQ(errorOf([&] { records->Fields(6).setValue(9); }), 3265);
    records->Fields(u"title").setValue(u"t2"_s);
    EXPECT_EQ(errorOf([&] { records->Update(); }), 3022);
    EXPECT_EQ(records->editMode(), EditMode::Edit);
    records->Fields(u"title").setValue(QVariant());
    records->Fields(u"글").setValue(u""_s);
    records->Update();
    EXPECT_EQ(records->AbsolutePosition(), 0);
    EXPECT_TRUE(records->Fields(u"title").Value().isNull());
    EXPECT_EQ(records->Fields(u"글").Value(), QVariant(u""_s));

    records->Edit();
    records->Fields(u"글").setValue(u"버림"_s);
    records->CancelUpdate();
    records->Edit();
    records->Fields(u"글").setValue(u"버림"_s);
    records->MoveNext();
    EXPECT_EQ(records->editMode(), EditMode::None);
    EXPECT_EQ(columnOf(*all(), u"글"), (QStringList{u""_s, u"글 2"_s, u"글 3"_s}));
}

TEST_F(RecordsetTest, BookmarksHoldInClonesAndNowhereElse)
{
    make(kManyRows);
    const auto records = all();
    records->setAbsolutePosition(150);
    const QByteArray mark = records->Bookmark();
    const auto clone = records->Clone();
    EXPECT_EQ(clone->AbsolutePosition(), 0);
    clone->setBookmark(mark);
    EXPECT_EQ(Number(clone->Fields(u"번호")), 151);
    clone->MoveFirst();
    EXPECT_EQ(records->AbsolutePosition(), 150);
    EXPECT_EQ(errorOf([&] { all()->setBookmark(mark); }), 3159);
    EXPECT_EQ(errorOf([&] { records->setBookmark("nonsense"); }), 3159);

    // A record that goes in front of it moves the place, not the bookmark.
    clone->Delete();
    EXPECT_EQ(records->AbsolutePosition(), 149);
    EXPECT_EQ(Number(records->Fields(u"번호")), 151);
    EXPECT_EQ(clone->AbsolutePosition(), -1);
    records->MoveFirst();
    records->setBookmark(mark);
    EXPECT_EQ(Number(records->Fields(u"번호")), 151);
    records->Delete();
    EXPECT_EQ(errorOf([&] { records->setBookmark(mark); }), 3167);
    clone->AddNew();
    EXPECT_EQ(records->editMode(), EditMode::None);
}

TEST_F(RecordsetTest, RecordsetsOfOneFileSeeEachOthersWrites)
{
    make(3);
    const auto first = all();
    const auto other = open(u"myc.mdb"_s);
    const auto second = other->OpenRecordset(u"쪽지"_s);
    EXPECT_EQ(Text(first->Fields(u"글")), u"글 1"_s);
    second->Edit();
    second->Fields(u"글").setValue(u"바뀜"_s);
    second->Update();
    EXPECT_EQ(Text(first->Fields(u"글")), u"바뀜"_s);
    second->Delete();
    EXPECT_EQ(errorOf([&] { first->Fields(u"글").Value(); }), 3167);
    EXPECT_EQ(first->RecordCount(), 3);
    first->MoveNext();
    EXPECT_EQ(Text(first->Fields(u"글")), u"글 2"_s);
}

TEST_F(RecordsetTest, ChunksGiveBackALongText)
{
    make(1);
    const QString longText = QString(70000, u'가') + u"\U0001F4D6끝"_s + QString(9000, u'x');
    const auto records = all();
    records->Edit();
    records->Fields(u"글").setValue(longText);
    records->Update();
    QString whole;
    constexpr qsizetype kChunk = 70001; // cuts the surrogate pair in two
    while (whole.size() < longText.size())
        whole += records->Fields(u"글").GetChunk(whole.size(), kChunk);
    EXPECT_EQ(whole, longText);
    EXPECT_EQ(records->Fields(u"글").GetChunk(longText.size(), 5), u""_s);
    EXPECT_EQ(errorOf([&] { records->Fields(u"글").GetChunk(-1, 5); }), 3001);
}

TEST_F(RecordsetTest, FiltersNarrowAnOpenResult)
{
    for (const int rows : {100, 3000}) {
        SCOPED_TRACE(rows);
        make(rows);
        const auto records = database->OpenRecordset(
            u"select title, 글, 순서 from 쪽지 where 번호 > 9 order by 순서 desc"_s);
        records->setFilter(u"글 like '*1*'"_s);
        EXPECT_EQ(records->RecordCount(), rows - 9);
        const auto once = records->OpenRecordset();
        EXPECT_EQ(once->Filter(), u""_s);
        once->setFilter(u"글 like '*9*' and 번호 < 100"_s);
        const auto twice = once->OpenRecordset();
        EXPECT_EQ(columnOf(*twice, u"순서"), (QStringList{u"91"_s, u"19"_s}));
        EXPECT_EQ(once->OpenRecordset()->Clone()->RecordCount(), 2);
        twice->setFilter(u"없는열 = 1"_s);
        EXPECT_EQ(errorOf([&] { twice->OpenRecordset(); }), 3061);
        twice->setFilter(u"글 like '*[*'"_s);
        EXPECT_EQ(errorOf([&] { twice->OpenRecordset(); }), 93);
        twice->setFilter(u"순서 ="_s);
        EXPECT_EQ(errorOf([&] { twice->OpenRecordset(); }), 3075);
        twice->setFilter(u""_s);
        EXPECT_EQ(twice->OpenRecordset()->RecordCount(), 2);
        database->Close();
    }
}

TEST_F(RecordsetTest, FindFirstGoesToTheFirstMatchOrStays)
{
    make(kManyRows);
    const auto records = database->OpenRecordset(u"select * from 쪽지 order by 번호 desc"_s);
    records->setAbsolutePosition(5);
    records->FindFirst(u"title like 'T5*'"_s);
    EXPECT_FALSE(records->NoMatch());
    EXPECT_EQ(Text(records->Fields(u"title")), u"t59"_s);
    records->FindFirst(u"번호 = 1000"_s);
    EXPECT_TRUE(records->NoMatch());
    EXPECT_EQ(Text(records->Fields(u"title")), u"t59"_s);
    records->FindFirst(u"번호 = 7"_s);
    EXPECT_FALSE(records->NoMatch());
    EXPECT_EQ(records->AbsolutePosition(), kManyRows - 7);
}

TEST_F(RecordsetTest, FixedResultsCanBeSearchedFilteredAndClonedButNotChanged)
{
    make(6);
    const auto records = database->OpenRecordset(u"select distinct 끝, title from 쪽지"_s);
    EXPECT_EQ(columnOf(*records, u"title"),
              (QStringList{u"t2"_s, u"t4"_s, u"t6"_s, u"t1"_s, u"t3"_s, u"t5"_s}));
    EXPECT_EQ(errorOf([&] { records->AddNew(); }), 3027);
    EXPECT_EQ(errorOf([&] { records->Edit(); }), 3027);
    EXPECT_EQ(errorOf([&] { records->Delete(); }), 3027);
    records->FindFirst(u"title = 'T4'"_s);
    EXPECT_EQ(records->AbsolutePosition(), 1);
    const QByteArray mark = records->Bookmark();
    const auto clone = records->Clone();
    clone->setBookmark(mark);
    EXPECT_EQ(Text(clone->Fields(u"title")), u"t4"_s);
    records->setFilter(u"끝 = false"_s);
    const auto odd = records->OpenRecordset();
    EXPECT_EQ(columnOf(*odd, u"title"), (QStringList{u"t1"_s, u"t3"_s, u"t5"_s}));
    odd->setFilter(u"title like '*3'"_s);
    EXPECT_EQ(odd->OpenRecordset()->RecordCount(), 1);
}

TEST_F(RecordsetTest, SeekFindsByTheIndexOfATable)
{
    make(kManyRows);
    const auto table = database->OpenRecordset(u"쪽지"_s);
    EXPECT_EQ(errorOf([&] { table->Seek(u"="_s, u"t7"_s); }), 3019);
    EXPECT_EQ(errorOf([&] { table->setIndex(u"없음"_s); }), 3015);
    table->setIndex(u"제목"_s);
    table->Seek(u"="_s, u"T77 "_s);
    EXPECT_FALSE(table->NoMatch());
    EXPECT_EQ(Number(table->Fields(u"번호")), 77);
    table->Seek(u"="_s, u"t7777"_s);
    EXPECT_TRUE(table->NoMatch());
    table->AddNew();
    table->Fields(u"title").setValue(u"t7777"_s);
    table->Update();
    table->Seek(u"="_s, u"t7777"_s);
    EXPECT_EQ(table->AbsolutePosition(), kManyRows);
    table->setIndex(u"primarykey"_s);
    table->Seek(u"="_s, 12);
    EXPECT_EQ(Text(table->Fields(u"title")), u"t12"_s);
    EXPECT_EQ(errorOf([&] { table->Seek(u">"_s, 12); }), 3001);
    EXPECT_EQ(errorOf([&] { all()->setIndex(u"제목"_s); }), 3001);
}

TEST_F(RecordsetTest, ClosedObjectsSaySo)
{
    make(2);
    const auto records = all();
    const auto clone = records->Clone();
    const auto filtered = records->OpenRecordset();
    records->Close();
    records->Close();
    EXPECT_EQ(errorOf([&] { records->RecordCount(); }), 3420);
    EXPECT_EQ(errorOf([&] { records->MoveFirst(); }), 3420);
    EXPECT_EQ(Number(clone->Fields(u"번호")), 1);
    database->Close();
    for (Recordset* closed : {clone.get(), filtered.get()}) {
        EXPECT_TRUE(closed->isClosed());
        EXPECT_EQ(errorOf([&] { closed->Fields(0).Value(); }), 3420);
        EXPECT_EQ(errorOf([&] { closed->AddNew(); }), 3420);
        EXPECT_EQ(errorOf([&] { closed->FindFirst(u"번호 = 1"_s); }), 3420);
    }
    EXPECT_EQ(errorOf([&] { all(); }), 3420);
    EXPECT_FALSE(engine.isOpen(path(u"myc.mdb"_s)));
}

} // namespace

} // namespace lumen
