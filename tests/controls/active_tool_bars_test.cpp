// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/bars/active_tool_bars.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr std::array kTools{
    ToolRow{u"ID_편집", u"편집(&E)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_보기", u"보기", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_글자크기", u"글자 크기", ToolKind::Menu, u"ID_보기"},
    ToolRow{u"ID_글자크기1", u"작게", ToolKind::Toggle, u"ID_글자크기"},
    ToolRow{u"ID_글자크기3", u"보통", ToolKind::Toggle, u"ID_글자크기"},
    ToolRow{u"ID_복사", u"복사", ToolKind::Button, u"ID_편집", u"Ctrl+Shift+C"},
    ToolRow{{}, {}, ToolKind::Separator, u"ID_편집"},
    ToolRow{u"ID_지도", u"지도", ToolKind::Button, u"ID_편집"},
    ToolRow{u"ID_다음장", u"다음 장(&N)", ToolKind::Button, u"이동 도구", u"Ctrl+Right"},
    ToolRow{u"ID_cb장", u"장", ToolKind::Combo, u"이동 도구"},
    ToolRow{u"ID_복사", u"복사", ToolKind::Button, u"표준 도구"},
    ToolRow{u"ID_글자크기", u"글자 크기", ToolKind::Menu, u"표준 도구"},
};

class ActiveToolBarsTest : public testing::Test
{
protected:
    ActiveToolBarsTest()
    {
        bars.add(kTools);
        bars.onToolClick = [this](const QString& id) { clicks << id; };
        bars.onComboChange = [this](const QString& id) { changes << id; };
        window.setCentralWidget(new QLineEdit);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    QMainWindow window;
    ActiveToolBars bars{window};
    QStringList clicks;
    QStringList changes;
};

TEST_F(ActiveToolBarsTest, AToolOnABarAndInAMenuIsOneTool)
{
    QAction* copy = window.findChild<QAction*>(u"ID_복사"_s);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(bars.bar(u"표준 도구")->actions().contains(copy));
    EXPECT_TRUE(bars.menu(u"ID_편집")->actions().contains(copy));
    bars.tool(u"ID_복사").setEnabled(false);
    EXPECT_FALSE(bars.bar(u"표준 도구")->widgetForAction(copy)->isEnabled());
}

TEST_F(ActiveToolBarsTest, AShortcutWorksWhileTheBarIsHidden)
{
    bars.setBarVisible(u"이동 도구", false);
    QTest::keyClick(&window, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(clicks, QStringList{u"ID_다음장"_s});
    EXPECT_FALSE(bars.barVisible(u"이동 도구"));
}

TEST_F(ActiveToolBarsTest, OpeningAMenuTellsItsIdBeforeItsToolsShow)
{
    bool enabledWhenShown = true;
    bars.onToolClick = [&](const QString& id) {
        clicks << id;
        bars.tool(u"ID_복사").setEnabled(false);
    };
    bars.popUp(u"ID_편집", QPoint());
    enabledWhenShown = bars.tool(u"ID_복사").enabled();
    EXPECT_TRUE(bars.menu(u"ID_편집")->isVisible());
    EXPECT_FALSE(enabledWhenShown);
    EXPECT_EQ(clicks, QStringList{u"ID_편집"_s});
    bars.menu(u"ID_편집")->close();
}

TEST_F(ActiveToolBarsTest, MenusStandInTheMenuBarInTheirOrderAndDropDownOnABar)
{
    QStringList captions;
    for (const QAction* action : window.menuBar()->actions())
        captions << action->text();
    EXPECT_EQ(captions, (QStringList{u"편집(&E)"_s, u"보기"_s}));
    const auto* button = qobject_cast<QToolButton*>(
        bars.bar(u"표준 도구")->widgetForAction(bars.menu(u"ID_글자크기")->menuAction()));
    ASSERT_TRUE(button);
    EXPECT_EQ(button->popupMode(), QToolButton::InstantPopup);
}

TEST_F(ActiveToolBarsTest, CheckingInCodeTellsNothingAndOneOfAFamilyIsChecked)
{
    bars.tool(u"ID_글자크기1").setChecked(true);
    bars.checkOnly(u"ID_글자크기", u"ID_글자크기3");
    EXPECT_FALSE(bars.tool(u"ID_글자크기1").checked());
    EXPECT_TRUE(bars.tool(u"ID_글자크기3").checked());
    EXPECT_EQ(clicks, QStringList());
}

TEST_F(ActiveToolBarsTest, AComboOnABarTellsItsChange)
{
    ComboBox& chapters = bars.tool(u"ID_cb장").combo();
    EXPECT_EQ(window.findChild<ComboBox*>(u"ID_cb장"_s), &chapters);
    chapters.AddItem(u"1"_s);
    chapters.AddItem(u"2"_s);
    EXPECT_EQ(changes, QStringList());
    chapters.setListIndex(1);
    EXPECT_EQ(changes, QStringList{u"ID_cb장"_s});
    EXPECT_EQ(clicks, QStringList());
}

TEST_F(ActiveToolBarsTest, RowsAddedAtRunTimeKeepTheirOwnTexts)
{
    {
        const QString id = u"ID_대역본0-"_s + QString::number(101);
        const QString caption = u"임시"_s;
        bars.add(ToolRow{id, caption, ToolKind::Toggle, u"ID_보기"});
    }
    bars.tool(u"ID_대역본0-101").setTag(7);
    EXPECT_EQ(bars.tool(u"ID_대역본0-101").caption(), u"임시"_s);
    EXPECT_EQ(bars.tool(u"ID_대역본0-101").tag().toInt(), 7);
    bars.tool(u"ID_대역본0-101").action()->trigger();
    EXPECT_EQ(clicks, QStringList{u"ID_대역본0-101"_s});
    const std::vector<ToolRow> rows = bars.rows();
    EXPECT_EQ(rows.back().id, u"ID_대역본0-101"_s);
    EXPECT_EQ(rows.size(), 10U);
}

} // namespace
} // namespace lumen
