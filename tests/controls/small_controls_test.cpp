// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/colors.h"
#include "platform/controls/flat_spin.h"
#include "platform/controls/named.h"
#include "platform/controls/picture_box.h"
#include "platform/controls/splitter.h"
#include "platform/controls/twips.h"
#include "platform/controls/vs_awk.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(NamedTest, AControlCarriesItsNameCaptionAndSpokenName)
{
    const std::unique_ptr<QPushButton> button(named<QPushButton>(u"cmd승인", u"확인(&O)"));
    EXPECT_EQ(button->objectName(), u"cmd승인"_s);
    EXPECT_EQ(button->text(), u"확인(&O)"_s);
    EXPECT_EQ(button->accessibleName(), u"확인"_s);
    const std::unique_ptr<QLineEdit> box(named<QLineEdit>(u"tx검색", u"검색할 말"));
    EXPECT_EQ(box->text(), QString());
    EXPECT_EQ(box->accessibleName(), u"검색할 말"_s);
}

TEST(ColorsTest, DarkIsReadFromGroundAndText)
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, QColor(230, 230, 230));
    EXPECT_TRUE(isDark(palette));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    EXPECT_FALSE(isDark(palette));
}

TEST(ColorsTest, AColourIsChangedOnlyWhereItCannotBeRead)
{
    const QColor blue(47, 60, 106);
    EXPECT_EQ(readableOn(Qt::white, blue), blue);
    const QColor lighter = readableOn(QColor(30, 30, 30), blue);
    EXPECT_GT(lighter.lightness(), blue.lightness());
    EXPECT_NEAR(lighter.hslHue(), blue.hslHue(), 2);
    EXPECT_GT(readableOn(Qt::black, Qt::black).lightness(), 100);
}

TEST(VsAwkTest, FieldsCountFromOneAndEmptyOnesCountToo)
{
    VsAwk awk;
    awk.setFS(u","_s);
    awk.setText(u"창,출,,막"_s);
    ASSERT_EQ(awk.NF(), 4);
    EXPECT_EQ(awk.F(1), u"창"_s);
    EXPECT_EQ(awk.F(3), QString());
    EXPECT_EQ(awk.F(4), u"막"_s);
    EXPECT_EQ(awk.F(5), QString());
    EXPECT_EQ(awk.F(0), u"창,출,,막"_s);
    awk.setText(QString());
    EXPECT_EQ(awk.NF(), 0);
}

TEST(PictureBoxTest, MouseAndKeysClickIt)
{
    PictureBox box;
    int clicks = 0;
    box.onClick = [&] { ++clicks; };
    box.show();
    QTest::mouseClick(&box, Qt::LeftButton);
    QTest::mouseClick(&box, Qt::RightButton);
    QTest::keyClick(&box, Qt::Key_Space);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(clicks, 3);
}

class SplitterTest : public testing::Test
{
protected:
    SplitterTest()
    {
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.resize(1000 + splitter.handleWidth(), 100);
        splitter.show();
    }

    Splitter splitter;
};

TEST_F(SplitterTest, TheRatioSurvivesAResize)
{
    splitter.setRatio(0.59);
    EXPECT_NEAR(splitter.sizes()[0], 590, 1);
    splitter.resize(500 + splitter.handleWidth(), 100);
    EXPECT_NEAR(splitter.sizes()[0], 295, 1);
    EXPECT_DOUBLE_EQ(splitter.ratio(), 0.59);
}

TEST_F(SplitterTest, TheUserChangesTheRatioAndIsTold)
{
    int moves = 0;
    splitter.onMoved = [&] { ++moves; };
    splitter.setRatio(0.5);
    EXPECT_EQ(moves, 0);
    QWidget* bar = splitter.handle(1);
    QTest::mousePress(bar, Qt::LeftButton);
    QTest::mouseMove(bar, bar->rect().center() + QPoint(-200, 0));
    QTest::mouseRelease(bar, Qt::LeftButton, {}, bar->rect().center() + QPoint(-200, 0));
    EXPECT_GT(moves, 0);
    EXPECT_NEAR(splitter.ratio(), double(splitter.sizes()[0]) / 1000, 0.001);
    EXPECT_LT(splitter.ratio(), 0.5);
}

TEST(FlatSpinTest, ANewNumberIsTold)
{
    FlatSpin spin;
    int changes = 0;
    spin.onChange = [&] { ++changes; };
    QTest::keyClick(&spin, Qt::Key_Up);
    spin.setNumber(1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(spin.Value(), 1);
}

} // namespace
} // namespace lumen
