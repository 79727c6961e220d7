// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/combo_habits.h"
#include "platform/controls/item_boxes.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class ComboBoxTest : public testing::Test
{
protected:
    ComboBoxTest()
    {
        combo.onClick = [this] { ++clicks; };
        combo.AddItem(u"개역한글"_s, 101);
        combo.AddItem(u"KJV"_s, 201);
        combo.AddItem(u"BHS"_s, 301);
    }

    ComboBox combo;
    int clicks = 0;
};

TEST_F(ComboBoxTest, FillingChoosesNothingAndTellsNothing)
{
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), QString());
    EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, CodeIsToldOfAChangedIndexOnly)
{
    combo.setListIndex(1);
    combo.setListIndex(1);
    EXPECT_EQ(clicks, 1);
    combo.setListIndex(7);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(clicks, 1);
    combo.setListIndex(-1);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ComboBoxTest, AUserIsToldOfEveryPick)
{
    combo.setListIndex(1);
    clicks = 0;
    combo.show();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(combo.ListIndex(), 2);
    EXPECT_EQ(clicks, 1);
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Return); // the current item once more
    EXPECT_EQ(combo.ListIndex(), 2);
    EXPECT_EQ(clicks, 2);
}

TEST_F(ComboBoxTest, KeysAndWheelPassItemsOverThatThePointerMayPick)
{
    QWidget window;
    combo.setParent(&window);
    QLineEdit other(&window);
    setPassedOver(combo, 1);
    combo.setListIndex(0);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto turn = [this](int delta) {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&combo, &wheel);
        return wheel.isAccepted();
    };
    other.setFocus();
    EXPECT_FALSE(turn(-120)) << "what lies around may scroll";
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(QApplication::focusWidget(), &other);

    combo.setFocus();
    EXPECT_TRUE(turn(-120));
    EXPECT_EQ(combo.ListIndex(), 2);
    QTest::keyClick(&combo, Qt::Key_Up);
    EXPECT_EQ(combo.ListIndex(), 0);
    setPassedOver(combo, 2);
    clicks = 0;
    QTest::keyClick(&combo, Qt::Key_Down); // nothing is left below
    QTest::keyClick(&combo, Qt::Key_End);
    EXPECT_EQ(combo.ListIndex(), 0);
    EXPECT_EQ(clicks, 0);
    EXPECT_FALSE(pickedFromList(combo));

    QTest::keyClick(&combo, Qt::Key_Space);
    QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_TRUE(pickedFromList(combo));
    combo.setParent(nullptr);
}

TEST_F(ComboBoxTest, TypedLettersFindItemsThatAreNotPassedOver)
{
    combo.AddItem(u"BBE"_s, 0, 1);
    combo.AddItem(u"BHS 자음"_s);
    setPassedOver(combo, 1);
    combo.setListIndex(0);
    QTest::keyClick(&combo, 'b');
    EXPECT_EQ(combo.Text(), u"BHS"_s);
    QTest::keyClick(&combo, 'b'); // the next one
    EXPECT_EQ(combo.Text(), u"BHS 자음"_s);
    QTest::keyClick(&combo, 'e'); // no "bbe" but that which is passed over
    EXPECT_EQ(combo.Text(), u"BHS 자음"_s);
    EXPECT_EQ(clicks, 3);
}

TEST_F(ComboBoxTest, InsertingAndRemovingKeepTheChoice)
{
    combo.setListIndex(1);
    combo.AddItem(u"첫째"_s, 0, 0);
    EXPECT_EQ(combo.Text(), u"KJV"_s);
    combo.RemoveItem(0);
    EXPECT_EQ(combo.ListIndex(), 1);
    combo.RemoveItem(1);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(clicks, 1);
}

class ListBoxTest : public testing::Test
{
protected:
    ListBoxTest()
    {
        list.onClick = [this] { ++clicks; };
        list.onDblClick = [this] { ++doubleClicks; };
        list.resize(200, 200);
        list.show();
    }

    QPoint middleOf(int index) { return list.visualItemRect(list.item(index)).center(); }

    ListBox list;
    int clicks = 0;
    int doubleClicks = 0;
};

TEST_F(ListBoxTest, ClicksKeysAndChangedIndexesAreTold)
{
    list.AddItems({u"창1:1"_s, u"창1:2"_s, u"창1:3"_s});
    list.setListIndex(0);
    list.setListIndex(0);
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middleOf(0));
    EXPECT_EQ(clicks, 2);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.Text(), u"창1:2"_s);
    EXPECT_EQ(clicks, 3);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {5, 190}); // below the items
    EXPECT_EQ(clicks, 3);
}

TEST_F(ListBoxTest, EnterActsAsADoubleClick)
{
    list.AddItems({u"창1:1"_s, u"창1:2"_s});
    list.setListIndex(1);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middleOf(1));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(doubleClicks, 2);
}

TEST_F(ListBoxTest, ANewFirstItemKeepsTheChosenOneAndRemovingItClears)
{
    list.AddItems({u"창1:1"_s, u"창1:2"_s});
    list.setListIndex(1);
    list.AddItem(u"요3:16"_s, 0);
    EXPECT_EQ(list.Text(), u"창1:2"_s);
    EXPECT_EQ(list.FindListItem(u"창1:1"_s), 1);
    EXPECT_EQ(list.FindListItem(u"창1"_s), -1);
    list.RemoveItem(2);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace lumen
