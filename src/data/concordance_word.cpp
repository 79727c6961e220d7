// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/concordance_word.h"

#include "data/versions.h"
#include "text/codepage949.h"

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

} // namespace

bool isPlainVersion(int code)
{
    const VersionGroup group = versionRow(code).group;
    return group == VersionGroup::Korean || group == VersionGroup::Western;
}

QString cleanedConcordanceWord(const QString& word, int code)
{
    const QString taken = code == kMixedScript ? withBracketTaken(word) : word;
    if (isPlainVersion(code))
        return without(taken, u"○!.,'`\"?-:;〔〕"_s + fromCodePage949(kParagraph));
    if (versionRow(code).group == VersionGroup::Chinese)
        return without(taken, u'O' + fromCodePage949(kChineseSigns));
    return taken;
}

} // namespace lumen
