// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/psalm_titles.h"

#include "sources/text_cleaning.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace lumen::PsalmTitles {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPsalms = 18;
constexpr int kAlphabetPsalm = 119;

// The Psalms without a title in Hebrew, which every version follows.
constexpr std::array kUntitled{1,   2,   10,  33,  43,  71,  91,  93,  94,  95,  96,  97,
                               99,  104, 105, 106, 107, 111, 112, 113, 114, 115, 116, 117,
                               118, 119, 135, 136, 137, 146, 147, 148, 149, 150};

bool beginsWithTitle(const VerseText& verse)
{
    return verse.book == kPsalms && verse.verse == 1 && verse.text && !verse.part &&
           std::ranges::find(kUntitled, verse.chapter) == kUntitled.end();
}

qsizetype englishTitleLength(const QString& text)
{
    static const QRegularExpression sentence(
        uR"([^.!?]*?(?:[.!?]['’]?\s+(?:-- )?|And he said, |he saith: -- ))"_s);
    static const QRegularExpression ofTitle(
        uR"(Overseer|chief Musician|Psalm\b|Michtam|Maschil|Shiggaion|Secret Treasure)"
        uR"(|Erring One|of degrees|of the Ascents|Instruction)"
        uR"(|^(?:-- )?'?(?:By (?:a servant|sons|David|Asaph|Solomon|Ethan))"
        uR"(|An? (?:[Ss]ong|secret|testimony|instruction|[Pp]rayer))"
        uR"(|Praise by|On (?:the |a )|For the Virgins|Concerning|Destroy not|To cause))"_s);
    qsizetype at = 0;
    for (;;) {
        const auto match = sentence.match(text, at, QRegularExpression::NormalMatch,
                                          QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch() || !ofTitle.match(match.captured()).hasMatch())
            return at;
        at = match.capturedEnd();
    }
}

qsizetype spanishTitleLength(const QString& text)
{
    static const QRegularExpression firstWord(uR"([¡¿]?\b\p{Lu}{2,})"_s,
                                              QRegularExpression::UseUnicodePropertiesOption);
    return std::max<qsizetype>(text.indexOf(firstWord), 0);
}

// Dashes join the sentences of a title and are left at its ends.
QString trimmedTitle(QString title)
{
    static const QRegularExpression dashes(uR"(^[\s-]+|[\s-]+$)"_s);
    return title.remove(dashes);
}

template <typename TitleLength>
int separate(VersionText& version, TitleLength titleLength, const QRegularExpression& letter)
{
    int separated = 0;
    for (VerseText& verse : version.verses) {
        qsizetype length = 0;
        if (beginsWithTitle(verse)) {
            length = titleLength(*verse.text);
            const QString title = trimmedTitle(verse.text->left(length));
            if (!title.isEmpty())
                verse.part = title;
        } else if (verse.book == kPsalms && verse.chapter == kAlphabetPsalm && verse.text) {
            const auto match = letter.match(*verse.text);
            length = match.capturedLength();
            addHeading(verse.miniTitle, match.captured(1));
        }
        if (length == 0)
            continue;
        verse.text = textOrNothing(QStringView(*verse.text).mid(length));
        ++separated;
    }
    return separated;
}

void remark(VersionText& version, int separated)
{
    if (separated > 0)
        version.remarks << u"시편의 표제와 알파벳 글자를 본문에서 떼었습니다: %1절"_s.arg(
            separated);
}

} // namespace

void english(VersionText& version)
{
    static const QRegularExpression letter(uR"(^(?|\[([A-Z][a-z]+)\.\]|([A-Z]{2,})\.)\s+)"_s);
    remark(version, separate(version, englishTitleLength, letter));
}

void spanish(VersionText& version)
{
    static const QRegularExpression letter(uR"(^(\p{Lu}{2,})\.?\s+(?=[¿¡\p{Lu}]))"_s);
    remark(version, separate(version, spanishTitleLength, letter));
}

} // namespace lumen::PsalmTitles
