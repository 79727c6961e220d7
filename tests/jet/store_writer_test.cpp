// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/engine_fixture.h"
#include "jet/sqlite_probe.h"

#include <QDate>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

TableSchema sermons()
{
    return {.name = u"설교"_s,
            .columns = {{.name = u"일련번호"_s, .type = FieldType::Long, .autonumber = true},
                        {.name = u"제목"_s, .type = FieldType::Text, .size = 80},
                        {.name = u"내용"_s, .type = FieldType::Memo},
                        {.name = u"날짜"_s, .type = FieldType::Date},
                        {.name = u"끝냄"_s, .type = FieldType::Boolean},
                        {.name = u"번호"_s, .type = FieldType::Text, .size = 10, .required = true}},
            .indexes = {{.name = u"PrimaryKey"_s, .columns = {u"일련번호"_s}, .primary = true},
                        {.name = u"번호"_s, .columns = {u"번호"_s}, .unique = true}}};
}

using StoreWriterTest = EngineTest;

TEST_F(StoreWriterTest, RowsKeepOrderTypesNullAndEmptyText)
{
    StoreWriter writer(path(u"a.mdb"_s), StoreCompare::Text);
    writer.createTable(sermons());
    writer.addRow(u"설교"_s, {1, u"첫째"_s, QVariant(), QDate(2024, 2, 29), true, u"007"_s});
    writer.addRow(u"설교"_s, {QVariant(), u""_s, u"글"_s, -1.75, QVariant(), u"b"_s});
    writer.commit();

    EXPECT_EQ(rawRows(path(u"a.mdb"_s), R"(SELECT *, typeof("번호") FROM "설교" ORDER BY rowid)"),
              (QStringList{u"1|첫째|NULL|45351|-1|007|text"_s, u"2||글|-1.75|0|b|text"_s}));
    EXPECT_EQ(rawRows(path(u"a.mdb"_s), "SELECT value FROM MSysStore WHERE key='compare'"),
              QStringList{u"text"_s});
    EXPECT_EQ(files(), QStringList{u"a.mdb"_s});
}

TEST_F(StoreWriterTest, AFailedStoreLeavesTheFormerFileAndNothingElse)
{
    write(u"a.mdb"_s, "former");
    {
        StoreWriter writer(path(u"a.mdb"_s), StoreCompare::Text);
        writer.createTable(sermons());
        const QVariantList row{1, u"가"_s, QVariant(), QVariant(), false, u"x"_s};
        writer.addRow(u"설교"_s, row);
        EXPECT_EQ(errorOf([&] { writer.addRow(u"설교"_s, {2, u"나"_s}); }), 3001);
        EXPECT_EQ(errorOf([&] { writer.addRow(u"없음"_s, {}); }), 3078);
        EXPECT_EQ(errorOf([&] { writer.createTable(sermons()); }), 3010);
        EXPECT_EQ(
            errorOf([&] {
                writer.addRow(u"설교"_s, {3, u"다"_s, QVariant(), QVariant(), false, QVariant()});
            }),
            3314);
        EXPECT_EQ(errorOf([&] { writer.addRow(u"설교"_s, row); }), 3022);
        // Two rows of one number: the unique index of commit() refuses them.
        writer.addRow(u"설교"_s, {4, u"라"_s, QVariant(), QVariant(), false, u"x"_s});
        EXPECT_EQ(errorOf([&] { writer.commit(); }), 3022);
    }
    EXPECT_EQ(files(), QStringList{u"a.mdb"_s});
    EXPECT_EQ(bytesOf(u"a.mdb"_s), "former");
    EXPECT_EQ(
        errorOf([&] { const StoreWriter writer(path(u"no/such/a.mdb"_s), StoreCompare::Text); }),
        3183);
}

} // namespace

} // namespace lumen
