// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/lookup/concordance_words.h"

#include "canon/verse_index.h"
#include "data/versions.h"
#include "text/basic_text.h"
#include "text/codepage949.h"
#include "text/field_scramble.h"
#include "text/query_literal.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kMixedScript = 102;
// The paragraph sign, and the full-width signs of the Chinese text, as code page 949 has them.
constexpr char kParagraph[] = "\xA2\xD2";
constexpr char kChineseSigns[] = "\xA3\xAC\xA1\xA3\xA3\xBB\xA3\xA8\xA3\xA9\xA3\xBA\xA3\xAD\xA3\xA1";

QString without(QString word, const QString& signs)
{
    word.removeIf([&signs](QChar character) { return signs.contains(character); });
    return word;
}

QString withBracketTaken(const QString& word)
{
    const qsizetype open = word.indexOf(u'(');
    const qsizetype close = word.indexOf(u')', open + 1);
    if (open < 0 || close < 0)
        return word;
    const QString inside = word.mid(open + 1, close - open - 1);
    return word.left(std::max<qsizetype>(0, open - inside.size())) + inside + word.mid(close + 1);
}

/// The versions in Korean and in Western letters, whose index words are listed with their counts.
bool isPlainVersion(int code)
{
    const VersionGroup group = versionRow(code).group;
    return group == VersionGroup::Korean || group == VersionGroup::Western;
}

} // namespace

QString cleanedConcordanceWord(const QString& word, int code)
{
    const QString taken = code == kMixedScript ? withBracketTaken(word) : word;
    if (isPlainVersion(code))
        return without(taken, u"○!.,'`\"?-:;〔〕"_s + fromCodePage949(kParagraph));
    if (versionRow(code).group == VersionGroup::Chinese)
        return without(taken, u'O' + fromCodePage949(kChineseSigns));
    return taken;
}

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
