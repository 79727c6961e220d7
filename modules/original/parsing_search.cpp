// SPDX-License-Identifier: GPL-2.0-or-later
#include "original/parsing_search.h"

#include "original/greek_morphology.h"

#include <algorithm>

namespace lumen {

using namespace Qt::StringLiterals;

QString searchedCodes(const OriginalVerse& verse)
{
    QString codes;
    for (const OriginalWord& word : verse.words) {
        if (word.parsing.isEmpty())
            continue;
        if (verse.isGreek)
            codes += greekSearchCodes(word.parsing);
        else
            codes += word.prefixes + word.parsing + u';';
    }
    return codes;
}

Result<ModuleReport> fillParsingSearch(OriginalCorpus& corpus, ModuleStore& store)
{
    const QString table = u"ParsingSearch"_s;
    const auto& content = corpus.content();
    if (!content)
        return content.failure();
    store.createTable({table,
                       {textColumn(u"Index"_s, 20), memoColumn(u"Parsing"_s)},
                       {{u"PrimaryKey"_s, {u"Index"_s}, true, true}}});
    store.expect(content.value().verses.size());
    qsizetype longest = 0;
    for (const OriginalVerse& verse : content.value().verses) {
        const VersePlace& place = verse.place;
        const QString codes = searchedCodes(verse);
        longest = std::max(longest, codes.size());
        if (!store.addRow(table, {BibleCode::verseKey(place.book, place.chapter, place.verse),
                                  scrambledOrNull(codes)}))
            return Failure{FailureKind::Cancelled, {}};
    }
    ModuleReport report;
    report.details << u"가장 긴 절의 코드: %1자"_s.arg(longest);
    return report;
}

} // namespace lumen
