// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/own_concordance.h"

#include "canon/verse_index.h"
#include "check/verse_counts.h"
#include "data/concordance_word.h"
#include "reference/concordance.h"
#include "sources/user_places.h"
#include "sources/user_table.h"
#include "text/field_scramble.h"

#include <QLocale>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestWord = 255;

enum Column { Word, Verses, Count };

/// What the lines of one word say together.
struct OwnWord
{
    std::set<QString> keys; // which sort as the canon does
    int count = 0;
};

using OwnWords = std::map<QString, OwnWord>; // by the stored form

// "요3:16" as a key. A verse of either numbering will do: versions differ.
std::optional<QString> keyOf(const QString& reference)
{
    const qsizetype colon = reference.indexOf(u':');
    const auto place = UserPlaces::chapter(reference.first(std::max<qsizetype>(colon, 0)));
    bool isNumber = false;
    const int verse = reference.sliced(colon + 1).toInt(&isNumber);
    if (!place || !isNumber || verse < 1)
        return std::nullopt;
    const auto& [book, chapter] = *place;
    if (verse > std::max(verseCount(Numbering::Korean, book, chapter),
                         verseCount(Numbering::English, book, chapter)))
        return std::nullopt;
    return BibleCode::verseKey(book, chapter, verse);
}

std::set<QString> keysOf(const TableLine& line, TableFaults& faults)
{
    std::set<QString> keys;
    for (const QString& reference : UserPlaces::parts(line.cells[Verses])) {
        if (const auto key = keyOf(reference))
            keys.insert(*key);
        else if (!reference.isEmpty())
            faults.add(line.number, u"성경에 없는 절: %1"_s.arg(reference));
    }
    if (line.cells[Verses].isEmpty())
        faults.add(line.number, u"절이 없음"_s);
    return keys;
}

// No verse holds a word less than once.
int countOf(const TableLine& line, std::size_t verses, TableFaults& faults)
{
    const int least = static_cast<int>(verses);
    const QString& cell = line.cells[Count];
    if (cell.isEmpty())
        return least;
    bool isNumber = false;
    const int count = cell.toInt(&isNumber);
    if (!isNumber || count < least)
        faults.add(line.number, u"횟수가 절의 수(%1)보다 작거나 수가 아님: %2"_s.arg(
                                    QString::number(least), cell));
    return count;
}

OwnWords wordsOf(const std::vector<TableLine>& lines, int code, TableFaults& faults)
{
    OwnWords words;
    for (const TableLine& line : lines) {
        const QString word = cleanedConcordanceWord(line.cells[Word], code).toLower().trimmed();
        if (word.isEmpty() || word.size() > kLongestWord)
            faults.add(line.number, u"찾을 수 없는 낱말: %1"_s.arg(line.cells[Word]));
        const std::set<QString> keys = keysOf(line, faults);
        OwnWord& own = words[DES::ScrambleField(word)];
        own.count += countOf(line, keys.size(), faults);
        own.keys.insert(keys.begin(), keys.end());
    }
    return words;
}

// Which verses hold the word more than once isn't told, so that the first takes what is left over.
std::vector<WordVerse> versesOf(const OwnWord& word)
{
    std::vector<WordVerse> verses;
    for (const QString& key : word.keys)
        verses.push_back({key, 1});
    verses.front().count += word.count - static_cast<int>(verses.size());
    return verses;
}

} // namespace

Result<ModuleReport> fillOwnConcordance(const QString& file, int code, ModuleStore& store)
{
    const auto lines = readUserTable(file, {{u"낱말"_s, u"절"_s, u"횟수"_s}, 2});
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    const OwnWords words = wordsOf(lines.value(), code, faults);
    if (!faults.isEmpty())
        return faults.failure();
    store.createTable(concordanceTable());
    store.expect(words.size());
    for (const auto& [stored, word] : words)
        if (!addConcordanceRows(stored, versesOf(word), store))
            return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    report.facts << u"낱말 %1"_s.arg(
        QLocale(QLocale::Korean).toString(static_cast<int>(words.size())));
    return report;
}

} // namespace lumen
