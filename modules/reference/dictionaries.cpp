// SPDX-License-Identifier: GPL-2.0-or-later
#include "reference/dictionaries.h"

#include "sources/sword/sword_lexicon.h"
#include "text/field_scramble.h"

#include <QFileInfo>
#include <QLocale>

#include <functional>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

/// One work among those of the Bible dictionary.
struct Work
{
    QString mark;
    QString name;
    bool isThere;
    std::function<DictionaryResult()> read;
};

QString counted(qsizetype number)
{
    return QLocale(QLocale::Korean).toString(number);
}

// Text boxes take "\r\n".
QVariant stored(const DictionaryEntry& entry)
{
    return scrambledOrNull(QString(entry.text).replace(u'\n', u"\r\n"_s));
}

} // namespace

Result<ModuleReport> fillBibleDictionary(const BibleDictionarySources& sources, ModuleStore& store)
{
    const Work works[] = {
        {u"t"_s, u"우리말"_s, !sources.korean.isEmpty(),
         [&] { return readTableDictionary(sources.korean); }},
        {u"e"_s, u"이스턴"_s, QFileInfo::exists(sources.easton),
         [&] { return readJsonDictionary(sources.easton); }},
        {u"h"_s, u"히치코크"_s, QFileInfo::exists(sources.hitchcock),
         [&] { return readJsonDictionary(sources.hitchcock); }},
        {u"n"_s, u"네이브"_s, QFileInfo::exists(sources.nave + u".idx"_s),
         [&] { return readSwordLexicon(sources.nave); }},
    };
    const QString table = u"성경사전"_s;
    store.createTable({table,
                       {textColumn(u"word"_s),
                        memoColumn(u"def"_s),
                        textColumn(u"class"_s, 1),
                        {u"no"_s, FieldType::Long}}});
    ModuleReport report;
    int number = 0;
    for (const Work& work : works) {
        if (!work.isThere)
            continue;
        const auto entries = work.read();
        if (!entries)
            return entries.failure();
        for (const DictionaryEntry& entry : entries.value())
            if (!store.addRow(table, {DES::ScrambleField(entry.head.toLower()), stored(entry),
                                      work.mark, ++number}))
                return Failure{FailureKind::Cancelled, {}};
        report.facts << u"%1 %2"_s.arg(work.name, counted(std::ssize(entries.value())));
    }
    return report;
}

Result<ModuleReport> fillEnglishDictionary(const EnglishDictionarySources& sources,
                                           const std::vector<DictionaryEntry>& korean,
                                           ModuleStore& store)
{
    const auto own = readTableDictionary(sources.own);
    if (!own)
        return own.failure();
    const auto words = readDictDictionary(sources.index, sources.text);
    if (!words)
        return words.failure();
    const QString table = u"영한영사전"_s;
    store.expect(own.value().size() + korean.size() + words.value().size());
    store.createTable(
        {table, {textColumn(u"word"_s), memoColumn(u"def"_s)}, {{u"word"_s, {u"word"_s}}}});
    for (const auto* entries : {&own.value(), &korean, &words.value()})
        for (const DictionaryEntry& entry : *entries)
            if (!store.addRow(table, {DES::ScrambleField(entry.head.toLower()), stored(entry)}))
                return Failure{FailureKind::Cancelled, {}};
    ModuleReport report;
    if (!korean.empty())
        report.facts << u"우리말 뜻이 있는 표제어 %1"_s.arg(counted(std::ssize(korean)));
    if (!own.value().empty())
        report.facts << u"사용자의 낱말 %1"_s.arg(counted(std::ssize(own.value())));
    return report;
}

} // namespace lumen
