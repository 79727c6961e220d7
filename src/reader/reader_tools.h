// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/edit_menu.h"

#include <array>

namespace lumen {

/// The bars of the reader window.
namespace reader_bar {
inline constexpr QStringView kStandard = u"표준 도구 모음";
inline constexpr QStringView kVersions = u"대조 도구 모음";
inline constexpr QStringView kMove1 = u"성서 이동 도구 1";
inline constexpr QStringView kMove2 = u"성서 이동 도구 2";
} // namespace reader_bar

inline constexpr EditToolIds kReaderEditTools{.copyUnicode = u"ID_UnicodeCopy"};

// clang-format off
/// The reader's tools. The version tools ("ID_대역본0-101"), the book tools ("ID_성서책0") and the
/// book buttons ("ID_0") are generated from the catalogue and the canon when the window is made.
inline constexpr std::array kReaderFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_인쇄", u"인쇄(&P)...", ToolKind::Button, u"ID_파일", u"Ctrl+P"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_파일"},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
    ToolRow{u"ID_종료", u"종료(&X)", ToolKind::Button, u"ID_파일", u"Ctrl+Q"},
};
// Stands behind the rows of the edit menu.
inline constexpr std::array kReaderTools{
    ToolRow{u"ID_보기", u"보기(&V)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_표준도구모음", u"표준 도구 모음(&S)", ToolKind::Toggle, u"ID_보기"},
    ToolRow{u"ID_대조도구모음", u"대조 도구 모음(&C)", ToolKind::Toggle, u"ID_보기"},
    ToolRow{u"ID_성서이동도구모음", u"성서 이동 도구 모음(&B)", ToolKind::Toggle, u"ID_보기"},
    ToolRow{u"ID_SidePane", u"이동/책갈피 창(&K)", ToolKind::Toggle, u"ID_보기", u"F9"},
    ToolRow{u"ID_Panel", u"관주/사전 창(&R)", ToolKind::Toggle, u"ID_보기", u"F8", u"panel"},
    ToolRow{u"ID_PanelTab", u"관주/사전 선택(&D)", ToolKind::Menu, u"ID_보기"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_텍스트형식", u"텍스트 형식(&X)", ToolKind::Toggle, u"ID_보기", u"Ctrl+Shift+X", u"text-view"},
    ToolRow{u"ID_테이블형식", u"테이블 형식(&T)", ToolKind::Toggle, u"ID_보기", u"Ctrl+Shift+T", u"table-view"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_줄간격1배", u"줄 간격 1배(&1)", ToolKind::Toggle, u"ID_보기", u"Ctrl+1"},
    ToolRow{u"ID_줄간격1.5배", u"줄 간격 1.5배(&5)", ToolKind::Toggle, u"ID_보기", u"Ctrl+5"},
    ToolRow{u"ID_줄간격2배", u"줄 간격 2배(&2)", ToolKind::Toggle, u"ID_보기", u"Ctrl+2"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_보기"},
    ToolRow{u"ID_글자크기", u"글자 크기(&Z)", ToolKind::Menu, u"ID_보기"},
    ToolRow{u"ID_글자크기5", u"아주 크게(&5)", ToolKind::Toggle, u"ID_글자크기", u"Ctrl+Alt+5"},
    ToolRow{u"ID_글자크기4", u"크게(&4)", ToolKind::Toggle, u"ID_글자크기", u"Ctrl+Alt+4"},
    ToolRow{u"ID_글자크기3", u"보통(&3)", ToolKind::Toggle, u"ID_글자크기", u"Ctrl+Alt+3"},
    ToolRow{u"ID_글자크기2", u"작게(&2)", ToolKind::Toggle, u"ID_글자크기", u"Ctrl+Alt+2"},
    ToolRow{u"ID_글자크기1", u"아주 작게(&1)", ToolKind::Toggle, u"ID_글자크기", u"Ctrl+Alt+1"},
    ToolRow{u"ID_소주제표시", u"소주제 표시(&M)", ToolKind::Toggle, u"ID_보기", u"Ctrl+M"},

    ToolRow{u"ID_Move", u"이동(&M)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_이전장", u"이전 장(&P)", ToolKind::Button, u"ID_Move", u"Ctrl+Left", u"previous-chapter"},
    ToolRow{u"ID_다음장", u"다음 장(&N)", ToolKind::Button, u"ID_Move", u"Ctrl+Right", u"next-chapter"},
    ToolRow{u"ID_QuickMove", u"즉석 이동(&G)", ToolKind::Button, u"ID_Move", u"Ctrl+G", u"quick-move"},
    ToolRow{u"ID_Palette", u"명령과 구절 찾기(&K)...", ToolKind::Button, u"ID_Move", u"Ctrl+K"},
    ToolRow{u"ID_ToText", u"본문으로(&X)", ToolKind::Button, u"ID_Move", u"Ctrl+T"},
    ToolRow{u"ID_AddBookmark", u"책갈피 추가(&B)", ToolKind::Button, u"ID_Move", u"Ctrl+D", u"bookmark"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_Move"},
    ToolRow{u"ID_OldTestament", u"구약(&O)", ToolKind::Menu, u"ID_Move"},
    ToolRow{u"ID_NewTestament", u"신약(&T)", ToolKind::Menu, u"ID_Move"},

    ToolRow{u"ID_Versions", u"역본(&B)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_기본버전", u"기본 역본(&0)", ToolKind::Menu, u"ID_Versions"},
    ToolRow{u"ID_대역본1", u"대역본 1(&1)", ToolKind::Menu, u"ID_Versions"},
    ToolRow{u"ID_대역본2", u"대역본 2(&2)", ToolKind::Menu, u"ID_Versions"},
    ToolRow{u"ID_대역본3", u"대역본 3(&3)", ToolKind::Menu, u"ID_Versions"},

    ToolRow{u"ID_도구", u"도구(&T)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_검색", u"성서 검색(&S)...", ToolKind::Button, u"ID_도구", u"Ctrl+F", u"search"},
    ToolRow{u"ID_본문추출", u"본문 추출(&X)...", ToolKind::Button, u"ID_도구", u"Ctrl+E", u"extract"},
    ToolRow{u"ID_설교매니저", u"설교 매니저(&M)...", ToolKind::Button, u"ID_도구", u"F5"},
    ToolRow{u"ID_QT매니저", u"QT 매니저(&Q)...", ToolKind::Button, u"ID_도구", u"F6"},
    ToolRow{u"ID_예화사전", u"예화 사전(&I)...", ToolKind::Button, u"ID_도구", u"F7"},
    ToolRow{u"ID_성서지도", u"성서 지도(&P)...", ToolKind::Button, u"ID_도구", u"Ctrl+Shift+P"},
    ToolRow{u"ID_인터넷", u"홈페이지(&H)", ToolKind::Button, u"ID_도구"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_도구"},
    ToolRow{u"ID_환경설정", u"환경 설정(&O)...", ToolKind::Button, u"ID_도구", u"Ctrl+,", u"preferences"},
    ToolRow{u"ID_사용자역본환경설정", u"사용자 역본 환경 설정(&U)...", ToolKind::Button, u"ID_도구", u"Ctrl+Alt+U"},

    ToolRow{u"ID_Pages", u"자료(&R)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_성경연대표", u"성경 연대표(&1)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_성경의단위", u"성경의 단위(&2)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_성경의시간", u"성경의 시간(&3)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_열왕대조표", u"열왕 대조표(&4)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_이스라엘의절기", u"이스라엘의 절기(&5)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_구약의제사", u"구약의 제사(&6)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_사복음서대조표", u"사복음서 대조표(&7)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_사복음서대조표(본문포함)", u"사복음서 대조표(본문 포함)(&8)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_역본설명", u"역본 설명(&9)", ToolKind::Button, u"ID_Pages"},
    ToolRow{u"ID_책별소개", u"책별 소개(&0)", ToolKind::Button, u"ID_Pages"},

    ToolRow{u"ID_cb책명", u"책", ToolKind::Combo, reader_bar::kStandard},
    ToolRow{u"ID_cb장", u"장", ToolKind::Combo, reader_bar::kStandard},
    ToolRow{u"ID_이전장", u"이전 장", ToolKind::Button, reader_bar::kStandard},
    ToolRow{u"ID_다음장", u"다음 장", ToolKind::Button, reader_bar::kStandard},
    ToolRow{u"", u"", ToolKind::Separator, reader_bar::kStandard},
    ToolRow{u"ID_텍스트형식", u"텍스트 형식", ToolKind::Toggle, reader_bar::kStandard},
    ToolRow{u"ID_테이블형식", u"테이블 형식", ToolKind::Toggle, reader_bar::kStandard},
    ToolRow{u"", u"", ToolKind::Separator, reader_bar::kStandard},
    ToolRow{u"ID_검색", u"성서 검색", ToolKind::Button, reader_bar::kStandard},
    ToolRow{u"ID_본문추출", u"본문 추출", ToolKind::Button, reader_bar::kStandard},
    ToolRow{u"ID_복사", u"복사", ToolKind::Button, reader_bar::kStandard},

    ToolRow{u"ID_cb기본버전", u"기본 역본", ToolKind::Combo, reader_bar::kVersions},
    ToolRow{u"ID_cb대역본1", u"대역본 1", ToolKind::Combo, reader_bar::kVersions},
    ToolRow{u"ID_cb대역본2", u"대역본 2", ToolKind::Combo, reader_bar::kVersions},
    ToolRow{u"ID_cb대역본3", u"대역본 3", ToolKind::Combo, reader_bar::kVersions},
};
// Stands behind the rows of the help menu.
inline constexpr std::array kReaderHelpTools{
    ToolRow{u"", u"", ToolKind::Separator, u"ID_도움말"},
    ToolRow{u"ID_루멘스크립트에대하여", u"루멘 스크립트에 대하여(&A)...", ToolKind::Button, u"ID_도움말"},
};
// clang-format on

/// A reference page: the tool that opens it and its file under AppPath.
struct ReferencePage
{
    QStringView tool;
    QStringView file;
};

inline constexpr std::array kReferencePages{
    ReferencePage{u"ID_성경연대표", u"\\data\\성경연대표.htm"},
    ReferencePage{u"ID_성경의단위", u"\\data\\성경의단위.htm"},
    ReferencePage{u"ID_성경의시간", u"\\data\\성경의시간.htm"},
    ReferencePage{u"ID_열왕대조표", u"\\data\\열왕대조표.htm"},
    ReferencePage{u"ID_이스라엘의절기", u"\\data\\이스라엘의절기.htm"},
    ReferencePage{u"ID_구약의제사", u"\\data\\구약의제사.htm"},
    ReferencePage{u"ID_사복음서대조표", u"\\data\\사복음서대조표.htm"},
    ReferencePage{u"ID_사복음서대조표(본문포함)", u"\\data\\사복음서대조표(본문포함).htm"},
    ReferencePage{u"ID_역본설명", u"\\data\\역본설명.htm"},
    ReferencePage{u"ID_책별소개", u"\\data\\책별소개(현대인의 성경).htm"},
};

} // namespace lumen
