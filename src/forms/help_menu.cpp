// SPDX-License-Identifier: GPL-2.0-or-later
#include "forms/help_menu.h"

#include "forms/results/page_failure.h"
#include "forms/services.h"
#include "platform/controls/bars/tool_dispatch.h"
#include "platform/dialogs/html_help.h"

namespace lumen {

namespace {

constexpr MessageText kHelpMissing{u"도움말 없음", u"도움말을 열 수 없습니다.\r\n%1", 48};

} // namespace

void bindHelpMenu(ToolDispatch& tools, Services& services, QWidget* window, QStringView page)
{
    const auto tell = [&services, window](const Result<Done>& shown) {
        if (!shown)
            tellPageFailure(services, window, kHelpMissing, shown.failure());
    };
    HtmlHelp& help = services.help;
    tools.on(u"ID_목차", [&help, tell, file = page.toString()] { tell(help.showPage(file)); });
    tools.on(u"ID_색인", [&help, tell] { tell(help.showIndex()); });
    tools.on(u"ID_도움말검색", [&help, tell] { tell(help.showSearch()); });
}

} // namespace lumen
