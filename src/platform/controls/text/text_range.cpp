// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/text/text_range.h"

namespace lumen {
namespace {

bool isBound(QChar c)
{
    return c == u' ' || c == u'\n' || c == u'\r' || c == u'\t' || c == QChar::ParagraphSeparator ||
           c == QChar::LineSeparator;
}

} // namespace

TextRange wordAt(QStringView text, int position)
{
    if (position < 0 || position > text.size())
        return {};
    int start = position;
    while (start > 0 && !isBound(text[start - 1]))
        --start;
    int end = position;
    while (end < text.size() && !isBound(text[end]))
        ++end;
    return {start, end - start};
}

} // namespace lumen
