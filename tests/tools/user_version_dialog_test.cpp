// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/fake_reader.h"
#include "support/test_services.h"
#include "tools/user_version_dialog.h"

#include <gtest/gtest.h>

#include <QTest>

namespace lumen {
namespace {

using namespace Qt::StringLiterals;

class UserVersionDialogTest : public testing::Test
{
protected:
    UserVersionDialogTest()
    {
        world.fonts.offered = {u"@굴림"_s, u"Arial"_s, u"굴림"_s, u"굴림체"_s};
        world.registry.OpenKey(kBible);
    }
    QString stored(const QString& name)
    {
        world.registry.OpenKey(kBible);
        return world.registry.GetValue(name, ValueKind::String);
    }

    const QString kBible = u"HKEY_CURRENT_USER\\SOFTWARE\\ORVANE\\Lumenscript 2.0\\Bible"_s;
    TestServices world;
    FakeReader reader;
};

TEST_F(UserVersionDialogTest, StoredValuesAreShownAlsoWhenTheListsLackThem)
{
    world.registry.SetValue(u"UserFont2"_s, u"굴림"_s, ValueKind::String);
    world.registry.SetValue(u"UserSize2"_s, u"72"_s, ValueKind::String);
    world.registry.SetValue(u"UserFont6"_s, u"Unknown"_s, ValueKind::String);
    world.registry.SetValue(u"UserSize6"_s, u"13"_s, ValueKind::String);
    world.registry.SetValue(u"UserSize7"_s, u"1000000"_s, ValueKind::String);
    dlogUserVersionPref dialog(world.services, reader);
    EXPECT_EQ(dialog.cbFont(1)->Text(), u"굴림"_s);
    EXPECT_EQ(dialog.cbSize(1)->Text(), u"72"_s);
    EXPECT_EQ(dialog.cbSize(6)->Text(), u"9"_s) << "a mad one is shown as the text is";
    dialog.show();
    QTest::mouseClick(dialog.cmdOK, Qt::LeftButton);
    EXPECT_EQ(stored(u"UserFont6"_s), u"Unknown"_s);
    EXPECT_EQ(stored(u"UserSize6"_s), u"13"_s);
    EXPECT_EQ(stored(u"UserFont15"_s), u"Arial"_s);
    EXPECT_EQ(reader.applications, 1);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(UserVersionDialogTest, ApplyStoresAndStaysCancelStoresNothing)
{
    dlogUserVersionPref dialog(world.services, reader);
    dialog.show();
    dialog.cbSize(14)->setListIndex(dialog.cbSize(14)->findItem(u"48"_s));
    QTest::mouseClick(dialog.cmdApply, Qt::LeftButton);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(stored(u"UserSize15"_s), u"48"_s);

    dialog.cbSize(14)->setListIndex(0);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(stored(u"UserSize15"_s), u"48"_s);
    EXPECT_EQ(reader.applications, 1);
}

} // namespace
} // namespace lumen
