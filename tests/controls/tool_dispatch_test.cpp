// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/bars/tool_dispatch.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

TEST(ToolDispatchTest, ExactComesBeforeNumbersAndNumbersBeforeTheLongestFamily)
{
    QStringList ran;
    ToolDispatch tools;
    tools.on(u"ID_성서책3", [&] { ran << u"exact"_s; });
    tools.onNumbered(u"ID_", [&](int book) { ran << u"move %1"_s.arg(book); });
    tools.onNumbered(u"ID_성서책", [&](int book) { ran << u"book %1"_s.arg(book); });
    tools.onFamily(u"ID_대역본", [&](const QString& rest) { ran << u"slot "_s + rest; });
    tools.onFamily(u"ID_대역본0-", [&](const QString& rest) { ran << u"base "_s + rest; });
    for (const QString& id :
         {u"ID_성서책3"_s, u"ID_성서책65"_s, u"ID_0"_s, u"ID_대역본0-101"_s, u"ID_대역본2-없음"_s})
        EXPECT_TRUE(tools.run(id));
    EXPECT_EQ(
        ran, (QStringList{u"exact"_s, u"book 65"_s, u"move 0"_s, u"base 101"_s, u"slot 2-없음"_s}));
}

TEST(ToolDispatchTest, AHandlerMayReplaceItself)
{
    int runs = 0;
    ToolDispatch tools;
    tools.on(u"ID_닫기", [&] {
        tools.on(u"ID_닫기", [] {});
        ++runs;
    });
    tools.run(u"ID_닫기"_s);
    tools.run(u"ID_닫기"_s);
    EXPECT_EQ(runs, 1);
}

constexpr std::array kRows{
    ToolRow{u"ID_보기", u"보기", ToolKind::Menu, kMenuBar},
    ToolRow{{}, {}, ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_검색", u"검색", ToolKind::Button, u"ID_보기"},
    ToolRow{u"ID_글자크기1", u"작게", ToolKind::Toggle, u"ID_보기"},
    ToolRow{u"ID_cb장", u"장", ToolKind::Combo, u"이동"},
};

TEST(UnpairedToolsTest, NothingIsAmissWhenAllFits)
{
    ToolDispatch clicks;
    ToolDispatch combos;
    clicks.on(u"ID_검색", [] {});
    clicks.onNumbered(u"ID_글자크기", [](int) {});
    combos.on(u"ID_cb장", [] {});
    const ToolFaults faults = unpairedTools(kRows, clicks, combos);
    EXPECT_EQ(faults.withoutHandler, QStringList());
    EXPECT_EQ(faults.withoutTool, QStringList());
}

TEST(UnpairedToolsTest, BothSidesOfEveryGapAreListed)
{
    ToolDispatch clicks;
    clicks.on(u"ID_cb장", [] {}); // a combo is not answered by clicks
    clicks.on(u"ID_오타", [] {});
    clicks.onFamily(u"ID_대역본", [](const QString&) {});
    const ToolFaults faults = unpairedTools(kRows, clicks);
    EXPECT_EQ(faults.withoutHandler, (QStringList{u"ID_검색"_s, u"ID_글자크기1"_s, u"ID_cb장"_s}));
    EXPECT_EQ(faults.withoutTool, (QStringList{u"ID_cb장"_s, u"ID_오타"_s, u"ID_대역본*"_s}));
}

} // namespace
} // namespace lumen
