// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/strong_dictionaries.h"

#include "text/field_scramble.h"
#include "text/original/original_unicode.h"

#include <algorithm>
#include <array>
#include <map>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

const QString kTable = u"StrongDic"_s;
// Behind Korean words that were found by aligning texts, not written by someone.
constexpr QStringView kDerivedMark = u" 〔개역한글 대응어〕";

struct CodeRow
{
    QStringView begin;
    QStringView korean;
};

// Longer beginnings stand before shorter ones.
constexpr std::array kGreekParts{
    CodeRow{u"$tp", u"고유명사"}, CodeRow{u"$tn", u"수사"},     CodeRow{u"$tl", u"문자"},
    CodeRow{u"$ta", u"아람어"},   CodeRow{u"$th", u"히브리어"}, CodeRow{u"$to", u"명사"},
    CodeRow{u"$r", u"대명사"},    CodeRow{u"$d", u"정관사"},    CodeRow{u"$v", u"동사"},
    CodeRow{u"$a", u"형용사"},    CodeRow{u"$b", u"부사"},      CodeRow{u"$c", u"접속사"},
    CodeRow{u"$q", u"접속사"},    CodeRow{u"$p", u"전치사"},    CodeRow{u"$x", u"불변사"},
    CodeRow{u"$i", u"감탄사"},
};

TableSchema dictionaryTable(const QString& referenceColumn)
{
    return {kTable,
            {{u"Num"_s, FieldType::Long},
             textColumn(u"Word"_s),
             textColumn(u"PronEng"_s),
             textColumn(u"PronKor"_s),
             textColumn(u"ParsKor"_s),
             memoColumn(u"Source"_s),
             textColumn(referenceColumn),
             memoColumn(u"AV"_s),
             memoColumn(u"ContKor"_s),
             memoColumn(u"ContEng"_s)},
            {{u"Num"_s, {u"Num"_s}}}};
}

using PartCounts = std::map<int, std::map<QString, int>>;

PartCounts countGreekParts(const OriginalText& text)
{
    PartCounts counts;
    for (const OriginalVerse& verse : text)
        if (verse.isGreek)
            for (const OriginalWord& word : verse.words) {
                const QString part = greekPartOfSpeech(word.parsing);
                if (!part.isEmpty())
                    ++counts[word.strong][part];
            }
    return counts;
}

QString commonPart(const PartCounts& counts, int strong)
{
    const auto found = counts.find(strong);
    if (found == counts.end())
        return {};
    return std::ranges::max_element(found->second, {}, [](const auto& part) { return part.second; })
        ->first;
}

QString koreanMeaning(const KoreanGlosses& glosses, bool isGreek, int strong)
{
    const QString words = glosses.words(isGreek, strong).join(u", "_s);
    return glosses.isDerived(isGreek, strong) ? words + kDerivedMark.toString() : words;
}

class DictionaryWriter
{
public:
    DictionaryWriter(const OriginalContent& content, bool isGreek, ModuleStore& store)
        : m_content(content), m_isGreek(isGreek), m_store(store)
    {
    }

    Result<ModuleReport> run();

private:
    QVariantList rowOf(int strong, const StrongEntry& entry);

    const OriginalContent& m_content;
    bool m_isGreek;
    ModuleStore& m_store;
    PartCounts m_parts;
    int m_withKorean = 0;
    int m_withReference = 0;
};

Result<ModuleReport> DictionaryWriter::run()
{
    const StrongEntries& entries = m_isGreek ? m_content.greekStrong : m_content.hebrewStrong;
    m_store.createTable(dictionaryTable(m_isGreek ? u"TDNT"_s : u"TWOT"_s));
    m_store.expect(entries.size());
    if (m_isGreek)
        m_parts = countGreekParts(m_content.verses);
    for (const auto& [strong, entry] : entries)
        if (!m_store.addRow(kTable, rowOf(strong, entry)))
            return Failure{FailureKind::Cancelled, {}};
    m_store.addOriginLine(u"korean"_s, m_content.korean.originLine());
    ModuleReport report;
    report.facts << u"우리말 뜻 %1"_s.arg(m_withKorean);
    if (!m_isGreek)
        report.facts << u"TWOT %1"_s.arg(m_withReference);
    return report;
}

QVariantList DictionaryWriter::rowOf(int strong, const StrongEntry& entry)
{
    const QString korean = koreanMeaning(m_content.korean, m_isGreek, strong);
    m_withKorean += korean.isEmpty() ? 0 : 1;
    m_withReference += entry.reference.isEmpty() ? 0 : 1;
    return {strong,
            scrambledOrNull(m_isGreek ? entry.word : reversedHebrew(entry.word)),
            scrambledOrNull(entry.pronunciation),
            scrambledOrNull(entry.korean),
            scrambledOrNull(m_isGreek ? commonPart(m_parts, strong) : entry.partOfSpeech),
            scrambledOrNull(entry.derivation),
            scrambledOrNull(entry.reference),
            scrambledOrNull(entry.kjv),
            scrambledOrNull(korean),
            scrambledOrNull(entry.meaning)};
}

Result<ModuleReport> fillStrong(OriginalCorpus& corpus, bool isGreek, ModuleStore& store)
{
    const auto& content = corpus.content();
    if (!content)
        return content.failure();
    return DictionaryWriter(content.value(), isGreek, store).run();
}

} // namespace

QString greekPartOfSpeech(QStringView code)
{
    constexpr qsizetype kGender = 3;
    if (code.startsWith(u"$n")) {
        const QChar gender = code.size() > kGender ? code[kGender] : QChar();
        if (gender == u'm')
            return u"남성명사"_s;
        if (gender == u'f')
            return u"여성명사"_s;
        return gender == u'n' ? u"중성명사"_s : u"명사"_s;
    }
    const auto found = std::ranges::find_if(
        kGreekParts, [code](const CodeRow& row) { return code.startsWith(row.begin); });
    return found == kGreekParts.end() ? QString() : found->korean.toString();
}

Result<ModuleReport> fillHebrewStrong(OriginalCorpus& corpus, ModuleStore& store)
{
    return fillStrong(corpus, false, store);
}

Result<ModuleReport> fillGreekStrong(OriginalCorpus& corpus, ModuleStore& store)
{
    return fillStrong(corpus, true, store);
}

} // namespace lumen
