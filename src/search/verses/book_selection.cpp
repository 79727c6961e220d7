// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/verses/book_selection.h"

#include <QStringList>

namespace lumen {

QString bookListTag(const BookSet& books)
{
    QStringList abbreviations;
    for (int book = 0; book < kBookCount; ++book)
        if (books.test(static_cast<size_t>(book)))
            abbreviations << bookAbbreviation(book);
    return abbreviations.join(u',');
}

} // namespace lumen
