// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/original_modules.h"

#include "canon/canon_table.h"
#include "canon/verse_index.h"
#include "support/module_files.h"
#include "text/field_scramble.h"

#include <map>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kWordColumns = 74;

ColumnDef text(const QString& name)
{
    return {name, FieldType::Text};
}

ColumnDef memo(const QString& name)
{
    return {name, FieldType::Memo, 0};
}

ColumnDef number(const QString& name)
{
    return {name, FieldType::Long, 0};
}

/// The verses of each word in canon order, each verse once; by stored word.
using Positions = std::map<QString, QStringList>;

struct Lists
{
    std::map<QString, QList<int>> strongOfForm;
    Positions ofStrong;
    Positions ofLemma;
};

void addPosition(Positions& positions, const QString& word, const QString& key)
{
    QStringList& keys = positions[DES::ScrambleField(word)];
    if (keys.isEmpty() || keys.last() != key)
        keys << key;
}

Lists listsOf(const QList<OriginalVerse>& verses, bool hebrew)
{
    Lists lists;
    for (const OriginalVerse& verse : verses) {
        if (verse.isHebrew() != hebrew)
            continue;
        for (const OriginalWord& word : verse.words) {
            if (!word.lemma.isEmpty())
                addPosition(lists.ofLemma, word.lemma, verse.key());
            if (word.strong == 0)
                continue;
            addPosition(lists.ofStrong, QString::number(word.strong), verse.key());
            QList<int>& strong = lists.strongOfForm[DES::ScrambleField(word.form)];
            if (!strong.contains(word.strong))
                strong << word.strong;
        }
    }
    return lists;
}

QList<ModuleTable> tablesOf(const Lists& lists, const QString& prefix)
{
    const auto byWord = [](const QString& table, const ColumnDef& second) {
        return ModuleTable{{table, {text(u"word"_s), second}, {{u"word"_s, {u"word"_s}}}}, {}};
    };
    ModuleTable strong = byWord(prefix + u"2Strong"_s, number(u"Strong"_s));
    for (const auto& [form, numbers] : lists.strongOfForm)
        for (const int value : numbers)
            strong.rows << QVariantList{form, value};
    ModuleTable ofStrong = byWord(prefix + u"StrongPos"_s, memo(u"Pos"_s));
    ofStrong.schema.columns.push_back(number(u"num"_s));
    for (const auto& [word, keys] : lists.ofStrong)
        ofStrong.rows << QVariantList{word, keys.join(u';'), keys.size()};
    ModuleTable ofLemma = byWord(prefix + u"LemaPos"_s, memo(u"Pos"_s));
    for (const auto& [word, keys] : lists.ofLemma)
        ofLemma.rows << QVariantList{word, keys.join(u';')};
    return {strong, ofStrong, ofLemma};
}

ModuleTable parsingSearch(const QList<OriginalVerse>& verses)
{
    ModuleTable table{{u"ParsingSearch"_s,
                       {text(u"Index"_s), memo(u"Parsing"_s)},
                       {{u"PrimaryKey"_s, {u"Index"_s}, true, true}}},
                      {}};
    for (const OriginalVerse& verse : verses)
        table.rows << QVariantList{verse.key(), DES::ScrambleField(verse.codes())};
    return table;
}

/// A row of one kind; Null where `value` gives "" and behind the last word.
template <typename Value>
QVariantList analysisRow(const OriginalVerse& verse, const QString& kind, Value value)
{
    QVariantList row{verse.key(), BibleCode::GetChapKey(verse.book, verse.chapter), verse.verse,
                     kind};
    for (int i = 0; i < kWordColumns; ++i) {
        const QString cell = i < verse.words.size() ? value(verse.words.at(i)) : QString();
        row << (cell.isEmpty() ? QVariant() : QVariant(DES::ScrambleField(cell)));
    }
    return row;
}

ModuleTable wordAnalysis(const QList<OriginalVerse>& verses)
{
    ModuleTable table{{u"원전분해"_s,
                       {text(u"index"_s), text(u"chap"_s), number(u"verse"_s), text(u"Lang"_s)},
                       {{u"place"_s, {u"chap"_s, u"verse"_s}}, {u"index"_s, {u"index"_s}}}},
                      {}};
    for (int i = 1; i <= kWordColumns; ++i)
        table.schema.columns.push_back(memo(u"Word%1"_s.arg(i)));
    for (const OriginalVerse& verse : verses) {
        const auto strong = [](const OriginalWord& word) {
            return word.strong > 0 ? QString::number(word.strong) : QString();
        };
        const auto form = [](const OriginalWord& word) { return word.form; };
        table.rows << analysisRow(verse, u"s"_s, strong)
                   << analysisRow(verse, verse.isHebrew() ? u"h"_s : u"g"_s, form)
                   << analysisRow(verse, u"k"_s, [](const OriginalWord&) { return QString(); })
                   << analysisRow(verse, u"t"_s, [](const OriginalWord&) { return QString(); });
        if (verse.isHebrew())
            table.rows << analysisRow(verse, u"d"_s, form);
        table.rows << analysisRow(verse, u"l"_s, [](const OriginalWord& word) {
            return word.lemma;
        }) << analysisRow(verse, u"p"_s, [](const OriginalWord& word) { return word.code; });
    }
    return table;
}

/// An entry for each number in use: its word and the meaning "뜻 <number>".
ModuleTable strongDictionary(const QList<OriginalVerse>& verses, bool hebrew)
{
    ModuleTable table{{u"StrongDic"_s, {number(u"Num"_s)}, {{u"Num"_s, {u"Num"_s}}}}, {}};
    for (const QString& column :
         {u"Word"_s, u"PronEng"_s, u"PronKor"_s, u"ParsKor"_s, u"Source"_s,
          hebrew ? u"TWOT"_s : u"TDNT"_s, u"AV"_s, u"ContKor"_s, u"ContEng"_s})
        table.schema.columns.push_back(memo(column));
    std::map<int, QString> words;
    for (const OriginalVerse& verse : verses)
        if (verse.isHebrew() == hebrew)
            for (const OriginalWord& word : verse.words)
                words.emplace(word.strong, word.lemma);
    words.erase(0);
    for (const auto& [strong, lemma] : words) {
        QVariantList row(static_cast<qsizetype>(table.schema.columns.size()));
        row[0] = strong;
        row[1] = DES::ScrambleField(lemma);
        row[row.size() - 2] = DES::ScrambleField(u"뜻 %1"_s.arg(strong));
        table.rows << row;
    }
    return table;
}

QList<PlainVerse> plainVerses(const QList<OriginalVerse>& verses, bool hebrew)
{
    QList<PlainVerse> plain;
    for (const OriginalVerse& verse : verses)
        if (verse.isHebrew() == hebrew)
            plain << PlainVerse{verse.book, verse.chapter, verse.verse, verse.text(), {}, {}};
    return plain;
}

} // namespace

bool OriginalVerse::isHebrew() const
{
    return book < kFirstNewTestamentBook;
}

QString OriginalVerse::key() const
{
    return BibleCode::verseKey(book, chapter, verse);
}

QString OriginalVerse::text() const
{
    QStringList forms;
    for (const OriginalWord& word : words)
        forms << word.form;
    return forms.join(u' ');
}

QString OriginalVerse::codes() const
{
    QString all;
    for (const OriginalWord& word : words)
        if (!word.code.isEmpty())
            all += isHebrew() ? word.code + u';' : u'(' + word.code + u");"_s;
    return all;
}

void writeOriginalModules(const QString& folder, const QList<OriginalVerse>& verses,
                          const QString& without)
{
    const auto write = [&](const QString& file, const QList<ModuleTable>& tables) {
        if (file != without)
            writeModule(folder + u'/' + file, tables);
    };
    write(u"301.dts"_s, {versionTable(u"BHS"_s, plainVerses(verses, true))});
    write(u"310.dts"_s, {versionTable(u"Byzantine"_s, plainVerses(verses, false))});
    write(u"z101.dts"_s, {wordAnalysis(verses)});
    write(u"z102.dts"_s,
          tablesOf(listsOf(verses, true), u"BHS"_s) + tablesOf(listsOf(verses, false), u"NS"_s));
    write(u"z103.dts"_s, {parsingSearch(verses)});
    write(u"StrongDicH.dts"_s, {strongDictionary(verses, true)});
    write(u"StrongDicG.dts"_s, {strongDictionary(verses, false)});
}

} // namespace lumen
