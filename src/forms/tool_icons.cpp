// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/tool_icons.h"

#include "platform/controls/active_tool_bars.h"

#include <array>

// A static library's resources are linked only when they are asked for, outside any namespace.
static void initIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTrialSize = 16;

struct ToolIcon
{
    QStringView tool;
    QStringView icon;
};

constexpr std::array kToolIcons{
    ToolIcon{u"ID_AddBookmark", u"bookmark"},
    ToolIcon{u"ID_Panel", u"panel"},
    ToolIcon{u"ID_QuickMove", u"quick-move"},
    ToolIcon{u"ID_UnicodeCopy", u"copy-unicode"},
    ToolIcon{u"ID_검색", u"search"},
    ToolIcon{u"ID_다음장", u"next-chapter"},
    ToolIcon{u"ID_닫기", u"close"},
    ToolIcon{u"ID_목차", u"help"},
    ToolIcon{u"ID_복사", u"copy"},
    ToolIcon{u"ID_본문추출", u"extract"},
    ToolIcon{u"ID_붙여넣기", u"paste"},
    ToolIcon{u"ID_붙이기", u"paste"},
    ToolIcon{u"ID_이전장", u"previous-chapter"},
    ToolIcon{u"ID_잘라내기", u"cut"},
    ToolIcon{u"ID_테이블형식", u"table-view"},
    ToolIcon{u"ID_텍스트형식", u"text-view"},
    ToolIcon{u"ID_환경설정", u"preferences"},
};

QIcon iconNamed(QStringView name)
{
    initIconResources();
    const QIcon icon(u":/icons/%1.svg"_s.arg(name));
    // Without the plug-in the icon counts as one and paints nothing.
    return icon.pixmap(kTrialSize).isNull() ? QIcon() : icon;
}

} // namespace

void setToolIcons(const ActiveToolBars& bars)
{
    for (const ToolIcon& row : kToolIcons)
        if (Tool tool = bars.tool(row.tool); tool.exists())
            tool.setIcon(iconNamed(row.icon));
}

QIcon programIcon()
{
    return iconNamed(u"lumenscript");
}

} // namespace lumen
