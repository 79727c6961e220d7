// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/edit_menu.h"

#include <array>

namespace lumen {

inline constexpr QStringView kMapBar = u"지도 도구 모음";

inline constexpr EditToolIds kMapEditTools{};

// clang-format off
inline constexpr std::array kMapFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_인쇄", u"인쇄(&P)...", ToolKind::Button, u"ID_파일", u"Ctrl+P"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_파일"},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
    ToolRow{u"ID_종료", u"종료(&X)", ToolKind::Button, u"ID_파일", u"Ctrl+Q"},
};
// Stands behind the rows of the edit menu.
inline constexpr std::array kMapTools{
    ToolRow{u"ID_보기", u"보기(&V)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_도구막대표시", u"도구 막대(&B)", ToolKind::Toggle, u"ID_보기"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_Enlarge", u"확대(&L)", ToolKind::Button, u"ID_보기", u"Ctrl++"},
    ToolRow{u"ID_Reduce", u"축소(&S)", ToolKind::Button, u"ID_보기", u"Ctrl+-"},
    ToolRow{u"ID_ActualSize", u"실제 크기(&A)", ToolKind::Button, u"ID_보기", u"Ctrl+0"},
    ToolRow{u"ID_FitMap", u"창에 맞춤(&W)", ToolKind::Toggle, u"ID_보기", u"Ctrl+9"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_지도목록", u"지도 목록(&1)", ToolKind::Button, u"ID_보기", u"Ctrl+1"},
    ToolRow{u"ID_성경사전", u"성경사전(&2)", ToolKind::Button, u"ID_보기", u"Ctrl+2"},
    ToolRow{u"ID_성구사전", u"성구사전(&3)", ToolKind::Button, u"ID_보기", u"Ctrl+3"},
    ToolRow{u"ID_FindPlace", u"지명 찾기(&F)", ToolKind::Button, u"ID_보기", u"Ctrl+F", u"search"},
    ToolRow{u"ID_ToMap", u"지도로(&M)", ToolKind::Button, u"ID_보기", u"Ctrl+T"},

    ToolRow{u"ID_도구", u"도구(&T)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_성서", u"성서(&B)", ToolKind::Button, u"ID_도구", u"Ctrl+Shift+B"},
    ToolRow{u"ID_설교매니저", u"설교 매니저(&M)...", ToolKind::Button, u"ID_도구", u"F5"},
    ToolRow{u"ID_QT매니저", u"QT 매니저(&Q)...", ToolKind::Button, u"ID_도구", u"F6"},
    ToolRow{u"ID_예화사전", u"예화 사전(&I)...", ToolKind::Button, u"ID_도구", u"F7"},
    ToolRow{u"ID_인터넷", u"홈페이지(&H)", ToolKind::Button, u"ID_도구"},

    ToolRow{u"ID_Enlarge", u"확대", ToolKind::Button, kMapBar},
    ToolRow{u"ID_Reduce", u"축소", ToolKind::Button, kMapBar},
    ToolRow{u"ID_ActualSize", u"실제 크기", ToolKind::Button, kMapBar},
    ToolRow{u"ID_FitMap", u"창에 맞춤", ToolKind::Toggle, kMapBar},
    ToolRow{u"", u"", ToolKind::Separator, kMapBar},
    ToolRow{u"ID_FindPlace", u"지명 찾기", ToolKind::Button, kMapBar},
    ToolRow{u"ID_인쇄", u"인쇄", ToolKind::Button, kMapBar},
    ToolRow{u"ID_성서", u"성서", ToolKind::Button, kMapBar},
};
// clang-format on

} // namespace lumen
