// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/version_text.h"

#include "canon/canon_table.h"
#include "sources/text_cleaning.h"

#include <QFileInfo>

#include <algorithm>
#include <map>
#include <tuple>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPsalms = 18;
constexpr int kAlphabetPsalm = 119;
constexpr qsizetype kShownPlaces = 20;

auto placeOf(const VerseText& verse)
{
    return std::tuple(verse.book, verse.chapter, verse.verse);
}

QString chapterPlace(const VerseText& verse)
{
    return u"%1%2"_s.arg(bookAbbreviation(verse.book)).arg(verse.chapter);
}

// What stands in front of a chapter's first verse is counted as verse 0 by some: the title of a
// Psalm, which is kept with verse 1, or an introduction.
void settleVerseZero(VersionText& version)
{
    QStringList dropped;
    for (VerseText& verse : version.verses) {
        if (verse.verse != 0 || verse.chapter < 1)
            continue;
        const auto words = std::exchange(verse.text, std::nullopt);
        if (verse.book == kPsalms && words)
            verse.part = verse.part ? *verse.part + u' ' + *words : *words;
        else if (words)
            dropped << chapterPlace(verse);
        if (verse.part || !verse.miniTitle.isEmpty())
            verse.verse = 1;
    }
    std::erase_if(version.verses,
                  [](const VerseText& verse) { return verse.verse == 0 && verse.chapter > 0; });
    if (!dropped.isEmpty())
        version.remarks << u"장의 머리말(0절)을 뺐습니다: %1"_s.arg(dropped.join(u' '));
}

// The row stays: the verse is one that the version counts.
void dropPlaceholders(VersionText& version)
{
    QStringList places;
    for (VerseText& verse : version.verses) {
        if (!verse.text || !isNoBibleText(*verse.text))
            continue;
        verse.text.reset();
        places
            << u"%1%2:%3"_s.arg(bookAbbreviation(verse.book)).arg(verse.chapter).arg(verse.verse);
    }
    if (!places.isEmpty())
        version.remarks << u"본문이 아닌 말을 뺐습니다 (%1절): %2"_s.arg(places.size())
                               .arg(places.mid(0, kShownPlaces).join(u' '));
}

bool inCanon(const VerseText& verse)
{
    return verse.chapter >= 1 && verse.chapter <= chapterCount(verse.book) && verse.verse >= 1;
}

void appendText(std::optional<QString>& text, const std::optional<QString>& more)
{
    if (!more)
        return;
    text = text ? *text + u' ' + *more : *more;
}

void moveLetterToHeading(VerseText& verse)
{
    if (verse.book != kPsalms || verse.chapter != kAlphabetPsalm || !verse.part)
        return;
    addHeading(verse.miniTitle, *verse.part);
    verse.part.reset();
}

void dropOutsideCanon(VersionText& version)
{
    std::map<std::pair<int, int>, int> dropped;
    std::erase_if(version.verses, [&dropped](const VerseText& verse) {
        if (inCanon(verse))
            return false;
        ++dropped[{verse.book, verse.chapter}];
        return true;
    });
    for (const auto& [chapter, count] : dropped) {
        version.remarks << u"정경에 없는 장을 뺐습니다: %1 %2장, %3절"_s
                               .arg(bookName(chapter.first))
                               .arg(chapter.second)
                               .arg(count);
    }
}

} // namespace

Failure sourceFailure(const QString& file, qint64 line, const QString& reason)
{
    if (line < 1)
        return {FailureKind::Damaged, u"%1: %2"_s.arg(file, reason)};
    return {FailureKind::Damaged, u"%1:%2: %3"_s.arg(file, QString::number(line), reason)};
}

Failure missingSource(const QString& file)
{
    return {FailureKind::NotFound, file};
}

std::optional<Failure> BookFiles::add(const QString& file, const VersionText& version,
                                      std::size_t begin)
{
    const QString name = QFileInfo(file).fileName();
    for (std::size_t i = begin; i < version.verses.size(); ++i) {
        const int book = version.verses[i].book;
        const auto [known, added] = m_fileOfBook.emplace(book, name);
        if (!added && known->second != name)
            return sourceFailure(
                name, 0, u"%1의 본문이 %2에도 있습니다."_s.arg(bookName(book), known->second));
    }
    return std::nullopt;
}

QString leftOutBooks(const QStringList& ids)
{
    return u"정경에 없는 책을 뺐습니다: %1"_s.arg(ids.join(u", "_s));
}

void addHeading(QString& headings, const QString& heading)
{
    if (heading.isEmpty())
        return;
    if (!headings.isEmpty())
        headings += u" / "_s;
    headings += heading;
}

void arrangeVerses(VersionText& version)
{
    settleVerseZero(version);
    dropOutsideCanon(version);
    dropPlaceholders(version);
    auto& verses = version.verses;
    std::stable_sort(verses.begin(), verses.end(), [](const VerseText& a, const VerseText& b) {
        return placeOf(a) < placeOf(b);
    });
    QStringList joined;
    std::vector<VerseText> arranged;
    arranged.reserve(verses.size());
    for (VerseText& verse : verses) {
        moveLetterToHeading(verse);
        if (arranged.empty() || placeOf(arranged.back()) != placeOf(verse)) {
            arranged.push_back(std::move(verse));
            continue;
        }
        VerseText& same = arranged.back();
        if (same.text && verse.text)
            joined
                << u"%1%2:%3"_s.arg(bookAbbreviation(same.book)).arg(same.chapter).arg(same.verse);
        appendText(same.text, verse.text);
        appendText(same.part, verse.part);
        addHeading(same.miniTitle, verse.miniTitle);
    }
    verses = std::move(arranged);
    if (!joined.isEmpty())
        version.remarks << u"같은 절에 속한 본문을 이었습니다 (%1절): %2"_s.arg(joined.size())
                               .arg(joined.mid(0, kShownPlaces).join(u' '));
}

} // namespace lumen
