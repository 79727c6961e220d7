// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/wizard/parsing_pattern.h"

namespace lumen {

void ParsingPattern::clearFrom(int position)
{
    for (; position <= kPositions; ++position)
        set(position, QChar());
}

QString ParsingPattern::code() const
{
    QString text;
    for (const QChar code : m_codes) {
        if (code.isNull() || code == kEnd)
            break;
        text += code;
    }
    return text;
}

} // namespace lumen
