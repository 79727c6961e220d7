// SPDX-License-Identifier: GPL-2.0-or-later
#include "check/verse_check.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "check/verse_counts.h"

#include <optional>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// Nothing unless the key is exactly the one that the program makes for the place.
std::optional<VersePlace> placeOf(const QString& key)
{
    const QStringList parts = key.split(u':');
    if (parts.size() != 3)
        return std::nullopt;
    VersePlace place{parts[0].left(2).toInt() - 1, parts[1].toInt(), parts[2].toInt()};
    const bool inCanon = place.book >= 0 && place.book < kBookCount && place.chapter >= 1 &&
                         place.chapter <= chapterCount(place.book) && place.verse >= 1;
    if (!inCanon || BibleCode::verseKey(place.book, place.chapter, place.verse) != key)
        return std::nullopt;
    return place;
}

} // namespace

void VerseCheck::addVerse(const QString& key, bool hasText)
{
    ++m_verses;
    if (!hasText)
        ++m_withoutText;
    const auto place = placeOf(key);
    if (!place || m_seen[key]) {
        m_badKeys << key;
        return;
    }
    m_seen[key] = true;
    ++m_counts[{place->book, place->chapter}];
}

int VerseCheck::versesOf(int book) const
{
    int verses = 0;
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
        if (const auto found = m_counts.find({book, chapter}); found != m_counts.end())
            verses += found->second;
    return verses;
}

QStringList VerseCheck::deviations() const
{
    QStringList lines;
    QStringList absent;
    for (int book = 0; book < kBookCount; ++book) {
        const int verses = versesOf(book);
        const QStringList chapters = chapterDeviations(book);
        if (verses == 0)
            absent << bookName(book);
        else if (!chapters.isEmpty())
            lines << u"%1: %2절 (기준 %3절) - %4"_s.arg(bookName(book))
                         .arg(verses)
                         .arg(verseCount(book))
                         .arg(chapters.join(u", "_s));
    }
    if (!absent.isEmpty() && absent.size() < kBookCount)
        lines << u"없는 책 %1권: %2"_s.arg(absent.size()).arg(absent.join(u", "_s));
    return lines;
}

QStringList VerseCheck::chapterDeviations(int book) const
{
    QStringList lines;
    int firstAbsent = 0;
    const auto closeRun = [&lines, &firstAbsent](int lastAbsent) {
        if (firstAbsent == 0)
            return;
        lines << (firstAbsent == lastAbsent ? u"%1장 없음"_s.arg(firstAbsent)
                                            : u"%1-%2장 없음"_s.arg(firstAbsent).arg(lastAbsent));
        firstAbsent = 0;
    };
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter) {
        const auto found = m_counts.find({book, chapter});
        if (found == m_counts.end()) {
            firstAbsent = firstAbsent == 0 ? chapter : firstAbsent;
            continue;
        }
        closeRun(chapter - 1);
        if (found->second != verseCount(book, chapter))
            lines << u"%1장 %2절(기준 %3절)"_s.arg(chapter)
                         .arg(found->second)
                         .arg(verseCount(book, chapter));
    }
    closeRun(chapterCount(book));
    return lines;
}

} // namespace lumen
