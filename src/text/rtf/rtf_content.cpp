// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/rtf/rtf_content.h"

#include "text/codepage949.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {

const RtfFont* RtfContent::font(int number) const
{
    const auto found = std::ranges::find(fonts, number, &RtfFont::number);
    return found == fonts.end() ? nullptr : &*found;
}

std::optional<RgbLong> RtfContent::color(int index) const
{
    if (index < 0 || static_cast<std::size_t>(index) >= colors.size())
        return std::nullopt;
    return colors[static_cast<std::size_t>(index)];
}

RtfContent plainTextContent(QByteArrayView bytes)
{
    RtfContent content;
    content.text = fromCodePage949(bytes);
    content.text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    content.text.remove(QChar(u'\0'));
    content.styles.emplace_back();
    qsizetype start = 0;
    while (true) {
        const qsizetype feed = content.text.indexOf(u'\n', start);
        RtfParagraph paragraph;
        paragraph.end = feed < 0 ? content.text.size() : feed;
        paragraph.firstRun = content.runs.size();
        if (paragraph.end > start) {
            content.runs.push_back({start, paragraph.end - start, 0});
            paragraph.runCount = 1;
        }
        content.paragraphs.push_back(paragraph);
        if (feed < 0)
            return content;
        start = feed + 1;
    }
}

} // namespace lumen
