// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "text/rtf/rtf_content.h"

#include <string_view>

namespace lumen {

/// What a control word does.
enum class RtfAction : quint8 {
    None,
    AnsiCodePage,
    DefaultFont,
    DefaultTab,
    FontTable,
    ColorTable,
    SkipDestination, ///< value: 1 where something is lost to the reader that the text shows
    PictureGroup,    ///< holds a picture, and is kept with it
    Picture,
    FontCharset,
    PicturePart, ///< value: RtfPicturePart
    Red,
    Green,
    Blue,
    Font,
    FontSize,
    Color,
    Background,
    SetFlag,   ///< value: the flag; a parameter of 0 clears it
    ClearFlag, ///< value: the flags
    PlainText,
    Alignment, ///< value: RtfAlignment
    LeftIndent,
    FirstLineIndent,
    RightIndent,
    SpaceBefore,
    SpaceAfter,
    LineSpacing,
    LineMultiple,
    PlainParagraph,
    ParagraphEnd,
    Character, ///< value: the UTF-16 unit
    Unicode,
    UnicodeSkip,
    Binary,
    InTable,
    RowBegin,
    RowPart, ///< value: RtfRowPart
    CellEnd,
    RowEnd,
};

enum class RtfPicturePart : quint8 {
    Png,
    Jpeg,
    Dib,
    Metafile,
    OtherKind,
    Width,
    Height,
    WidthGoal,
    HeightGoal,
    ScaleX,
    ScaleY
};

enum class RtfRowPart : quint8 { Left, Right, ContinuesAbove, Border };

struct RtfControlWord
{
    std::string_view name;
    RtfAction action = RtfAction::None;
    int value = 0;
};

/// The row of a control word, nullptr for one that the program passes over.
const RtfControlWord* findRtfControlWord(std::string_view name);

} // namespace lumen
