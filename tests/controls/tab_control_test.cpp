// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/tab_control.h"

#include <gtest/gtest.h>

#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

class TabControlTest : public testing::Test
{
protected:
    TabControlTest()
    {
        for (const QString& caption : {u"관주"_s, u"성구사전"_s, u"개인주석"_s})
            tabs.addTab(new QWidget, caption);
        tabs.resize(600, 300);
        tabs.show();
        tabs.onTabClick = [this](int tab, int previous) {
            events << u"tab %1 from %2"_s.arg(tab).arg(previous);
        };
        tabs.onHeaderClick = [this](int tab) { events << u"header %1"_s.arg(tab); };
    }

    void clickHeader(int tab)
    {
        QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(tab).center());
    }

    TabControl tabs;
    QStringList events;
};

TEST_F(TabControlTest, AnotherTabIsATabClickTheCurrentOneAHeaderClick)
{
    clickHeader(2);
    clickHeader(2);
    clickHeader(0);
    EXPECT_EQ(events, (QStringList{u"tab 2 from 0"_s, u"header 2"_s, u"tab 0 from 2"_s}));
}

TEST_F(TabControlTest, ATabChosenByCodeIsToldWithTheOneBefore)
{
    EXPECT_TRUE(tabs.selectCaption(u"개인주석"_s));
    EXPECT_FALSE(tabs.selectCaption(u"사전"_s));
    EXPECT_EQ(events, QStringList{u"tab 2 from 0"_s});
    EXPECT_EQ(tabs.Caption(), u"개인주석"_s);
}

TEST_F(TabControlTest, ACollapsedControlKeepsItsHeadersAlone)
{
    tabs.setCollapsed(true);
    EXPECT_EQ(tabs.height(), tabs.headerHeight());
    EXPECT_TRUE(tabs.tabBar()->isVisible());
    tabs.setCollapsed(false);
    tabs.resize(600, 300);
    EXPECT_EQ(tabs.height(), 300);
}

} // namespace
} // namespace lumen
