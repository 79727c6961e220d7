// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/edit_menu.h"

#include <array>

namespace lumen {

inline constexpr QStringView kSearchBar = u"검색 도구 모음";

inline constexpr EditToolIds kSearchEditTools{.paste = u"ID_붙여넣기"};

// clang-format off
/// The tools of the search window. The scope tools are made from the scope table, the version tools
/// ("ID_대역본0-101") from the catalogue.
inline constexpr std::array kSearchFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_미리보기", u"미리보기(&V)...", ToolKind::Button, u"ID_파일", u"Ctrl+Shift+P"},
    ToolRow{u"ID_인쇄", u"인쇄(&P)...", ToolKind::Button, u"ID_파일", u"Ctrl+P"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_파일"},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
    ToolRow{u"ID_종료", u"종료(&X)", ToolKind::Button, u"ID_파일", u"Ctrl+Q"},
};
// Stands behind the rows of the edit menu.
inline constexpr std::array kSearchTools{
    ToolRow{u"ID_보기", u"보기(&V)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_쉬운검색", u"쉬운 검색(&1)", ToolKind::Toggle, u"ID_보기", u"Ctrl+1"},
    ToolRow{u"ID_파워검색", u"파워 검색(&2)", ToolKind::Toggle, u"ID_보기", u"Ctrl+2"},
    ToolRow{u"ID_원전분해검색", u"원전분해 검색(&3)", ToolKind::Toggle, u"ID_보기", u"Ctrl+3"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_MarkHits", u"찾은 말 표시(&M)", ToolKind::Toggle, u"ID_보기", u"Ctrl+M"},

    ToolRow{u"ID_Scope", u"범위(&R)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_버전", u"역본(&B)", ToolKind::Menu, kMenuBar},

    ToolRow{u"ID_도구", u"도구(&T)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_검색", u"검색(&S)", ToolKind::Button, u"ID_도구", u"Ctrl+Return", u"search"},
    ToolRow{u"ID_PreviousPage", u"이전 쪽(&P)", ToolKind::Button, u"ID_도구", u"Alt+PgUp"},
    ToolRow{u"ID_NextPage", u"다음 쪽(&N)", ToolKind::Button, u"ID_도구", u"Alt+PgDown"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_도구"},
    ToolRow{u"ID_성경창으로이동", u"성경창으로 이동(&G)", ToolKind::Button, u"ID_도구", u"Ctrl+B"},

    ToolRow{u"ID_쉬운검색", u"쉬운 검색", ToolKind::Toggle, kSearchBar},
    ToolRow{u"ID_파워검색", u"파워 검색", ToolKind::Toggle, kSearchBar},
    ToolRow{u"ID_원전분해검색", u"원전분해 검색", ToolKind::Toggle, kSearchBar},
    ToolRow{u"", u"", ToolKind::Separator, kSearchBar},
    ToolRow{u"ID_검색", u"검색", ToolKind::Button, kSearchBar},
    ToolRow{u"ID_복사", u"복사", ToolKind::Button, kSearchBar},
    ToolRow{u"ID_성경창으로이동", u"성경창으로 이동", ToolKind::Button, kSearchBar},
};
// clang-format on

} // namespace lumen
