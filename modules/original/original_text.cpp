// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/original_text.h"

namespace lumen {

QString OriginalWord::text() const
{
    QString result = divided;
    result.remove(u'/');
    return result;
}

QString SharedTexts::shared(const QString& text)
{
    const auto found = m_texts.constFind(text);
    if (found != m_texts.constEnd())
        return *found;
    m_texts.insert(text, text);
    return text;
}

} // namespace lumen
