// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/data_control.h"
#include "jet/engine_fixture.h"

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

class DataControlTest : public EngineTest
{
protected:
    void SetUp() override
    {
        for (const QString& file : {u"101.dts"_s, u"102.dts"_s, u"qt.mdb"_s})
            makeStore(file, StoreCompare::Text,
                      {.name = u"QT"_s,
                       .columns = {{.name = u"번호"_s, .type = FieldType::Long, .autonumber = true},
                                   {.name = u"분류"_s, .size = 20},
                                   {.name = u"글"_s, .size = 20}}},
                      {{1, u"맑음"_s, file}, {2, u"흐림"_s, file}, {3, u"맑음"_s, file}}, u"pw"_s);
    }

    void show(DataControl& control, const QString& file, const QString& source)
    {
        control.DatabaseName = file;
        control.Connect = u";uid=admin;pwd=pw"_s;
        control.RecordSource = source;
        control.Refresh();
    }
};

TEST_F(DataControlTest, RefreshOpensWhatTheTextsSay)
{
    DataControl control(engine);
    EXPECT_EQ(control.Recordset(), nullptr);
    int repositions = 0;
    control.onReposition = [&] { ++repositions; };
    show(control, u"101.dts"_s, u"QT"_s);
    EXPECT_EQ(repositions, 1);
    EXPECT_EQ(control.Recordset()->RecordCount(), 3);
    control.Recordset()->MoveNext();
    control.Recordset()->FindFirst(u"번호 = 3"_s);
    control.Recordset()->setAbsolutePosition(0);
    EXPECT_EQ(repositions, 4);
    control.RecordSource = u"select * from QT where 번호 > 1"_s;
    EXPECT_EQ(control.Recordset()->RecordCount(), 3);
    control.Refresh();
    EXPECT_EQ(control.Recordset()->RecordCount(), 2);
    show(control, u"102.dts"_s, u"QT"_s);
    EXPECT_EQ(Text(control.Recordset()->Fields(u"글")), u"102.dts"_s);
    EXPECT_FALSE(engine.isOpen(path(u"101.dts"_s)));
    // A window may close recordset and database by themselves.
    control.Recordset()->Close();
    control.Database()->Close();
    control.boundChanged();
    EXPECT_FALSE(engine.isOpen(path(u"102.dts"_s)));
    control.Refresh();
    EXPECT_EQ(control.Recordset()->RecordCount(), 3);
    control.Close();
    EXPECT_EQ(control.Recordset(), nullptr);
    EXPECT_EQ(control.Database(), nullptr);
    EXPECT_FALSE(engine.isOpen(path(u"102.dts"_s)));
}

TEST_F(DataControlTest, AFailedRefreshKeepsTheFormerRecordset)
{
    DataControl control(engine);
    show(control, u"101.dts"_s, u"QT"_s);
    control.Recordset()->MoveLast();
    EXPECT_EQ(errorOf([&] { show(control, u"none.dts"_s, u"QT"_s); }), 3024);
    EXPECT_EQ(errorOf([&] { show(control, u"102.dts"_s, u"없음"_s); }), 3078);
    control.Connect = u";pwd=x"_s;
    EXPECT_EQ(errorOf([&] { control.Refresh(); }), 3031);
    EXPECT_EQ(Text(control.Recordset()->Fields(u"글")), u"101.dts"_s);
    EXPECT_EQ(control.Recordset()->AbsolutePosition(), 2);
    show(control, u"102.dts"_s, u"QT"_s);
    EXPECT_EQ(Text(control.Recordset()->Fields(u"글")), u"102.dts"_s);
}

TEST_F(DataControlTest, AFilteredResultLivesOnWhenTheControlGoesToAnotherFile)
{
    DataControl control(engine);
    show(control, u"101.dts"_s, u"QT"_s);
    control.Recordset()->setFilter(u"분류 = '맑음'"_s);
    auto narrowed = control.Recordset()->OpenRecordset();
    control.setRecordset(narrowed->Clone());
    EXPECT_EQ(control.Recordset()->RecordCount(), 2);
    show(control, u"102.dts"_s, u"QT"_s);
    EXPECT_EQ(columnOf(*narrowed, u"글"), (QStringList{u"101.dts"_s, u"101.dts"_s}));
    narrowed->setFilter(u"번호 > 1"_s);
    EXPECT_EQ(columnOf(*narrowed->OpenRecordset(), u"번호"), QStringList{u"3"_s});
    EXPECT_TRUE(engine.isOpen(path(u"101.dts"_s)));
    narrowed->Close();
    EXPECT_FALSE(engine.isOpen(path(u"101.dts"_s)));
    control.setRecordset(nullptr);
    EXPECT_EQ(control.Recordset(), nullptr);
}

TEST_F(DataControlTest, BoundColumnsFollowTheRecordAndAreWrittenWithIt)
{
    DataControl control(engine);
    QVariant shown;
    QString typed;
    control.bind({u"분류"_s,
                  [&](const QVariant& value) {
                      shown = value;
                      typed = value.toString();
                      control.boundChanged(); // as a control does that tells of each change
                  },
                  [&] { return typed; }});
    show(control, u"qt.mdb"_s, u"select * from QT"_s);
    Recordset& records = *control.Recordset();
    EXPECT_EQ(shown, QVariant(u"맑음"_s));
    EXPECT_EQ(records.editMode(), EditMode::None);
    records.MoveNext();
    EXPECT_EQ(shown, QVariant(u"흐림"_s));

    typed = u"천둥 번개"_s;
    control.boundChanged();
    EXPECT_EQ(records.editMode(), EditMode::Edit);
    records.Update();
    EXPECT_EQ(Text(records.Fields(u"분류")), u"천둥 번개"_s);

    records.AddNew();
    typed = u"새 날씨"_s;
    control.boundChanged();
    EXPECT_EQ(records.editMode(), EditMode::Add);
    records.Update();
    records.setBookmark(records.LastModified());
    EXPECT_EQ(shown, QVariant(u"새 날씨"_s));

    records.MoveFirst();
    records.MovePrevious();
    EXPECT_TRUE(shown.isNull());
    EXPECT_EQ(columnOf(records, u"분류"),
              (QStringList{u"맑음"_s, u"천둥 번개"_s, u"맑음"_s, u"새 날씨"_s}));
}

TEST_F(DataControlTest, OnlyChangedControlsAreStoredByAMoveButAllInANewRecord)
{
    DataControl control(engine);
    QString typed;
    for (const QString& column : {u"분류"_s, u"글"_s})
        control.bind({column,
                      [&, column](const QVariant& value) {
                          if (column == u"분류"_s)
                              typed = value.toString();
                      },
                      [&, column] { return column == u"분류"_s ? typed : u"손대지 않음"_s; }});
    show(control, u"qt.mdb"_s, u"select * from QT"_s);
    Recordset& records = *control.Recordset();
    const auto type = [&](const QString& text) {
        typed = text;
        control.boundChanged();
    };
    type(u"눈"_s);
    records.MoveNext();
    EXPECT_EQ(typed, u"흐림"_s);

    type(u"비"_s);
    records.CancelUpdate();
    EXPECT_EQ(typed, u"흐림"_s);
    records.Edit();
    records.Fields(u"글").setValue(u"버림"_s);
    records.MoveNext();

    // What can't be stored stays in the control, on its record.
    type(QString(21, u'x'));
    EXPECT_EQ(errorOf([&] { records.MovePrevious(); }), 3163);
    EXPECT_EQ(records.AbsolutePosition(), 2);
    EXPECT_EQ(typed.size(), 21);
    type(u"안개"_s);
    records.AddNew();
    records.Update();
    EXPECT_EQ(columnOf(records, u"분류"), (QStringList{u"눈"_s, u"흐림"_s, u"안개"_s, u"안개"_s}));
    EXPECT_EQ(columnOf(records, u"글"),
              (QStringList{u"qt.mdb"_s, u"qt.mdb"_s, u"qt.mdb"_s, u"손대지 않음"_s}));
}

} // namespace

} // namespace lumen
