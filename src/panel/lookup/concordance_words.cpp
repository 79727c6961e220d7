// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/concordance_words.h"

#include "canon/verse_index.h"
#include "data/concordance_word.h"
#include "data/versions.h"
#include "text/basic_text.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
QString concordanceQuery(const QString& word, bool within)
{
    const QString literal = EscapeLikeText(DES::ScrambleField(word.toLower()), true);
    return u"Select * from 성구사전 where word like '"_s + (within ? u"*"_s : QString()) + literal +
           u"*'"_s;
}

std::vector<ConcordanceWord> foundWords(const QStringList& words, const QStringList& counts,
                                        const QString& word)
{
    const QString lower = word.toLower();
    std::vector<ConcordanceWord> found;
    for (qsizetype row = 0; row < words.size(); ++row) {
        // The scrambling leaves some characters alone, so that a row may only look alike.
        const QString plain = DES::UnscrambleField(words[row]);
        if (!plain.contains(lower))
            continue;
        if (found.empty() || found.back().word != plain)
            found.push_back({plain, {}, 0});
        found.back().rows.push_back(static_cast<int>(row));
        found.back().count += ValInt(counts[row]);
    }
    return found;
}

QString listedWord(const ConcordanceWord& found, int code)
{
    const VersionGroup group = versionRow(code).group;
    const QString word = group == VersionGroup::Original ? found.word : found.word.toUpper();
    return isPlainVersion(code) ? word + u" ("_s + QString::number(found.count) + u')' : word;
}

QStringList listedPlaces(const QString& positions)
{
    QStringList places = positions.split(u';', Qt::SkipEmptyParts);
    places.sort();
    for (QString& place : places)
        if (place.front() >= u'0' && place.front() <= u'9')
            place = BibleCode::IndexToRef(place);
    return places;
}

} // namespace lumen
