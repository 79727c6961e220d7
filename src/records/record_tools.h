// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "forms/edit_menu.h"
#include "records/record_profile.h"
#include "text/basic_text.h"

#include <array>
#include <vector>

namespace lumen {

inline constexpr QStringView kRecordBar = u"표준 도구 모음";
inline constexpr QStringView kFormatBar = u"서식 도구 모음";

inline constexpr EditToolIds kRecordEditTools{
    .menu = u"ID_mn편집", .undo = u"ID_실행취소", .paste = u"ID_붙여넣기"};

/// A colour tool and what it gives the selection.
struct ColorTool
{
    QStringView id;
    QStringView caption;
    RgbLong color = 0;
};
// The order in which a selection's colour is looked for.
inline constexpr std::array<ColorTool, 11> kColorTools{{
    {u"ID_검정", u"검정(&K)", 0},
    {u"ID_빨강", u"빨강(&R)", 255},
    {u"ID_노랑", u"노랑(&Y)", 65535},
    {u"ID_고동", u"고동(&W)", 128},
    {u"ID_군청", u"군청(&N)", 0x800000},
    {u"ID_보라", u"보라(&P)", 0x800080},
    {u"ID_분홍", u"분홍(&I)", 0xFF00FF},
    {u"ID_연두", u"연두(&L)", 65280},
    {u"ID_청록", u"청록(&T)", 0x808000},
    {u"ID_진녹", u"진녹(&G)", 32768},
    {u"ID_파랑", u"파랑(&B)", 0xFF0000},
}};

/// The sizes that the list offers, points.
inline constexpr std::array kFontSizes{8,  9,  10, 11, 12, 14, 16, 18,
                                       20, 22, 24, 26, 28, 36, 48, 72};

/// The tools before and behind the edit menu; what the profile lacks is left out.
std::vector<ToolRow> recordFileRows(const RecordProfile& profile);
std::vector<ToolRow> recordRows(const RecordProfile& profile);

} // namespace lumen
