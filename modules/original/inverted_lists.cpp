// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/inverted_lists.h"

#include "text/field_scramble.h"
#include "text/original/original_unicode.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <map>
#include <tuple>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

// The marks of Greek letters are digits.
QString withoutAccents(const QString& codes)
{
    QString result = codes;
    return result.removeIf([](QChar c) { return c >= u'1' && c <= u'7'; });
}

struct WordPair
{
    QString word;
    int strong = 0;
    int count = 0;
};

// The verses of a number, by their places in the text.
struct Occurrences
{
    std::vector<std::size_t> verses;
    int count = 0;

    void add(std::size_t verse)
    {
        ++count;
        if (verses.empty() || verses.back() != verse)
            verses.push_back(verse);
    }
};

class ListWriter
{
public:
    ListWriter(const OriginalContent& content, bool isGreek, ModuleStore& store);

    bool write();
    QString fact() const;

private:
    void collect();
    void collectWord(std::size_t verse, const OriginalWord& word);
    QStringList spellings(const QString& codes) const;
    QString stored(const QString& codes) const;
    QString lemma(int strong) const;
    QString keysOf(const std::vector<std::size_t>& verses) const;
    std::vector<WordPair> lemmaPairs() const;
    std::vector<WordPair> formPairs() const;
    bool writeWords();
    bool writeNumbers();
    bool writeLemmas();

    const OriginalContent& m_content;
    bool m_isGreek;
    ModuleStore& m_store;
    QString m_prefix;
    std::map<int, Occurrences> m_numbers;
    QHash<QString, QHash<int, int>> m_forms;
    std::vector<QString> m_keys;
    std::size_t m_pairs = 0;
    std::size_t m_lemmas = 0;
};

ListWriter::ListWriter(const OriginalContent& content, bool isGreek, ModuleStore& store)
    : m_content(content), m_isGreek(isGreek), m_store(store), m_prefix(isGreek ? u"NS"_s : u"BHS"_s)
{
    collect();
}

QStringList ListWriter::spellings(const QString& codes) const
{
    const QString plain = m_isGreek ? withoutAccents(codes) : hebrewConsonants(codes);
    return plain == codes ? QStringList{codes} : QStringList{codes, plain};
}

QString ListWriter::stored(const QString& codes) const
{
    return DES::ScrambleField(m_isGreek ? codes : reversedHebrew(codes));
}

QString ListWriter::lemma(int strong) const
{
    const StrongEntries& entries = m_isGreek ? m_content.greekStrong : m_content.hebrewStrong;
    const auto found = entries.find(strong);
    return found == entries.end() ? QString() : found->second.word;
}

void ListWriter::collect()
{
    m_keys.resize(m_content.verses.size());
    for (std::size_t i = 0; i < m_content.verses.size(); ++i) {
        const OriginalVerse& verse = m_content.verses[i];
        if (verse.isGreek != m_isGreek)
            continue;
        const VersePlace& place = verse.place;
        m_keys[i] = BibleCode::verseKey(place.book, place.chapter, place.verse);
        for (const OriginalWord& word : verse.words)
            if (word.strong != 0)
                collectWord(i, word);
    }
}

void ListWriter::collectWord(std::size_t verse, const OriginalWord& word)
{
    m_numbers[word.strong].add(verse);
    ++m_forms[word.text()][word.strong];
}

QString ListWriter::keysOf(const std::vector<std::size_t>& verses) const
{
    QString keys;
    for (const std::size_t verse : verses) {
        if (!keys.isEmpty())
            keys += u';';
        keys += m_keys[verse];
    }
    return keys;
}

std::vector<WordPair> ListWriter::lemmaPairs() const
{
    std::vector<WordPair> pairs;
    for (const auto& [strong, occurrences] : m_numbers) {
        const QString word = lemma(strong);
        if (word.isEmpty())
            continue;
        const QStringList texts = spellings(word);
        for (const QString& text : texts)
            pairs.push_back({text, strong, occurrences.count});
    }
    return pairs;
}

std::vector<WordPair> ListWriter::formPairs() const
{
    // A form and its letters alone are often those of another form too.
    QHash<QString, QHash<int, int>> counts;
    for (auto form = m_forms.begin(); form != m_forms.end(); ++form) {
        const QStringList texts = spellings(form.key());
        for (const QString& text : texts)
            for (auto number = form->begin(); number != form->end(); ++number)
                counts[text][number.key()] += number.value();
    }
    std::vector<WordPair> pairs;
    for (auto form = counts.begin(); form != counts.end(); ++form)
        for (auto number = form->begin(); number != form->end(); ++number)
            pairs.push_back({form.key(), number.key(), number.value()});
    return pairs;
}

void sortByCount(std::vector<WordPair>& pairs)
{
    std::ranges::sort(pairs, [](const WordPair& a, const WordPair& b) {
        return std::tuple(-a.count, a.strong, a.word) < std::tuple(-b.count, b.strong, b.word);
    });
}

// A search for a root takes the first row of a word: that of the most frequent number that has it
// as its lemma, then the most frequent number of the form.
bool ListWriter::writeWords()
{
    const QString table = m_prefix + u"2Strong"_s;
    m_store.createTable({table,
                         {textColumn(u"word"_s), {u"Strong"_s, FieldType::Long}},
                         {{u"word"_s, {u"word"_s}}}});
    std::vector<WordPair> pairs = lemmaPairs();
    std::vector<WordPair> forms = formPairs();
    sortByCount(pairs);
    sortByCount(forms);
    pairs.insert(pairs.end(), forms.begin(), forms.end());
    QSet<std::pair<QString, int>> written;
    for (const WordPair& pair : pairs) {
        if (written.contains({pair.word, pair.strong}))
            continue;
        written.insert({pair.word, pair.strong});
        if (!m_store.addRow(table, {stored(pair.word), pair.strong}))
            return false;
    }
    m_pairs = static_cast<std::size_t>(written.size());
    return true;
}

bool ListWriter::writeNumbers()
{
    const QString table = m_prefix + u"StrongPos"_s;
    m_store.createTable({table,
                         {textColumn(u"word"_s), memoColumn(u"Pos"_s), {u"num"_s, FieldType::Long}},
                         {{u"word"_s, {u"word"_s}}}});
    return std::ranges::all_of(m_numbers, [this, &table](const auto& entry) {
        const auto& [strong, occurrences] = entry;
        return m_store.addRow(table, {DES::ScrambleField(QString::number(strong)),
                                      keysOf(occurrences.verses),
                                      static_cast<int>(occurrences.verses.size())});
    });
}

// Homographs share a row, and only the first row of a search counts: in the order of the stored
// words a lemma stands before those that begin with it.
bool ListWriter::writeLemmas()
{
    const QString table = m_prefix + u"LemaPos"_s;
    m_store.createTable(
        {table, {textColumn(u"word"_s), memoColumn(u"Pos"_s)}, {{u"word"_s, {u"word"_s}}}});
    std::map<QString, std::vector<std::size_t>> lemmas;
    for (const auto& [strong, occurrences] : m_numbers) {
        const QString word = lemma(strong);
        const QStringList texts = word.isEmpty() ? QStringList() : spellings(word);
        for (const QString& text : texts) {
            auto& verses = lemmas[stored(text)];
            verses.insert(verses.end(), occurrences.verses.begin(), occurrences.verses.end());
        }
    }
    m_lemmas = lemmas.size();
    for (auto& [word, verses] : lemmas) {
        std::ranges::sort(verses);
        verses.erase(std::unique(verses.begin(), verses.end()), verses.end());
        if (!m_store.addRow(table, {word, keysOf(verses)}))
            return false;
    }
    return true;
}

bool ListWriter::write()
{
    return writeWords() && writeNumbers() && writeLemmas();
}

QString ListWriter::fact() const
{
    return u"%1 낱말 %2, 번호 %3, 표제어 %4"_s.arg(m_isGreek ? u"헬라어"_s : u"히브리어"_s)
        .arg(m_pairs)
        .arg(m_numbers.size())
        .arg(m_lemmas);
}

} // namespace

Result<ModuleReport> fillInvertedLists(OriginalCorpus& corpus, ModuleStore& store)
{
    // The number of rows is known at the end only; this is near enough for showing progress.
    constexpr std::size_t kAboutRows = 157000;
    const auto& content = corpus.content();
    if (!content)
        return content.failure();
    store.expect(kAboutRows);
    ModuleReport report;
    for (const bool isGreek : {false, true}) {
        ListWriter writer(content.value(), isGreek, store);
        if (!writer.write())
            return Failure{FailureKind::Cancelled, {}};
        report.facts << writer.fact();
    }
    return report;
}

} // namespace lumen
