// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_control_words.h"

#include <algorithm>
#include <array>

namespace lumen {
namespace {

using enum RtfAction;
using Style = RtfCharStyle;

constexpr int kRaised = Style::Superscript | Style::Subscript;

constexpr int alignment(RtfAlignment value)
{
    return static_cast<int>(value);
}

// A skipped destination with something in it that belongs to what the text shows.
constexpr int kLost = 1;

template <typename Part>
constexpr int part(Part value)
{
    return static_cast<int>(value);
}

// In the order of the names. Destinations whose text is not part of the document are skipped;
// those that open with \* are skipped without a row.
constexpr std::array kWords{
    RtfControlWord{"annotation", SkipDestination, kLost},
    RtfControlWord{"ansicpg", AnsiCodePage},
    RtfControlWord{"b", SetFlag, Style::Bold},
    RtfControlWord{"bin", Binary},
    RtfControlWord{"blue", Blue},
    RtfControlWord{"bullet", Character, 0x2022},
    RtfControlWord{"cb", Background},
    RtfControlWord{"cell", CellEnd},
    RtfControlWord{"cellx", RowPart, part(RtfRowPart::Right)},
    RtfControlWord{"cf", Color},
    RtfControlWord{"chcbpat", Background},
    RtfControlWord{"clbrdrb", RowPart, part(RtfRowPart::Border)},
    RtfControlWord{"clbrdrl", RowPart, part(RtfRowPart::Border)},
    RtfControlWord{"clbrdrr", RowPart, part(RtfRowPart::Border)},
    RtfControlWord{"clbrdrt", RowPart, part(RtfRowPart::Border)},
    RtfControlWord{"clvmrg", RowPart, part(RtfRowPart::ContinuesAbove)},
    RtfControlWord{"colortbl", ColorTable},
    RtfControlWord{"comment", SkipDestination},
    RtfControlWord{"deff", DefaultFont},
    RtfControlWord{"deftab", DefaultTab},
    RtfControlWord{"dibitmap", PicturePart, part(RtfPicturePart::Dib)},
    RtfControlWord{"do", SkipDestination, kLost},
    RtfControlWord{"emdash", Character, 0x2014},
    RtfControlWord{"emfblip", PicturePart, part(RtfPicturePart::OtherKind)},
    RtfControlWord{"emspace", Character, 0x2003},
    RtfControlWord{"endash", Character, 0x2013},
    RtfControlWord{"enspace", Character, 0x2002},
    RtfControlWord{"f", Font},
    RtfControlWord{"fcharset", FontCharset},
    RtfControlWord{"fi", FirstLineIndent},
    RtfControlWord{"filetbl", SkipDestination},
    RtfControlWord{"fldinst", SkipDestination},
    RtfControlWord{"fonttbl", FontTable},
    RtfControlWord{"footer", SkipDestination, kLost},
    RtfControlWord{"footerf", SkipDestination, kLost},
    RtfControlWord{"footerl", SkipDestination, kLost},
    RtfControlWord{"footerr", SkipDestination, kLost},
    RtfControlWord{"footnote", SkipDestination, kLost},
    RtfControlWord{"fs", FontSize},
    RtfControlWord{"green", Green},
    RtfControlWord{"header", SkipDestination, kLost},
    RtfControlWord{"headerf", SkipDestination, kLost},
    RtfControlWord{"headerl", SkipDestination, kLost},
    RtfControlWord{"headerr", SkipDestination, kLost},
    RtfControlWord{"highlight", Background},
    RtfControlWord{"i", SetFlag, Style::Italic},
    RtfControlWord{"info", SkipDestination},
    RtfControlWord{"intbl", InTable},
    RtfControlWord{"jpegblip", PicturePart, part(RtfPicturePart::Jpeg)},
    RtfControlWord{"ldblquote", Character, 0x201C},
    RtfControlWord{"li", LeftIndent},
    RtfControlWord{"line", Character, 0x2028},
    RtfControlWord{"listtable", SkipDestination},
    RtfControlWord{"lquote", Character, 0x2018},
    RtfControlWord{"macpict", PicturePart, part(RtfPicturePart::OtherKind)},
    RtfControlWord{"nestcell", Character, '\t'},
    RtfControlWord{"nestrow", ParagraphEnd},
    RtfControlWord{"nonesttables", SkipDestination},
    RtfControlWord{"nonshppict", SkipDestination},
    RtfControlWord{"nosupersub", ClearFlag, kRaised},
    RtfControlWord{"objdata", SkipDestination},
    RtfControlWord{"object", PictureGroup},
    RtfControlWord{"page", ParagraphEnd},
    RtfControlWord{"par", ParagraphEnd},
    RtfControlWord{"pard", PlainParagraph},
    RtfControlWord{"pich", PicturePart, part(RtfPicturePart::Height)},
    RtfControlWord{"pichgoal", PicturePart, part(RtfPicturePart::HeightGoal)},
    RtfControlWord{"picscalex", PicturePart, part(RtfPicturePart::ScaleX)},
    RtfControlWord{"picscaley", PicturePart, part(RtfPicturePart::ScaleY)},
    RtfControlWord{"pict", Picture},
    RtfControlWord{"picw", PicturePart, part(RtfPicturePart::Width)},
    RtfControlWord{"picwgoal", PicturePart, part(RtfPicturePart::WidthGoal)},
    RtfControlWord{"plain", PlainText},
    RtfControlWord{"pmmetafile", PicturePart, part(RtfPicturePart::OtherKind)},
    RtfControlWord{"pngblip", PicturePart, part(RtfPicturePart::Png)},
    RtfControlWord{"qc", Alignment, alignment(RtfAlignment::Center)},
    RtfControlWord{"qj", Alignment, alignment(RtfAlignment::Justify)},
    RtfControlWord{"ql", Alignment, alignment(RtfAlignment::Left)},
    RtfControlWord{"qr", Alignment, alignment(RtfAlignment::Right)},
    RtfControlWord{"rdblquote", Character, 0x201D},
    RtfControlWord{"red", Red},
    RtfControlWord{"ri", RightIndent},
    RtfControlWord{"row", RowEnd},
    RtfControlWord{"rquote", Character, 0x2019},
    RtfControlWord{"rxe", SkipDestination},
    RtfControlWord{"sa", SpaceAfter},
    RtfControlWord{"sb", SpaceBefore},
    RtfControlWord{"sect", ParagraphEnd},
    RtfControlWord{"shpinst", SkipDestination, kLost},
    RtfControlWord{"shppict", PictureGroup},
    RtfControlWord{"sl", LineSpacing},
    RtfControlWord{"slmult", LineMultiple},
    RtfControlWord{"strike", SetFlag, Style::StrikeOut},
    RtfControlWord{"stylesheet", SkipDestination},
    RtfControlWord{"sub", SetFlag, Style::Subscript},
    RtfControlWord{"super", SetFlag, Style::Superscript},
    RtfControlWord{"tab", Character, '\t'},
    RtfControlWord{"tc", SkipDestination},
    RtfControlWord{"trleft", RowPart, part(RtfRowPart::Left)},
    RtfControlWord{"trowd", RowBegin},
    RtfControlWord{"txe", SkipDestination},
    RtfControlWord{"u", Unicode},
    RtfControlWord{"uc", UnicodeSkip},
    RtfControlWord{"ul", SetFlag, Style::Underline},
    RtfControlWord{"uld", SetFlag, Style::Underline},
    RtfControlWord{"uldb", SetFlag, Style::Underline},
    RtfControlWord{"ulnone", ClearFlag, Style::Underline},
    RtfControlWord{"ulw", SetFlag, Style::Underline},
    RtfControlWord{"v", SetFlag, Style::Hidden},
    RtfControlWord{"wbitmap", PicturePart, part(RtfPicturePart::OtherKind)},
    RtfControlWord{"wmetafile", PicturePart, part(RtfPicturePart::Metafile)},
    RtfControlWord{"xe", SkipDestination},
};

static_assert(std::ranges::is_sorted(kWords, {}, &RtfControlWord::name));

} // namespace

const RtfControlWord* findRtfControlWord(std::string_view name)
{
    const auto row = std::ranges::lower_bound(kWords, name, {}, &RtfControlWord::name);
    return row != kWords.end() && row->name == name ? &*row : nullptr;
}

} // namespace lumen
