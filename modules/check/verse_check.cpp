// SPDX-License-Identifier: GPL-2.0-or-later
#include "check/verse_check.h"

#include "canon/verse_index.h"

#include <optional>
#include <set>
#include <utility>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// The verses of one book: those of the canon without a row, and rows beyond the canon.
struct BookDeviation
{
    int book = 0;
    int missingCount = 0;
    QStringList missing; ///< whole chapters are one entry
    QStringList beyond;
    QStringList withoutWords;
};

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

QString shortPlace(int chapter, int verse)
{
    return u"%1:%2"_s.arg(chapter).arg(verse);
}

QString listed(const QStringList& places)
{
    constexpr int kShown = 12;
    if (places.size() <= kShown)
        return places.join(u", "_s);
    return u"%1 외 %2개"_s.arg(places.first(kShown).join(u", "_s)).arg(places.size() - kShown);
}

QString deviationLine(const BookDeviation& deviation)
{
    QStringList pieces;
    if (!deviation.missing.isEmpty())
        pieces << u"없는 절 %1 (%2)"_s.arg(deviation.missingCount).arg(listed(deviation.missing));
    if (!deviation.beyond.isEmpty())
        pieces
            << u"정경 밖의 절 %1 (%2)"_s.arg(deviation.beyond.size()).arg(listed(deviation.beyond));
    if (!deviation.withoutWords.isEmpty())
        pieces << u"본문 없는 절 %1 (%2)"_s.arg(deviation.withoutWords.size())
                      .arg(listed(deviation.withoutWords));
    return u"%1: %2"_s.arg(bookName(deviation.book), pieces.join(u"; "_s));
}

void addDeviation(CanonCheck& check, const BookDeviation& deviation)
{
    check.missing += deviation.missingCount;
    check.beyond += static_cast<int>(deviation.beyond.size());
    check.withoutWords += static_cast<int>(deviation.withoutWords.size());
    if (!deviation.missing.isEmpty() || !deviation.beyond.isEmpty() ||
        !deviation.withoutWords.isEmpty())
        check.deviations << deviationLine(deviation);
}

// Missing verses one by one, missing chapters as "2장" or "5-7장".
void findMissing(BookDeviation& book, const std::set<std::pair<int, int>>& present,
                 Numbering numbering)
{
    int firstAbsent = 0;
    const auto closeRun = [&book, &firstAbsent](int last) {
        if (firstAbsent > 0)
            book.missing << (firstAbsent == last ? u"%1장"_s.arg(last)
                                                 : u"%1-%2장"_s.arg(firstAbsent).arg(last));
        firstAbsent = 0;
    };
    const int chapters = chapterCount(book.book);
    for (int chapter = 1; chapter <= chapters; ++chapter) {
        const int verses = verseCount(numbering, book.book, chapter);
        const auto first = present.lower_bound({chapter, 0});
        if (first == present.end() || first->first != chapter) {
            book.missingCount += verses;
            firstAbsent = firstAbsent == 0 ? chapter : firstAbsent;
            continue;
        }
        closeRun(chapter - 1);
        for (int verse = 1; verse <= verses; ++verse)
            if (!present.contains({chapter, verse})) {
                ++book.missingCount;
                book.missing << shortPlace(chapter, verse);
            }
    }
    closeRun(chapters);
}

// "없는 책 27권: 마태복음-요한계시록"; books that follow one another are a run.
QString absentLine(const std::vector<int>& books)
{
    QStringList runs;
    for (std::size_t i = 0; i < books.size();) {
        std::size_t end = i + 1;
        while (end < books.size() && books[end] == books[end - 1] + 1)
            ++end;
        const QString first = bookName(books[i]);
        runs << (end - i == 1 ? first : u"%1-%2"_s.arg(first, bookName(books[end - 1])));
        i = end;
    }
    return u"없는 책 %1권: %2"_s.arg(books.size()).arg(runs.join(u", "_s));
}

} // namespace

void VerseCheck::addVerse(int book, int chapter, int verse, bool hasText)
{
    ++m_rows;
    m_books[static_cast<std::size_t>(book)].push_back({chapter, verse, hasText});
}

void VerseCheck::addKey(const QString& key, bool hasText)
{
    const auto place = placeOf(key);
    if (place && !m_seen.contains(key)) {
        m_seen.insert(key);
        addVerse(place->book, place->chapter, place->verse, hasText);
        return;
    }
    ++m_rows;
    m_badKeys << key;
}

CanonCheck VerseCheck::against(Numbering numbering) const
{
    CanonCheck check;
    check.rows = m_rows;
    std::vector<int> absent;
    for (int book = 0; book < kBookCount; ++book) {
        const auto& verses = m_books[static_cast<std::size_t>(book)];
        if (verses.empty()) {
            absent.push_back(book);
            continue;
        }
        BookDeviation deviation;
        deviation.book = book;
        std::set<std::pair<int, int>> present;
        for (const Verse& verse : verses) {
            present.emplace(verse.chapter, verse.verse);
            if (!verse.hasText)
                deviation.withoutWords << shortPlace(verse.chapter, verse.verse);
            if (verse.verse > verseCount(numbering, book, verse.chapter))
                deviation.beyond << shortPlace(verse.chapter, verse.verse);
        }
        findMissing(deviation, present, numbering);
        addDeviation(check, deviation);
    }
    check.absentBooks = static_cast<int>(absent.size());
    if (!absent.empty() && check.absentBooks < kBookCount)
        check.deviations << absentLine(absent);
    return check;
}

CanonCheck VerseCheck::againstNearest() const
{
    CanonCheck korean = against(Numbering::Korean);
    CanonCheck english = against(Numbering::English);
    const auto distance = [](const CanonCheck& check) { return check.missing + check.beyond; };
    return distance(english) < distance(korean) ? english : korean;
}

} // namespace lumen
