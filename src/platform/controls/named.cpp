// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/controls/named.h"

namespace lumen {

QString spokenCaption(const QString& caption)
{
    // Korean captions carry the access key in brackets behind the words: "편집(&E)".
    const qsizetype mark = caption.indexOf(u'&');
    if (mark > 0 && caption[mark - 1] == u'(' && caption.indexOf(u')', mark) == mark + 2)
        return caption.left(mark - 1) + caption.mid(mark + 3);
    return mark < 0 ? caption : caption.left(mark) + caption.mid(mark + 1);
}

} // namespace lumen
