// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/versification.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "check/verse_counts.h"
#include "sources/book_names.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

struct EnglishChapter
{
    int book = 0;
    int chapter = 0;
    int verses = 0;
};

constexpr std::array kEnglishChapters{
    EnglishChapter{8, 30, 31},
    EnglishChapter{21, 6, 13},
    EnglishChapter{46, 13, 14},
    EnglishChapter{63, 1, 14},
};

// The verses of one book: those of the canon without a row, and rows beyond the canon.
struct BookDeviation
{
    int book = 0;
    QStringList missing;
    QStringList beyond;
    QStringList withoutWords;
    bool hasRows = false;
};

QString shortPlace(int chapter, int verse)
{
    return u"%1:%2"_s.arg(chapter).arg(verse);
}

QString listed(const QStringList& places)
{
    constexpr int kShown = 12;
    if (places.size() <= kShown)
        return places.join(u", "_s);
    return u"%1 외 %2절"_s.arg(places.first(kShown).join(u", "_s)).arg(places.size() - kShown);
}

QString deviationLine(const BookDeviation& deviation)
{
    QStringList pieces;
    if (!deviation.missing.isEmpty())
        pieces << u"없는 절 %1 (%2)"_s.arg(deviation.missing.size()).arg(listed(deviation.missing));
    if (!deviation.beyond.isEmpty())
        pieces
            << u"정경 밖의 절 %1 (%2)"_s.arg(deviation.beyond.size()).arg(listed(deviation.beyond));
    if (!deviation.withoutWords.isEmpty())
        pieces << u"본문 없는 절 %1 (%2)"_s.arg(deviation.withoutWords.size())
                      .arg(listed(deviation.withoutWords));
    return u"%1: %2"_s.arg(bookName(deviation.book), pieces.join(u"; "_s));
}

QStringList missingVerses(const QSet<QString>& present, Numbering numbering, int book)
{
    QStringList missing;
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
        for (int verse = 1; verse <= verseCount(numbering, book, chapter); ++verse)
            if (!present.contains(BibleCode::verseKey(book, chapter, verse)))
                missing << shortPlace(chapter, verse);
    return missing;
}

void addDeviation(CanonCheck& check, const BookDeviation& deviation)
{
    check.missing += static_cast<int>(deviation.missing.size());
    check.beyond += static_cast<int>(deviation.beyond.size());
    check.withoutWords += static_cast<int>(deviation.withoutWords.size());
    if (!deviation.missing.isEmpty() || !deviation.beyond.isEmpty() ||
        !deviation.withoutWords.isEmpty())
        check.deviations << deviationLine(deviation);
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

using Places = QHash<QString, VersePlace>;

QString placeKey(const VersePlace& place)
{
    return BibleCode::verseKey(place.book, place.chapter, place.verse);
}

std::optional<VersePlace> mappedPlace(const QString& text)
{
    static const QRegularExpression form(uR"(^(.+) (\d+):(\d+)$)"_s);
    const auto match = form.match(text.trimmed());
    const auto book = BookNames::fromEnglish(match.captured(1));
    if (!match.hasMatch() || !book)
        return std::nullopt;
    return VersePlace{*book, match.captured(2).toInt(), match.captured(3).toInt()};
}

enum class Direction { ToOriginal, FromOriginal };

// Where one place has several others, the first is taken: the verse begins there.
Result<Places> readMapping(const QString& file, Direction direction)
{
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return missingSource(file);
    Places places;
    const QStringList lines = QString::fromUtf8(device.readAll()).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].trimmed().isEmpty())
            continue;
        const QStringList sides = lines[i].split(u'=');
        const auto own = mappedPlace(sides.value(0));
        const auto original = mappedPlace(sides.value(1));
        if (!own || !original)
            return sourceFailure(QFileInfo(file).fileName(), i + 1,
                                 u"알 수 없는 줄입니다: %1"_s.arg(lines[i].left(60)));
        const auto& from = direction == Direction::ToOriginal ? *own : *original;
        const auto& to = direction == Direction::ToOriginal ? *original : *own;
        if (!places.contains(placeKey(from)))
            places.insert(placeKey(from), to);
    }
    return places;
}

void moveVerse(VerseText& verse, const VersePlace& to)
{
    verse.book = to.book;
    verse.chapter = to.chapter;
    verse.verse = to.verse;
    if (to.verse > 0)
        return;
    verse.verse = 1;
    verse.part = std::exchange(verse.text, std::nullopt);
}

} // namespace

int verseCount(Numbering numbering, int book, int chapter)
{
    if (numbering == Numbering::English)
        for (const EnglishChapter& row : kEnglishChapters)
            if (row.book == book && row.chapter == chapter)
                return row.verses;
    return verseCount(book, chapter);
}

CanonCheck checkAgainstCanon(const VersionText& version, Numbering numbering)
{
    CanonCheck check;
    std::array<BookDeviation, kBookCount> books;
    QSet<QString> present;
    for (const VerseText& verse : version.verses) {
        auto& book = books[static_cast<std::size_t>(verse.book)];
        present.insert(BibleCode::verseKey(verse.book, verse.chapter, verse.verse));
        book.hasRows = true;
        ++check.rows;
        if (!verse.text)
            book.withoutWords << shortPlace(verse.chapter, verse.verse);
        if (verse.verse > verseCount(numbering, verse.book, verse.chapter))
            book.beyond << shortPlace(verse.chapter, verse.verse);
    }
    std::vector<int> absent;
    for (int book = 0; book < kBookCount; ++book) {
        auto& deviation = books[static_cast<std::size_t>(book)];
        deviation.book = book;
        if (!deviation.hasRows) {
            absent.push_back(book);
            continue;
        }
        deviation.missing = missingVerses(present, numbering, book);
        addDeviation(check, deviation);
    }
    check.absentBooks = static_cast<int>(absent.size());
    if (!absent.empty())
        check.deviations << absentLine(absent);
    return check;
}

Result<Done> renumberVerses(VersionText& version, const QString& ownMapping,
                            const QString& englishMapping, PsalmNumbers psalms)
{
    constexpr int kPsalms = 18;
    const auto toOriginal = readMapping(ownMapping, Direction::ToOriginal);
    if (!toOriginal)
        return toOriginal.failure();
    const auto toEnglish = readMapping(englishMapping, Direction::FromOriginal);
    if (!toEnglish)
        return toEnglish.failure();
    int moved = 0;
    for (VerseText& verse : version.verses) {
        const VersePlace own{verse.book, verse.chapter, verse.verse};
        const bool isOriginal = verse.book == kPsalms && psalms == PsalmNumbers::AsOriginal;
        const VersePlace original = isOriginal ? own : toOriginal.value().value(placeKey(own), own);
        const VersePlace english = toEnglish.value().value(placeKey(original), original);
        if (english == own)
            continue;
        moveVerse(verse, english);
        ++moved;
    }
    version.remarks << u"절 번호를 영어 성경에 맞추어 옮겼습니다: %1절"_s.arg(moved);
    return Done{};
}

} // namespace lumen
