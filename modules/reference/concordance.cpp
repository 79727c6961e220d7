// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/concordance.h"

#include "canon/verse_index.h"
#include "data/concordance_word.h"
#include "data/versions.h"
#include "sources/user_places.h"
#include "sources/user_table.h"
#include "text/field_scramble.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

const QString kTable = u"성구사전"_s;
constexpr std::size_t kVersesPerRow = 1000;
constexpr int kMixedScript = 102;
constexpr int kNumberedKjv = 202;

// Signs that are no part of a word. What a lookup strips is among them.
constexpr QStringView kPlainSigns = u"○!.,'`\"?-:;〔〕¶()「」[]…―“”‘’—";
constexpr QStringView kHebrewSigns = u"[]:";
constexpr QStringView kGreekSigns = u",.;:()[]";
constexpr QChar kMaqaf = u'-';

QString without(QString word, QStringView signs)
{
    return word.removeIf([signs](QChar character) { return signs.contains(character); });
}

QStringList parts(const QString& text)
{
    static const QRegularExpression blanks(u"\\s+"_s,
                                           QRegularExpression::UseUnicodePropertiesOption);
    return text.split(blanks, Qt::SkipEmptyParts);
}

void add(std::vector<IndexWord>& words, const QString& word, const QString& typed)
{
    if (word.isEmpty())
        return;
    const QString small = word.toLower();
    const QString asTyped = typed.toLower();
    words.push_back({small, asTyped == small ? QString() : asTyped});
}

// "태초(太初)에": 태초에 and, the brackets' text in place of as many characters, 太初에.
void addMixed(std::vector<IndexWord>& words, const QString& token)
{
    static const QRegularExpression brackets(u"\\([^)]*\\)"_s);
    const QString hangul = without(QString(token).remove(brackets), kPlainSigns);
    const QString typed = cleanedConcordanceWord(token, kMixedScript);
    const QString hanja = without(typed, kPlainSigns);
    add(words, hanja, typed);
    if (hangul != hanja)
        add(words, hangul, hangul);
}

void addHebrew(std::vector<IndexWord>& words, const QString& token)
{
    bool first = true;
    for (const QString& piece : token.split(kMaqaf, Qt::SkipEmptyParts)) {
        // The whole, as it stands between blanks, is found once.
        add(words, without(piece, kHebrewSigns), first ? token : piece);
        first = false;
    }
}

void addCharacters(std::vector<IndexWord>& words, const QString& token, int code)
{
    for (const QChar character : cleanedConcordanceWord(token, code))
        add(words, character, character);
}

// The verses of a word, by their places in the text.
struct Occurrences
{
    struct InVerse
    {
        std::size_t verse = 0;
        int count = 0;
    };

    std::vector<InVerse> verses;

    void add(std::size_t verse)
    {
        if (verses.empty() || verses.back().verse != verse)
            verses.push_back({verse, 0});
        ++verses.back().count;
    }
};

bool writeWord(const QString& stored, const Occurrences& found, const std::vector<QString>& keys,
               ModuleStore& store)
{
    for (std::size_t first = 0; first < found.verses.size(); first += kVersesPerRow) {
        const std::size_t end = std::min(first + kVersesPerRow, found.verses.size());
        QStringList places;
        int count = 0;
        for (std::size_t i = first; i < end; ++i) {
            places << keys[found.verses[i].verse];
            count += found.verses[i].count;
        }
        if (!store.addRow(kTable, {stored, places.join(u';'), count}))
            return false;
    }
    return true;
}

bool writeWords(const QHash<QString, Occurrences>& found, const std::vector<QString>& keys,
                ModuleStore& store)
{
    // Rows of one word stand together, in the order that a look for a beginning reads.
    std::vector<std::pair<QString, const Occurrences*>> order;
    order.reserve(static_cast<std::size_t>(found.size()));
    for (auto word = found.cbegin(); word != found.cend(); ++word)
        order.emplace_back(DES::ScrambleField(word.key()), &word.value());
    std::ranges::sort(order, {}, &std::pair<QString, const Occurrences*>::first);
    store.expect(order.size());
    store.createTable(concordanceTable());
    return std::ranges::all_of(
        order, [&](const auto& word) { return writeWord(word.first, *word.second, keys, store); });
}

} // namespace

std::vector<IndexWord> indexWords(const QString& text, int code)
{
    static const QRegularExpression strongNumbers(u"<[^>]*>"_s);
    std::vector<IndexWord> words;
    const VersionRow& version = versionRow(code);
    const QString read = code == kNumberedKjv ? QString(text).replace(strongNumbers, u" "_s) : text;
    for (const QString& token : parts(read)) {
        if (version.group == VersionGroup::Chinese)
            addCharacters(words, token, code);
        else if (isHebrewVersion(code))
            addHebrew(words, token);
        else if (version.group == VersionGroup::Original)
            add(words, without(token, kGreekSigns), token);
        else if (code == kMixedScript)
            addMixed(words, token);
        else
            add(words, without(token, kPlainSigns), cleanedConcordanceWord(token, code));
    }
    return words;
}

TableSchema concordanceTable()
{
    return {kTable,
            {textColumn(u"Word"_s), memoColumn(u"Pos"_s), {u"num"_s, FieldType::Long}},
            {{u"word"_s, {u"Word"_s}}}};
}

Result<ModuleReport> fillConcordance(const VersionText& version, int code, ModuleStore& store)
{
    QHash<QString, Occurrences> found;
    std::vector<QString> keys;
    int occurrences = 0;
    for (const VerseText& verse : version.verses) {
        const std::size_t place = keys.size();
        keys.push_back(BibleCode::verseKey(verse.book, verse.chapter, verse.verse));
        for (const IndexWord& word : indexWords(verse.text.value_or(QString()), code)) {
            ++occurrences;
            found[word.word].add(place);
            if (!word.typed.isEmpty())
                found[word.typed].add(place);
        }
    }
    if (!writeWords(found, keys, store))
        return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    const QLocale korean(QLocale::Korean);
    report.facts << u"낱말 %1"_s.arg(korean.toString(found.size()))
                 << u"모두 %1번"_s.arg(korean.toString(occurrences));
    return report;
}

Result<ModuleReport> fillOwnConcordance(const QString& file, ModuleStore& store)
{
    const auto lines = readUserTable(file, {{u"낱말"_s, u"성구"_s, u"횟수"_s}, 2});
    if (!lines)
        return lines.failure();
    TableFaults faults(file);
    std::map<QString, std::vector<QVariantList>> words; // rows by the stored word
    for (const TableLine& line : lines.value()) {
        QStringList keys;
        for (const QString& reference : UserPlaces::parts(line.cells[1])) {
            if (const auto key = UserPlaces::verseKey(reference))
                keys << *key;
            else
                faults.add(line.number, u"없는 성구임: %1"_s.arg(reference));
        }
        bool isNumber = true;
        const int count = line.cells[2].isEmpty() ? static_cast<int>(keys.size())
                                                  : line.cells[2].toInt(&isNumber);
        if (line.cells[0].isEmpty() || keys.isEmpty())
            faults.add(line.number, u"낱말이나 성구가 비어 있음"_s);
        if (!isNumber || count < 0)
            faults.add(line.number, u"횟수가 수가 아님: %1"_s.arg(line.cells[2]));
        const QString stored = DES::ScrambleField(line.cells[0].toLower());
        words[stored].push_back({stored, keys.join(u';'), count});
    }
    if (!faults.isEmpty())
        return faults.failure();
    store.expect(lines.value().size());
    store.createTable(concordanceTable());
    for (const auto& [word, rows] : words)
        for (const QVariantList& row : rows)
            if (!store.addRow(kTable, row))
                return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    report.facts << u"낱말 %1"_s.arg(
        QLocale(QLocale::Korean).toString(static_cast<int>(words.size())));
    return report;
}

} // namespace lumen
