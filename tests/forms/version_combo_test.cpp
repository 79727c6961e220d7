// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/versions/book_combo.h"
#include "forms/versions/version_combo.h"
#include "platform/controls/bars/active_tool_bars.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(VersionMenuTest, ToolsAreMadeOnceAndBroughtUpToDate)
{
    QMainWindow window;
    ActiveToolBars bars(window);
    bars.add(ToolRow{u"ID_기본버전", u"기본 버전", ToolKind::Menu, kMenuBar});
    InstalledFlags installed;
    installed.versions = {101};
    setUpVersionMenu(bars, u"ID_기본버전", SetupMenu(installed, 0));
    const qsizetype count = bars.menu(u"ID_기본버전")->actions().size();
    EXPECT_TRUE(bars.tool(u"ID_대역본0-101").enabled());
    EXPECT_FALSE(bars.tool(u"ID_대역본0-201").enabled());
    EXPECT_FALSE(bars.tool(u"ID_대역본0-901").visible());

    installed.versions = {101, 109, 201, 901};
    installed.userTables[0] = u"나의 역본"_s;
    setUpVersionMenu(bars, u"ID_기본버전", SetupMenu(installed, 0));
    EXPECT_EQ(bars.menu(u"ID_기본버전")->actions().size(), count);
    EXPECT_TRUE(bars.tool(u"ID_대역본0-201").enabled());
    EXPECT_TRUE(bars.tool(u"ID_대역본0-901").visible());
    EXPECT_EQ(bars.tool(u"ID_대역본0-901").caption(), u"나의 역본"_s);
    // The place in the combo counts the row that has come in front.
    EXPECT_EQ(bars.tool(u"ID_대역본0-201").tag().toInt(), 8);
}

} // namespace
} // namespace lumen
