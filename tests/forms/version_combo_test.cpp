// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/book_combo.h"
#include "forms/version_combo.h"
#include "platform/controls/active_tool_bars.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(VersionComboTest, ItemsCarryTheirCodesAndAbsentOnesTheirSuffix)
{
    InstalledFlags installed;
    installed.versions = {101, 201};
    ComboBox combo;
    combo.AddItem(u"예전 것"_s);
    fillVersionCombo(combo, SetClassicCombo(installed, 0));
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.List(0), u"개역한글"_s);
    EXPECT_EQ(combo.List(combo.findItemData(201)), u"KJV"_s);
    EXPECT_EQ(combo.List(combo.findItemData(205)), u"ASV(없음)"_s);
    EXPECT_EQ(combo.findItemData(109), -1);
}

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

TEST(BookComboTest, BooksAndTheirChaptersAreListed)
{
    ComboBox books;
    ComboBox chapters;
    FillBookCombo(books);
    EXPECT_EQ(books.ListCount(), 66);
    EXPECT_EQ(books.List(42), u"요한복음"_s);
    for (const auto& [book, count] : {std::pair{0, 50}, {18, 150}, {30, 1}, {65, 22}}) {
        fillChapterCombo(chapters, book);
        EXPECT_EQ(chapters.ListCount(), count) << book;
        EXPECT_EQ(chapters.List(count - 1), QString::number(count));
    }
    EXPECT_EQ(chapters.ListIndex(), -1);
}

} // namespace
} // namespace lumen
