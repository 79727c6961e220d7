// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/concordance.h"

#include "canon/verse_index.h"
#include "data/concordance_word.h"
#include "data/versions.h"
#include "text/field_scramble.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

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

void addOccurrence(std::vector<WordVerse>& verses, const QString& key)
{
    if (verses.empty() || verses.back().key != key)
        verses.push_back({key, 0});
    ++verses.back().count;
}

} // namespace

bool addConcordanceRows(const QString& stored, const std::vector<WordVerse>& verses,
                        ModuleStore& store)
{
    for (std::size_t first = 0; first < verses.size(); first += kVersesPerRow) {
        const std::size_t end = std::min(first + kVersesPerRow, verses.size());
        QStringList places;
        int count = 0;
        for (std::size_t i = first; i < end; ++i) {
            places << verses[i].key;
            count += verses[i].count;
        }
        if (!store.addRow(kTable, {stored, places.join(u';'), count}))
            return false;
    }
    return true;
}

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
    using Verses = std::vector<WordVerse>;
    QHash<QString, Verses> found;
    int occurrences = 0;
    for (const VerseText& verse : version.verses) {
        const QString key = BibleCode::verseKey(verse.book, verse.chapter, verse.verse);
        for (const IndexWord& word : indexWords(verse.text.value_or(QString()), code)) {
            ++occurrences;
            addOccurrence(found[word.word], key);
            if (!word.typed.isEmpty())
                addOccurrence(found[word.typed], key);
        }
    }
    // Rows of one word stand together, in the order that a look for a beginning reads.
    std::vector<std::pair<QString, const Verses*>> order;
    order.reserve(static_cast<std::size_t>(found.size()));
    for (auto word = found.cbegin(); word != found.cend(); ++word)
        order.emplace_back(DES::ScrambleField(word.key()), &word.value());
    std::ranges::sort(order, {}, &std::pair<QString, const Verses*>::first);
    store.expect(order.size());
    store.createTable(concordanceTable());
    for (const auto& [stored, where] : order)
        if (!addConcordanceRows(stored, *where, store))
            return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    const QLocale korean(QLocale::Korean);
    report.facts << u"낱말 %1"_s.arg(korean.toString(static_cast<int>(order.size())))
                 << u"모두 %1번"_s.arg(korean.toString(occurrences));
    return report;
}

} // namespace lumen
