// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/user_places.h"

#include "canon/verse_index.h"
#include "check/verse_counts.h"

#include <QRegularExpression>

namespace lumen {

using namespace Qt::StringLiterals;

std::optional<ChapterPlace> UserPlaces::chapter(const QString& text)
{
    static const QRegularExpression form(u"^(\\D+)(\\d+)$"_s);
    const auto match = form.match(text);
    const int book = BibleCode::GetBookNum(match.captured(1));
    const int chapter = match.captured(2).toInt();
    if (!match.hasMatch() || book < 0 || verseCount(Numbering::Korean, book, chapter) == 0)
        return std::nullopt;
    return ChapterPlace{book, chapter};
}

bool UserPlaces::exists(const QString& reference)
{
    static const QRegularExpression form(uR"(^([^:]+)(?::(\d+)(?:-(\d+))?)?$)"_s);
    const auto match = form.match(reference);
    const auto place = chapter(match.captured(1));
    if (!place)
        return false;
    const int count = verseCount(Numbering::Korean, place->book, place->chapter);
    const int first = match.hasCaptured(2) ? match.captured(2).toInt() : 1;
    const int last = match.hasCaptured(3) ? match.captured(3).toInt() : first;
    return first >= 1 && first <= last && last <= count;
}

std::optional<QString> UserPlaces::verseKey(const QString& reference)
{
    if (!exists(reference) || !reference.contains(u':') || reference.contains(u'-'))
        return std::nullopt;
    const VersePlace place = BibleCode::ParseRef(reference);
    return BibleCode::verseKey(place.book, place.chapter, place.verse);
}

QStringList UserPlaces::parts(const QString& list)
{
    QStringList parts;
    for (const QString& part : list.split(u';', Qt::SkipEmptyParts))
        parts << part.trimmed();
    return parts;
}

} // namespace lumen
