// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/word_analysis.h"

#include "text/original/original_unicode.h"

#include <algorithm>
#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

const QString kTable = u"원전분해"_s;
constexpr std::size_t kWordColumns = 74;
constexpr qsizetype kPlaceColumns = 4;

TableSchema analysisTable()
{
    TableSchema schema{kTable,
                       {textColumn(u"index"_s, 20),
                        textColumn(u"chap"_s, 10),
                        {u"verse"_s, FieldType::Short},
                        textColumn(u"Lang"_s, 1)},
                       {{u"place"_s, {u"chap"_s, u"verse"_s}}, {u"index"_s, {u"index"_s}}}};
    for (std::size_t i = 1; i <= kWordColumns; ++i)
        schema.columns.push_back(textColumn(u"Word%1"_s.arg(i)));
    return schema;
}

struct Counts
{
    int words = 0;
    int withCode = 0;
    int withNumber = 0;
    int withEnglish = 0;
    int withKorean = 0;

    QString line(const QString& label) const
    {
        const auto share = [this](int count) {
            return QString::number(100.0 * count / std::max(words, 1), 'f', 1);
        };
        return u"%1 낱말 %2개: 분해 코드 %3%, 스트롱 번호 %4%, 영어 대응어 %5%, 대표값 %6%"_s
            .arg(label)
            .arg(words)
            .arg(share(withCode), share(withNumber), share(withEnglish), share(withKorean));
    }
};

class AnalysisWriter
{
public:
    AnalysisWriter(const OriginalContent& content, ModuleStore& store)
        : m_content(content), m_store(store)
    {
    }

    Result<ModuleReport> run();

private:
    bool addVerse(const OriginalVerse& verse);
    bool addKind(QChar kind, const OriginalVerse& verse);
    QString value(QChar kind, const OriginalVerse& verse, const OriginalWord& word) const;
    QString lemma(bool isGreek, int strong) const;
    void count(const OriginalVerse& verse);

    const OriginalContent& m_content;
    ModuleStore& m_store;
    QVariantList m_row;
    Counts m_hebrew;
    Counts m_greek;
};

Result<ModuleReport> AnalysisWriter::run()
{
    constexpr std::size_t kKinds = 7;
    m_store.createTable(analysisTable());
    m_store.expect(m_content.verses.size() * kKinds);
    for (const OriginalVerse& verse : m_content.verses) {
        if (verse.words.size() > kWordColumns)
            return Failure{FailureKind::Invalid,
                           u"낱말이 %1개보다 많은 절: %2"_s.arg(kWordColumns)
                               .arg(BibleCode::verseKey(verse.place.book, verse.place.chapter,
                                                        verse.place.verse))};
        count(verse);
        if (!addVerse(verse))
            return Failure{FailureKind::Cancelled, {}};
    }
    m_store.addOriginLine(u"korean"_s, m_content.korean.originLine());
    ModuleReport report;
    report.facts << m_hebrew.line(u"히브리어"_s) << m_greek.line(u"헬라어"_s);
    report.details << m_content.hebrewRemarks << m_content.greekRemarks
                   << m_content.korean.remarks();
    return report;
}

bool AnalysisWriter::addVerse(const OriginalVerse& verse)
{
    const QStringView kinds = verse.isGreek ? u"sgktlp" : u"shktdlp";
    const VersePlace& place = verse.place;
    m_row = {BibleCode::verseKey(place.book, place.chapter, place.verse),
             BibleCode::GetChapKey(place.book, place.chapter), place.verse};
    return std::ranges::all_of(kinds, [this, &verse](QChar kind) { return addKind(kind, verse); });
}

bool AnalysisWriter::addKind(QChar kind, const OriginalVerse& verse)
{
    constexpr qsizetype kBeforeKind = kPlaceColumns - 1;
    m_row.resize(kBeforeKind);
    m_row << QString(kind);
    for (const OriginalWord& word : verse.words)
        m_row << scrambledOrNull(value(kind, verse, word));
    m_row.resize(kPlaceColumns + static_cast<qsizetype>(kWordColumns));
    return m_store.addRow(kTable, m_row);
}

// A paragraph mark has text and code only.
QString AnalysisWriter::value(QChar kind, const OriginalVerse& verse,
                              const OriginalWord& word) const
{
    const bool isGreek = verse.isGreek;
    const int strong = word.strong;
    switch (kind.unicode()) {
    case 'h':
        return reversedHebrew(word.text());
    case 'g':
        return word.divided;
    case 'd':
        return word.isMark ? QString() : reversedHebrew(word.divided);
    case 's':
        return strong == 0 ? QString() : QString::number(strong);
    case 'k':
        return word.english;
    case 't':
        return m_content.korean.gloss(isGreek, strong);
    case 'l':
        return lemma(isGreek, strong);
    default:
        return word.parsing;
    }
}

QString AnalysisWriter::lemma(bool isGreek, int strong) const
{
    const StrongEntries& entries = isGreek ? m_content.greekStrong : m_content.hebrewStrong;
    const auto found = entries.find(strong);
    if (found == entries.end())
        return {};
    return isGreek ? found->second.word : reversedHebrew(found->second.word);
}

void AnalysisWriter::count(const OriginalVerse& verse)
{
    Counts& counts = verse.isGreek ? m_greek : m_hebrew;
    for (const OriginalWord& word : verse.words) {
        if (word.isMark)
            continue;
        ++counts.words;
        counts.withCode += word.parsing.isEmpty() ? 0 : 1;
        counts.withNumber += word.strong == 0 ? 0 : 1;
        counts.withEnglish += word.english.isEmpty() ? 0 : 1;
        counts.withKorean += m_content.korean.gloss(verse.isGreek, word.strong).isEmpty() ? 0 : 1;
    }
}

} // namespace

Result<ModuleReport> fillWordAnalysis(OriginalCorpus& corpus, ModuleStore& store)
{
    const auto& content = corpus.content();
    if (!content)
        return content.failure();
    return AnalysisWriter(content.value(), store).run();
}

} // namespace lumen
