// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/versification.h"

#include "canon/verse_index.h"
#include "sources/book_names.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

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

CanonCheck checkAgainstCanon(const VersionText& version, Numbering numbering)
{
    VerseCheck check;
    for (const VerseText& verse : version.verses)
        check.addVerse(verse.book, verse.chapter, verse.verse, verse.text.has_value());
    return check.against(numbering);
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
