// SPDX-License-Identifier: GPL-2.0-or-later
#include "text/original/parsing_decoder.h"

#include "text/original/parsing_tables.h"

#include <algorithm>

namespace lumen::BibleCode {
namespace {

// 1-based; a null character behind the end of the code.
QChar characterAt(const QString& code, qsizetype position)
{
    return position <= code.size() ? code[position - 1] : QChar();
}

// Empty when the table doesn't list the character.
QStringView phraseFor(ParsingTable table, QChar character)
{
    const auto found = std::ranges::find(table, character.unicode(), &ParsingValue::character);
    return found == table.end() ? QStringView() : found->phrase;
}

QString phrases(const QString& code, std::span<const ParsingLayout> layouts)
{
    const auto layout =
        std::ranges::find(layouts, characterAt(code, 2).unicode(), &ParsingLayout::partOfSpeech);
    if (layout == layouts.end())
        return {};
    QString text = layout->phrase.toString();
    for (const ParsingPosition& position : layout->positions)
        text += phraseFor(position.table, characterAt(code, position.position));
    return text;
}

} // namespace

QString ParsingDecoder(QString& code)
{
    const QChar language = characterAt(code, 1);
    if (language != u'$' && language != u'(') {
        const QStringView known = phraseFor(kSemiticLanguages, language);
        return (known.isEmpty() ? kUndecidedLanguage : known).toString() +
               phrases(code, kSemiticLayouts);
    }
    if (language == u'(')
        code = code.mid(1, std::max<qsizetype>(code.size() - 2, 0));
    return kGreekLanguage.toString() + phrases(code, kGreekLayouts);
}

} // namespace lumen::BibleCode
