// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/plain_scan.h"

#include "canon/canon_table.h"

namespace lumen {

PlainVerse madeVerse(int book, int chapter, int verse, const QString& cont)
{
    return {book, chapter, verse, cont, {}, {}};
}

QStringList plainScan(const MadeBible& bible, const std::function<bool(const PlainVerse&)>& meets)
{
    QStringList found;
    for (const PlainVerse& verse : bible)
        if (verse.cont && meets(verse))
            found << bookAbbreviation(verse.book) + QString::number(verse.chapter) + u':' +
                         QString::number(verse.verse);
    return found;
}

QStringList plainScan(const MadeBible& bible, const QString& text)
{
    return plainScan(bible, [&](const PlainVerse& verse) { return verse.cont->contains(text); });
}

} // namespace lumen
