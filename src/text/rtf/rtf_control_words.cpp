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

// In the order of the names. Destinations whose text is not part of the document are skipped;
// those that open with \* are skipped without a row.
constexpr std::array kWords{
    RtfControlWord{"annotation", SkipDestination},
    RtfControlWord{"ansicpg", AnsiCodePage},
    RtfControlWord{"b", SetFlag, Style::Bold},
    RtfControlWord{"bin", Binary},
    RtfControlWord{"blue", Blue},
    RtfControlWord{"bullet", Character, 0x2022},
    RtfControlWord{"cb", Background},
    RtfControlWord{"cell", Character, '\t'},
    RtfControlWord{"cf", Color},
    RtfControlWord{"chcbpat", Background},
    RtfControlWord{"colortbl", ColorTable},
    RtfControlWord{"comment", SkipDestination},
    RtfControlWord{"deff", DefaultFont},
    RtfControlWord{"deftab", DefaultTab},
    RtfControlWord{"emdash", Character, 0x2014},
    RtfControlWord{"emspace", Character, 0x2003},
    RtfControlWord{"endash", Character, 0x2013},
    RtfControlWord{"enspace", Character, 0x2002},
    RtfControlWord{"f", Font},
    RtfControlWord{"fcharset", FontCharset},
    RtfControlWord{"fi", FirstLineIndent},
    RtfControlWord{"filetbl", SkipDestination},
    RtfControlWord{"fldinst", SkipDestination},
    RtfControlWord{"fonttbl", FontTable},
    RtfControlWord{"footer", SkipDestination},
    RtfControlWord{"footerf", SkipDestination},
    RtfControlWord{"footerl", SkipDestination},
    RtfControlWord{"footerr", SkipDestination},
    RtfControlWord{"footnote", SkipDestination},
    RtfControlWord{"fs", FontSize},
    RtfControlWord{"green", Green},
    RtfControlWord{"header", SkipDestination},
    RtfControlWord{"headerf", SkipDestination},
    RtfControlWord{"headerl", SkipDestination},
    RtfControlWord{"headerr", SkipDestination},
    RtfControlWord{"highlight", Background},
    RtfControlWord{"i", SetFlag, Style::Italic},
    RtfControlWord{"info", SkipDestination},
    RtfControlWord{"ldblquote", Character, 0x201C},
    RtfControlWord{"li", LeftIndent},
    RtfControlWord{"line", Character, 0x2028},
    RtfControlWord{"listtable", SkipDestination},
    RtfControlWord{"lquote", Character, 0x2018},
    RtfControlWord{"nonshppict", SkipDestination},
    RtfControlWord{"nosupersub", ClearFlag, kRaised},
    RtfControlWord{"objdata", SkipDestination},
    RtfControlWord{"page", ParagraphEnd},
    RtfControlWord{"par", ParagraphEnd},
    RtfControlWord{"pard", PlainParagraph},
    RtfControlWord{"pict", SkipDestination},
    RtfControlWord{"plain", PlainText},
    RtfControlWord{"qc", Alignment, alignment(RtfAlignment::Center)},
    RtfControlWord{"qj", Alignment, alignment(RtfAlignment::Justify)},
    RtfControlWord{"ql", Alignment, alignment(RtfAlignment::Left)},
    RtfControlWord{"qr", Alignment, alignment(RtfAlignment::Right)},
    RtfControlWord{"rdblquote", Character, 0x201D},
    RtfControlWord{"red", Red},
    RtfControlWord{"ri", RightIndent},
    RtfControlWord{"row", ParagraphEnd},
    RtfControlWord{"rquote", Character, 0x2019},
    RtfControlWord{"rxe", SkipDestination},
    RtfControlWord{"sect", ParagraphEnd},
    RtfControlWord{"strike", SetFlag, Style::StrikeOut},
    RtfControlWord{"stylesheet", SkipDestination},
    RtfControlWord{"sub", SetFlag, Style::Subscript},
    RtfControlWord{"super", SetFlag, Style::Superscript},
    RtfControlWord{"tab", Character, '\t'},
    RtfControlWord{"tc", SkipDestination},
    RtfControlWord{"txe", SkipDestination},
    RtfControlWord{"u", Unicode},
    RtfControlWord{"uc", UnicodeSkip},
    RtfControlWord{"ul", SetFlag, Style::Underline},
    RtfControlWord{"uld", SetFlag, Style::Underline},
    RtfControlWord{"uldb", SetFlag, Style::Underline},
    RtfControlWord{"ulnone", ClearFlag, Style::Underline},
    RtfControlWord{"ulw", SetFlag, Style::Underline},
    RtfControlWord{"v", SetFlag, Style::Hidden},
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
