// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/data_control.h"
#include "panel/units/unit_converter.h"
#include "support/fake_reader.h"
#include "support/test_services.h"

#include <gtest/gtest.h>

#include <QTest>

#include <memory>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class UnitConverterTest : public testing::Test
{
protected:
    UnitConverterTest() { tab.enter(); }

    TestServices test;
    FakeReader reader;
    DataControl dac{test.jet};

    void choose(QRadioButton* family) { family->click(); }

    void pick(int combo, const QString& unit)
    {
        ComboBox& units = *tab.cb단위명(combo);
        const int item = units.findItem(unit);
        ASSERT_GE(item, 0) << unit.toStdString();
        units.setListIndex(item);
    }

    QString resultOf(const QString& value)
    {
        tab.tx단위(0)->setText(value);
        QTest::keyClick(tab.tx단위(0), Qt::Key_Return);
        return tab.tx단위(1)->text();
    }

    UnitConverter tab{PanelHost{test.services, test.state, reader, dac}};
    std::unique_ptr<QWidget> page{tab.page()};
};

TEST_F(UnitConverterTest, ValuesAreConvertedInEveryFamily)
{
    struct Row
    {
        QRadioButton* family;
        QString from;
        QString to;
        QString value;
        QString result;
    };
    const Row rows[] = {
        {tab.Op무게, u"게라(gerah)"_s, u"베가(beka)"_s, u"1"_s, u"0.1"_s},
        {tab.Op무게, u"베가(beka)"_s, u"게라(gerah)"_s, u"1"_s, u"10"_s},
        {tab.Op무게, u"달란트(talent)"_s, u"킬로그램(kg)"_s, u"0.333333333333333"_s,
         u"11.3333333333333"_s},
        {tab.Op무게, u"게라(gerah)"_s, u"달란트(talent)"_s, u"0.5"_s, u"0.00001"_s},
        {tab.Op무게, u"세겔(shekel)"_s, u"그램(g)"_s, u"-2 세겔"_s, u"-22.66666"_s},
        {tab.Op무게, u"세겔(shekel)"_s, u"그램(g)"_s, u"세겔"_s, u"0"_s},
        {tab.Op무게, u"세겔(shekel)"_s, u"그램(g)"_s, QString(), u"0"_s},
        {tab.Op길이, u"손가락 너비(finger)"_s, u"리 (stadion)"_s, u"1"_s, u"0.000103"_s},
        {tab.Op길이, u"규빗 (cubit)"_s, u"cm"_s, u"1e2"_s, u"4560"_s},
        {tab.Op길이, u"안식일허용거리"_s, u"m"_s, u"1"_s, u"912"_s},
        {tab.Op부피, u"에바(ephah)"_s, u"리터(Liter)"_s, u"3"_s, u"68.1"_s},
        {tab.Op부피, u"리터(Liter)"_s, u"록(Log)"_s, u"1"_s, u"3.1718"_s},
        {tab.Op화폐, u"데나리온 (denarius)"_s, u"노동자 품삯(일)"_s, u"200"_s, u"200"_s},
        {tab.Op화폐, u"렙돈(lepton)"_s, u"고드란트 (kodrantes)"_s, u"2"_s, u"1"_s},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE((row.from + u" → "_s + row.to + u' ' + row.value).toStdString());
        choose(row.family);
        pick(0, row.from);
        pick(1, row.to);
        EXPECT_EQ(resultOf(row.value), row.result);
    }
}

TEST_F(UnitConverterTest, AChangeOfUnitOrFamilyConvertsWhatIsTyped)
{
    EXPECT_EQ(resultOf(u"60"_s), u"60"_s);
    pick(1, u"세겔(shekel)"_s);
    EXPECT_EQ(tab.tx단위(1)->text(), u"3"_s);
    choose(tab.Op부피);
    EXPECT_EQ(tab.cb단위명(0)->Text(), u"록(Log)"_s);
    EXPECT_EQ(tab.cb단위명(1)->ListCount(), 16);
    EXPECT_EQ(tab.tx단위(1)->text(), u"60"_s);
    pick(0, u"힌(hin)"_s);
    EXPECT_EQ(tab.tx단위(1)->text(), u"720"_s);

    // Coming back to the tab begins with the weights; the value stays.
    QStringList told;
    tab.setStatus = [&told](const QString& text) { told << text; };
    tab.enter();
    EXPECT_TRUE(tab.Op무게->isChecked());
    EXPECT_EQ(tab.cb단위명(0)->ListCount(), 9);
    EXPECT_EQ(tab.tx단위(0)->text(), u"60"_s);
    EXPECT_EQ(told, QStringList{QString()});
}

} // namespace
} // namespace lumen
