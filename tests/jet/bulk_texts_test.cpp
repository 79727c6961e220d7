// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/engine_fixture.h"
#include "jet/rows/recordset.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kRows = 500;

/// A column as a whole, and many rows at once.
class BulkTextsTest : public EngineTest
{
protected:
    BulkTextsTest()
    {
        const TableSchema schema{.name = u"Keys"_s,
                                 .columns = {{.name = u"Index"_s, .size = 20},
                                             {.name = u"note"_s, .type = FieldType::Memo}},
                                 .indexes = {{u"PrimaryKey"_s, {u"Index"_s}, true, true}}};
        QList<QVariantList> rows;
        for (int i = 0; i < kRows; ++i)
            rows << QVariantList{key(i), i % 7 == 0 ? QVariant() : QVariant(u"글 %1"_s.arg(i))};
        makeStore(u"scratch"_s, StoreCompare::Binary, schema, rows);
        database = open(u"scratch"_s);
    }

    static QString key(int i) { return u"k%1"_s.arg(i, 4, 10, QLatin1Char('0')); }

    std::unique_ptr<Database> database;
};

TEST_F(BulkTextsTest, AColumnIsWhatAWalkReadsWhicheverRowsAreWanted)
{
    for (const QString& source :
         {u"Keys"_s, u"select * from Keys where Index = 'k0007'"_s,
          u"select * from Keys where Index = 'none'"_s,
          u"select * from Keys where Index like '*0'"_s, // few of many
          u"select * from Keys where Index >= 'k0100'"_s,
          u"select note, Index from Keys order by note"_s, u"select distinct note from Keys"_s,
          u"select distinct note from Keys union select Index from Keys"_s}) {
        SCOPED_TRACE(source.toStdString());
        const auto records = database->OpenRecordset(source);
        QStringList walked = columnOf(*records, u"note");
        walked.replaceInStrings(u"NULL"_s, QString());
        records->setAbsolutePosition(records->RecordCount() > 3 ? 3 : 0);
        const int position = records->AbsolutePosition();
        EXPECT_EQ(records->columnTexts(u"NOTE"), walked);
        EXPECT_EQ(records->AbsolutePosition(), position);
    }
    EXPECT_EQ(errorOf([&] { database->OpenRecordset(u"Keys"_s)->columnTexts(u"no"); }), 3265);
}

TEST_F(BulkTextsTest, AColumnFollowsWhatHasBeenAddedDeletedAndChanged)
{
    const auto records = database->OpenRecordset(u"Keys"_s);
    records->AddNew();
    records->Fields(u"Index").setValue(u"a new one"_s);
    records->Update();
    records->MoveFirst();
    records->Delete();
    const QStringList keys = records->columnTexts(u"Index");
    EXPECT_EQ(keys.size(), kRows);
    EXPECT_EQ(keys.first(), key(1));
    EXPECT_EQ(keys.last(), u"a new one"_s);
    // Gone behind the recordset's back.
    database->Execute(u"delete from Keys where Index = 'k0250'"_s);
    EXPECT_EQ(errorOf([&] { records->columnTexts(u"Index"); }), 3167);
    const auto few = database->OpenRecordset(u"select * from Keys where Index like '*9'"_s);
    database->Execute(u"delete from Keys where Index = 'k0009'"_s);
    EXPECT_EQ(errorOf([&] { few->columnTexts(u"Index"); }), 3167);
}

TEST_F(BulkTextsTest, AppendedTextsStandOnceInTheirOrder)
{
    database->Execute(u"delete * from Keys"_s);
    const QString odd = u"'\"\\[1,2]{}\u0001가힣😀"_s;
    database->AppendTexts(u"keys"_s, u"INDEX"_s, {u"b"_s, u"a"_s, u"b"_s, u""_s, odd, u"007"_s});
    EXPECT_EQ(database->RecordsAffected(), 5);
    database->AppendTexts(u"Keys"_s, u"Index"_s, {u"a"_s, u"c"_s});
    database->AppendTexts(u"Keys"_s, u"Index"_s, {});
    const auto records = database->OpenRecordset(u"Keys"_s);
    EXPECT_EQ(records->columnTexts(u"Index"),
              (QStringList{u"b"_s, u"a"_s, u""_s, odd, u"007"_s, u"c"_s}));
    EXPECT_EQ(columnOf(*records, u"note"), QStringList(6, u"NULL"_s));
}

TEST_F(BulkTextsTest, WhatCantBeAppendedIsAnErrorAndAddsNothing)
{
    const auto count = [&] { return database->OpenRecordset(u"Keys"_s)->RecordCount(); };
    EXPECT_EQ(errorOf([&] { database->AppendTexts(u"None"_s, u"Index"_s, {u"x"_s}); }), 3078);
    EXPECT_EQ(errorOf([&] { database->AppendTexts(u"Keys"_s, u"none"_s, {u"x"_s}); }), 3061);
    EXPECT_EQ(errorOf([&] {
                  database->AppendTexts(u"Keys"_s, u"Index"_s, {u"x"_s, QString(21, u'y')});
              }),
              3163);
    const auto reader = engine.OpenDatabase(u"scratch"_s, false, true);
    EXPECT_EQ(errorOf([&] { reader->AppendTexts(u"Keys"_s, u"Index"_s, {u"x"_s}); }), 3027);
    EXPECT_EQ(count(), kRows);
    database->AppendTexts(u"Keys"_s, u"Index"_s, {u"x"_s});
    EXPECT_EQ(count(), kRows + 1);
    engine.rollbackAll();
    EXPECT_EQ(count(), kRows);
}

} // namespace
} // namespace lumen
