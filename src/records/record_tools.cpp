// SPDX-License-Identifier: GPL-2.0-or-later
#include "records/record_tools.h"

#include "forms/help_menu.h"

namespace lumen {
namespace {

// clang-format off
constexpr std::array kFileMenu{
    // id, caption, kind, bar or menu that it stands on, shortcut, icon
    ToolRow{u"ID_파일", u"파일(&F)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_저장", u"저장(&S)", ToolKind::Button, u"ID_파일", u"Ctrl+S", u"save"},
    ToolRow{u"ID_인쇄", u"인쇄(&P)...", ToolKind::Button, u"ID_파일", u"Ctrl+P"},
    ToolRow{u"ID_전체자료인쇄", u"전체 자료 인쇄(&A)...", ToolKind::Button, u"ID_파일"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_파일"},
    ToolRow{u"ID_Export", u"추출(&E)", ToolKind::Menu, u"ID_파일"},
    ToolRow{u"ID_MS워드로추출", u"MS 워드로 추출(&W)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"ID_HWP로추출", u"한글2002로 추출(&H)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"ID_RTF파일로추출", u"RTF 파일로 추출(&R)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"ID_텍스트파일로추출", u"텍스트 파일로 추출(&T)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"ID_HTML로저장", u"HTML로 저장(&M)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_Export"},
    ToolRow{u"ID_HWPX로추출", u"한글 문서(HWPX)로 추출(&X)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"ID_ODT로추출", u"ODT 문서로 추출(&O)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"ID_PDF로추출", u"PDF 문서로 추출(&P)...", ToolKind::Button, u"ID_Export"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_파일"},
    ToolRow{u"ID_닫기", u"닫기(&C)", ToolKind::Button, u"ID_파일", u"Ctrl+W", u"close"},
    ToolRow{u"ID_종료", u"종료(&X)", ToolKind::Button, u"ID_파일", u"Ctrl+Q"},
};
// More of the edit menu.
constexpr std::array kMoreEditing{
    ToolRow{u"", u"", ToolKind::Separator, u"ID_mn편집"},
    ToolRow{u"ID_Redo", u"다시 실행(&R)", ToolKind::Button, u"ID_mn편집", u"Ctrl+Y"},
    ToolRow{u"ID_PastePlain", u"서식 없이 붙이기(&W)", ToolKind::Button, u"ID_mn편집", u"Ctrl+Shift+V"},

    ToolRow{u"ID_View", u"보기(&V)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_Box1", u"", ToolKind::Button, u"ID_View", u"Ctrl+1"},
    ToolRow{u"ID_Box2", u"", ToolKind::Button, u"ID_View", u"Ctrl+2"},
    ToolRow{u"ID_Box3", u"", ToolKind::Button, u"ID_View", u"Ctrl+3"},
    ToolRow{u"ID_Box4", u"", ToolKind::Button, u"ID_View", u"Ctrl+4"},
    ToolRow{u"ID_Box5", u"", ToolKind::Button, u"ID_View", u"Ctrl+5"},
};
constexpr std::array kFormatMenu{
    ToolRow{u"ID_Format", u"서식(&O)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_굵게", u"굵게(&B)", ToolKind::Toggle, u"ID_Format", u"Ctrl+B", u"bold"},
    ToolRow{u"ID_기울임꼴", u"기울임꼴(&I)", ToolKind::Toggle, u"ID_Format", u"Ctrl+I", u"italic"},
    ToolRow{u"ID_밑줄", u"밑줄(&U)", ToolKind::Toggle, u"ID_Format", u"Ctrl+U", u"underline"},
    ToolRow{u"ID_mnColor", u"글자 색(&C)", ToolKind::Menu, u"ID_Format"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_Format"},
    ToolRow{u"ID_좌측정렬", u"왼쪽 정렬(&L)", ToolKind::Toggle, u"ID_Format", u"Ctrl+Shift+L", u"align-left"},
    ToolRow{u"ID_중앙정렬", u"가운데 정렬(&E)", ToolKind::Toggle, u"ID_Format", u"Ctrl+Shift+E", u"align-center"},
    ToolRow{u"ID_우측정렬", u"오른쪽 정렬(&R)", ToolKind::Toggle, u"ID_Format", u"Ctrl+Shift+R", u"align-right"},
};
constexpr std::array kToolMenu{
    ToolRow{u"ID_mn도구", u"도구(&T)", ToolKind::Menu, kMenuBar},
    ToolRow{u"ID_성구삽입", u"성구 삽입(&I)...", ToolKind::Button, u"ID_mn도구", u"Ctrl+J"},
    ToolRow{u"ID_검색", u"검색(&S)...", ToolKind::Button, u"ID_mn도구", u"Ctrl+F", u"search"},
    ToolRow{u"", u"", ToolKind::Separator, u"ID_mn도구"},
    ToolRow{u"ID_성서", u"성서(&B)", ToolKind::Button, u"ID_mn도구", u"Ctrl+Shift+B"},
    ToolRow{u"ID_성서지도", u"성서 지도(&P)...", ToolKind::Button, u"ID_mn도구"},
    ToolRow{u"ID_예화사전", u"예화 사전(&Y)...", ToolKind::Button, u"ID_mn도구", u"F7"},
};
constexpr std::array kMailMenu{
    ToolRow{u"", u"", ToolKind::Separator, u"ID_mn도구"},
    ToolRow{u"ID_전자우편주소록편집", u"전자우편 주소록 편집(&A)...", ToolKind::Button, u"ID_mn도구"},
    ToolRow{u"ID_설교문발송", u"설교문 발송(&M)...", ToolKind::Button, u"ID_mn도구"},
    ToolRow{u"ID_전자우편환경설정", u"전자우편 환경 설정(&O)...", ToolKind::Button, u"ID_mn도구"},
};
constexpr std::array kLastTools{
    ToolRow{u"", u"", ToolKind::Separator, u"ID_mn도구"},
    ToolRow{u"ID_인터넷", u"홈페이지(&H)", ToolKind::Button, u"ID_mn도구"},
};
constexpr std::array kFormatBarRows{
    ToolRow{u"ID_서체", u"글꼴", ToolKind::Combo, kFormatBar},
    ToolRow{u"ID_크기", u"글자 크기", ToolKind::Combo, kFormatBar},
    ToolRow{u"", u"", ToolKind::Separator, kFormatBar},
    ToolRow{u"ID_굵게", u"굵게", ToolKind::Toggle, kFormatBar},
    ToolRow{u"ID_기울임꼴", u"기울임꼴", ToolKind::Toggle, kFormatBar},
    ToolRow{u"ID_밑줄", u"밑줄", ToolKind::Toggle, kFormatBar},
    ToolRow{u"ID_Color", u"글자 색", ToolKind::Button, kFormatBar, u"", u"text-color"},
    ToolRow{u"", u"", ToolKind::Separator, kFormatBar},
    ToolRow{u"ID_좌측정렬", u"왼쪽 정렬", ToolKind::Toggle, kFormatBar},
    ToolRow{u"ID_중앙정렬", u"가운데 정렬", ToolKind::Toggle, kFormatBar},
    ToolRow{u"ID_우측정렬", u"오른쪽 정렬", ToolKind::Toggle, kFormatBar},
};
// clang-format on

void add(std::vector<ToolRow>& rows, std::span<const ToolRow> more, const RecordProfile& profile)
{
    for (const ToolRow& row : more)
        if (!profile.lacksTool(row.id))
            rows.push_back(row);
}

void addRecordMenu(std::vector<ToolRow>& rows, const RecordTools& tools)
{
    constexpr QStringView kMenu = u"ID_Record";
    const ToolRow separator{u"", u"", ToolKind::Separator, kMenu};
    const auto button = [](const RecordTool& tool, QStringView key, QStringView icon = {}) {
        return ToolRow{tool.id, tool.caption, ToolKind::Button, kMenu, key, icon};
    };
    rows.push_back({kMenu, tools.menu, ToolKind::Menu, kMenuBar});
    rows.push_back(button(tools.create, u"Ctrl+N", u"new-record"));
    rows.push_back(separator);
    rows.push_back(button(tools.first, u"Alt+Home", u"first-record"));
    rows.push_back(button(tools.previous, u"Alt+PgUp", u"previous-chapter"));
    rows.push_back(button(tools.next, u"Alt+PgDown", u"next-chapter"));
    rows.push_back(button(tools.last, u"Alt+End", u"last-record"));
    rows.push_back(button(tools.list, u"Ctrl+L", u"record-list"));
    rows.push_back(separator);
    rows.push_back(button(tools.remove, u"Ctrl+Shift+D", u"delete-record"));
    rows.push_back(
        {u"ID_History", u"이전 상태와 지운 것(&H)...", ToolKind::Button, kMenu, u"Ctrl+H"});
}

void addRecordBar(std::vector<ToolRow>& rows, const RecordTools& tools)
{
    const ToolRow separator{u"", u"", ToolKind::Separator, kRecordBar};
    const auto button = [](QStringView id) {
        return ToolRow{id, u"", ToolKind::Button, kRecordBar};
    };
    rows.push_back(button(tools.create.id));
    rows.push_back(button(u"ID_저장"));
    rows.push_back(separator);
    for (const RecordTool& tool : {tools.first, tools.previous, tools.next, tools.last})
        rows.push_back(button(tool.id));
    rows.push_back(separator);
    rows.push_back(button(tools.list.id));
    rows.push_back(button(u"ID_검색"));
    rows.push_back(button(tools.remove.id));
    rows.push_back(separator);
    for (const QStringView id : {u"ID_잘라내기", u"ID_복사", u"ID_붙여넣기"})
        rows.push_back(button(id));
}

} // namespace

std::vector<ToolRow> recordFileRows(const RecordProfile& profile)
{
    std::vector<ToolRow> rows;
    add(rows, kFileMenu, profile);
    return rows;
}

std::vector<ToolRow> recordRows(const RecordProfile& profile)
{
    std::vector<ToolRow> rows;
    add(rows, kMoreEditing, profile);
    addRecordMenu(rows, profile.tools);
    add(rows, kFormatMenu, profile);
    for (const ColorTool& tool : kColorTools)
        rows.push_back({tool.id, tool.caption, ToolKind::Toggle, u"ID_mnColor"});
    add(rows, kToolMenu, profile);
    rows.push_back({profile.tools.otherManager.id, profile.tools.otherManager.caption,
                    ToolKind::Button, u"ID_mn도구",
                    profile.hasPreachedDay() ? QStringView(u"F6") : QStringView(u"F5")});
    if (!profile.lacksTool(u"ID_설교문발송"))
        add(rows, kMailMenu, profile);
    add(rows, kLastTools, profile);
    addRecordBar(rows, profile.tools);
    add(rows, kFormatBarRows, profile);
    rows.insert(rows.end(), kHelpMenu.begin(), kHelpMenu.end());
    return rows;
}

} // namespace lumen
