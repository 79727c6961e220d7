// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/text_mending.h"

#include "canon/canon_table.h"
#include "sources/psalm_titles.h"
#include "sources/text_cleaning.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

namespace lumen::Mending {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPsalms = 18;

QString shortReference(const VerseText& verse)
{
    return u"%1%2:%3"_s.arg(bookAbbreviation(verse.book)).arg(verse.chapter).arg(verse.verse);
}

void remark(VersionText& version, const QString& text, const QStringList& places)
{
    if (!places.isEmpty())
        version.remarks << u"%1 (%2절): %3"_s.arg(text).arg(places.size()).arg(places.join(u' '));
}

void remark(VersionText& version, const QString& text, int count)
{
    if (count > 0)
        version.remarks << u"%1: %2절"_s.arg(text).arg(count);
}

// Printed text has none of these; they are left-overs of its typing.
bool hasStraySign(const QString& text)
{
    static const QRegularExpression stray(uR"([_"!0-9\[\].\\/<>|{}])"_s);
    return text.contains(stray);
}

bool isKoreanPlaceholder(const QString& text)
{
    static constexpr std::array<QStringView, 4> kPlaceholders{u"(없음)", u"(없 음)", u"없음",
                                                              u"{상동}"};
    return std::find(kPlaceholders.begin(), kPlaceholders.end(), text) != kPlaceholders.end();
}

// Drops the closing brackets that close nothing. Brackets may span verses, so that the depth is
// carried on from verse to verse.
bool dropDoubledBrackets(QString& text, int& depth)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar c : std::as_const(text)) {
        if (c == u')' && depth == 0)
            continue;
        depth += c == u'(' ? 1 : c == u')' ? -1 : 0;
        kept += c;
    }
    const bool dropped = kept.size() != text.size();
    text = kept;
    return dropped;
}

struct PsalmMove
{
    int chapter = 0;
    int firstVerse = 0;
    int lastVerse = 0;
    int toChapter = 0;
    int toVerse = 0;
};

constexpr int kToTheEnd = 1000;

// Where the source of the Douay text has verses of the Psalms, and where they belong. From 120 on
// the chapters count one too many, from 149 on two.
constexpr std::array kDouayPsalms{
    PsalmMove{114, 9, kToTheEnd, 115, 1},   PsalmMove{115, 1, kToTheEnd, 116, 1},
    PsalmMove{116, 1, 1, 116, 10},          PsalmMove{149, 1, 1, 147, 12},
    PsalmMove{149, 13, kToTheEnd, 147, 13}, PsalmMove{150, 1, kToTheEnd, 148, 1},
    PsalmMove{151, 1, kToTheEnd, 149, 1},   PsalmMove{152, 1, kToTheEnd, 150, 1},
};

// Psalms 10 and 11 stand under one number, their verses by turns: the first seven rounds are
// 11:n, 10:n + 1 and a number that is left out; then Psalm 10 goes on alone.
bool untangleTenAndEleven(VerseText& verse)
{
    constexpr int kLastOfEleven = 22;
    if (verse.chapter != 11)
        return false;
    if (verse.verse <= kLastOfEleven && verse.verse % 3 == 1) {
        verse.verse = (verse.verse + 2) / 3;
    } else {
        verse.chapter = 10;
        verse.verse = verse.verse > kLastOfEleven ? verse.verse - 14 : verse.verse / 3 + 2;
    }
    return true;
}

bool moveDouayPsalm(VerseText& verse)
{
    if (untangleTenAndEleven(verse))
        return true;
    for (const PsalmMove& move : kDouayPsalms) {
        if (verse.chapter != move.chapter || verse.verse < move.firstVerse ||
            verse.verse > move.lastVerse)
            continue;
        verse.chapter = move.toChapter;
        verse.verse += move.toVerse - move.firstVerse;
        return true;
    }
    if (verse.chapter < 119)
        return false;
    if (verse.chapter > 119) {
        --verse.chapter;
        return true;
    }
    // The letter Aleph alone is all of this chapter.
    addHeading(verse.miniTitle, verse.text.value_or(QString()));
    verse.text.reset();
    return true;
}

constexpr QStringView kDouayFiller = u"dummy verses inserted by amos";

struct VerseMove
{
    int book = 0;
    int chapter = 0;
    int firstVerse = 0;
    int lastVerse = 0;
    int toVerse = 0;
};

// Where misread numbers in the source's copy have pushed verses away from their own, and where
// those belong. Numbers that nothing is moved to are verses that the copy has lost.
constexpr std::array kDouayMoves{
    VerseMove{0, 17, 27, 28, 26},  VerseMove{0, 18, 3, 34, 2},    VerseMove{0, 20, 16, 16, 15},
    VerseMove{0, 20, 18, 19, 17},  VerseMove{0, 27, 23, 23, 24},  VerseMove{0, 38, 16, 16, 15},
    VerseMove{0, 38, 18, 25, 17},  VerseMove{0, 38, 27, 27, 25},  VerseMove{0, 38, 29, 32, 27},
    VerseMove{0, 39, 8, 8, 6},     VerseMove{0, 39, 10, 16, 8},   VerseMove{0, 39, 18, 18, 15},
    VerseMove{0, 39, 20, 27, 16},  VerseMove{0, 40, 16, 16, 15},  VerseMove{0, 40, 18, 25, 16},
    VerseMove{0, 41, 6, 6, 5},     VerseMove{0, 41, 8, 59, 6},    VerseMove{0, 49, 16, 16, 15},
    VerseMove{0, 49, 18, 26, 16},  VerseMove{0, 49, 28, 28, 25},  VerseMove{0, 49, 30, 36, 26},
    VerseMove{1, 9, 21, 22, 22},   VerseMove{1, 28, 44, 44, 43},  VerseMove{3, 7, 6, 6, 31},
    VerseMove{3, 7, 7, 33, 4},     VerseMove{3, 7, 35, 92, 32},   VerseMove{4, 1, 6, 6, 41},
    VerseMove{4, 1, 7, 42, 5},     VerseMove{4, 1, 44, 48, 42},   VerseMove{4, 11, 8, 32, 7},
    VerseMove{4, 26, 9, 20, 8},    VerseMove{5, 2, 11, 26, 9},    VerseMove{5, 18, 4, 21, 3},
    VerseMove{5, 18, 23, 29, 22},  VerseMove{6, 2, 29, 29, 23},   VerseMove{6, 6, 3, 10, 2},
    VerseMove{6, 6, 12, 41, 11},   VerseMove{9, 5, 3, 10, 2},     VerseMove{9, 5, 12, 26, 11},
    VerseMove{10, 6, 26, 26, 25},  VerseMove{10, 6, 28, 40, 26},  VerseMove{12, 21, 10, 31, 9},
    VerseMove{13, 4, 3, 23, 2},    VerseMove{13, 30, 3, 28, 2},   VerseMove{22, 22, 26, 26, 25},
    VerseMove{23, 21, 14, 15, 13}, VerseMove{23, 31, 33, 33, 32}, VerseMove{23, 31, 35, 42, 33},
    VerseMove{25, 43, 10, 28, 9},  VerseMove{32, 6, 6, 6, 5},     VerseMove{32, 6, 8, 18, 6},
};

bool isMovedDouayChapter(const VerseText& verse)
{
    return std::ranges::any_of(kDouayMoves, [&verse](const VerseMove& move) {
        return move.book == verse.book && move.chapter == verse.chapter;
    });
}

bool moveDouayVerse(VerseText& verse)
{
    for (const VerseMove& move : kDouayMoves) {
        if (move.book != verse.book || move.chapter != verse.chapter ||
            verse.verse < move.firstVerse || verse.verse > move.lastVerse)
            continue;
        verse.verse += move.toVerse - move.firstVerse;
        return true;
    }
    return false;
}

// A number misread as 1, "10" for the most part, leaves fillers from 2 up to the true one.
int giveBackFirstVerses(VersionText& version)
{
    int moved = 0;
    auto& verses = version.verses;
    for (std::size_t first = 0; first < verses.size(); ++first) {
        if (verses[first].verse != 1)
            continue;
        std::size_t last = first;
        while (last + 1 < verses.size() && verses[last + 1].text == kDouayFiller &&
               verses[last + 1].chapter == verses[first].chapter &&
               verses[last + 1].verse == verses[last].verse + 1)
            ++last;
        if (last == first)
            continue;
        std::swap(verses[first].text, verses[last].text);
        ++moved;
    }
    return moved;
}

// The two halves of Joshua 2:10 stand at 12 and 10, the first behind the second.
void orderHalves(VersionText& version)
{
    const auto half = [&version](int number) {
        return std::ranges::find_if(version.verses, [number](const VerseText& verse) {
            return verse.book == 5 && verse.chapter == 2 && verse.verse == number;
        });
    };
    const auto second = half(10);
    const auto first = half(12);
    if (second != version.verses.end() && first != version.verses.end())
        std::swap(second->text, first->text);
}

int mendDouayNumbers(VersionText& version)
{
    std::erase_if(version.verses, [](const VerseText& verse) {
        return verse.text == kDouayFiller && isMovedDouayChapter(verse);
    });
    int moved = giveBackFirstVerses(version);
    orderHalves(version);
    for (VerseText& verse : version.verses)
        moved += moveDouayVerse(verse) ? 1 : 0;
    return moved;
}

int mendDouayPsalms(VersionText& version)
{
    // Fillers in chapters that are moved would come to lie upon verses that exist.
    std::erase_if(version.verses, [](const VerseText& verse) {
        return verse.book == kPsalms && (verse.chapter == 116 || verse.chapter == 149) &&
               verse.text == kDouayFiller;
    });
    int moved = 0;
    for (VerseText& verse : version.verses)
        moved += verse.book == kPsalms && moveDouayPsalm(verse) ? 1 : 0;
    return moved;
}

// The words of a text in small letters, each as often as it comes.
QHash<QString, int> countedWords(const QString& text)
{
    static const QRegularExpression word(u"[A-Za-z]+"_s);
    QHash<QString, int> counts;
    for (const auto& match : word.globalMatch(text))
        ++counts[match.captured().toLower()];
    return counts;
}

void joinAsIn(QString& text, const QString& whole)
{
    static const QRegularExpression pair(u"\\b([A-Za-z]+) (?=([a-z]+)\\b)"_s);
    const QHash<QString, int> own = countedWords(text);
    const QHash<QString, int> wanted = countedWords(whole);
    qsizetype at = 0;
    for (;;) {
        const auto match = pair.match(text, at);
        if (!match.hasMatch())
            return;
        const QString joined = (match.captured(1) + match.captured(2)).toLower();
        at = match.capturedEnd();
        if (wanted.value(joined) > own.value(joined))
            text.remove(--at, 1);
    }
}

QSet<QString> wordsOf(const VersionText& version)
{
    static const QRegularExpression word(u"[A-Za-z]+(?:-[A-Za-z]+)*"_s);
    QSet<QString> words;
    for (const VerseText& verse : version.verses)
        for (const auto& match : word.globalMatch(verse.text.value_or(QString())))
            words.insert(match.captured().toLower());
    return words;
}

// A hyphen and a blank are left of a word that a printed line divided; that it is one shows where
// the text has it whole, without the hyphen or with it.
void joinDividedWords(QString& text, const QSet<QString>& words)
{
    static const QRegularExpression divided(u"\\b([A-Za-z]+)- ([a-z]+)\\b"_s);
    qsizetype at = 0;
    for (;;) {
        const auto match = divided.match(text, at);
        if (!match.hasMatch())
            return;
        const QString first = match.captured(1);
        const QString second = match.captured(2);
        at = match.capturedStart(2);
        if (words.contains((first + second).toLower()))
            text.remove(at - 2, 2);
        else if (words.contains((first + u'-' + second).toLower()))
            text.remove(at - 1, 1);
    }
}

template <typename Change>
int changeTexts(VersionText& version, Change change)
{
    int changed = 0;
    for (VerseText& verse : version.verses) {
        if (!verse.text)
            continue;
        const QString before = *verse.text;
        change(verse);
        if (verse.text != before)
            ++changed;
    }
    return changed;
}

} // namespace

void korean(VersionText& version)
{
    int depth = 0;
    int book = 0;
    QStringList doubled;
    QStringList stray;
    int braces = 0;
    for (VerseText& verse : version.verses) {
        if (!verse.text)
            continue;
        if (std::exchange(book, verse.book) != verse.book)
            depth = 0;
        QString text = verse.text->normalized(QString::NormalizationForm_C);
        if (isKoreanPlaceholder(text)) {
            verse.text.reset();
            continue;
        }
        braces += text.contains(u'{') || text.contains(u'}') ? 1 : 0;
        text.replace(u'{', u'(').replace(u'}', u')');
        if (dropDoubledBrackets(text, depth))
            doubled << shortReference(verse);
        if (hasStraySign(text))
            stray << shortReference(verse);
        verse.text = text;
    }
    remark(version, u"중괄호를 소괄호로 바꾸었습니다"_s, braces);
    remark(version, u"겹친 닫는 괄호를 뺐습니다"_s, doubled);
    remark(version, u"본문에 드문 부호가 있어 그대로 두었습니다"_s, stray);
}

void baptist(VersionText& version)
{
    const int changed =
        changeTexts(version, [](VerseText& verse) { verse.text->replace(u"세례"_s, u"침례"_s); });
    remark(version, u"\"세례\"를 \"침례\"로 바꾸었습니다"_s, changed);
}

void asv(VersionText& version)
{
    // The closing sign is the one that no letter follows: `the king's matter'.
    static const QRegularExpression added(u"`(.*?)'(?![A-Za-z])"_s);
    const int changed =
        changeTexts(version, [](VerseText& verse) { verse.text->replace(added, u"\\1"_s); });
    remark(version, u"보충한 낱말의 표시를 뺐습니다"_s, changed);
}

void kjvWithNumbers(VersionText& version)
{
    static const QRegularExpression dash(u"(?<=[A-Za-z>])\u2013(?=[A-Za-z])"_s);
    const int changed = changeTexts(version, [](VerseText& verse) {
        verse.text->remove(u"filter_string_"_s);
        verse.text->replace(dash, u"-"_s);
        if (verse.part)
            verse.part->replace(dash, u"-"_s);
    });
    remark(version, u"잘못 바뀐 낱말과 이름의 줄표를 바로잡았습니다"_s, changed);
}

void joinCutWords(VersionText& version, const VersionText& witness)
{
    QHash<QString, QString> wholeTexts;
    for (const VerseText& verse : witness.verses)
        if (verse.text)
            wholeTexts.insert(shortReference(verse), *verse.text);
    const int changed = changeTexts(version, [&wholeTexts](VerseText& verse) {
        joinAsIn(*verse.text, wholeTexts.value(shortReference(verse)));
    });
    remark(version, u"갈라진 낱말을 이었습니다"_s, changed);
}

void darby(VersionText& version)
{
    static const QRegularExpression title(uR"(^\{([^}]*)\}\s*)"_s);
    static const QRegularExpression letter(uR"(^([A-Z]{2,})\.\s+)"_s);
    int titles = 0;
    const int stressed = changeTexts(version, [&titles](VerseText& verse) {
        const auto match = title.match(*verse.text);
        if (verse.book == kPsalms && verse.verse == 1 && match.hasMatch()) {
            verse.part = match.captured(1);
            verse.text = textOrNothing(verse.text->mid(match.capturedLength()));
            ++titles;
        }
        if (!verse.text)
            return;
        const auto head = letter.match(*verse.text);
        if (verse.book == kPsalms && verse.chapter == 119 && head.hasMatch()) {
            addHeading(verse.miniTitle, head.captured(1));
            verse.text->remove(0, head.capturedLength());
        }
        verse.text->remove(u'*');
    });
    remark(version, u"시편의 표제를 본문에서 떼었습니다"_s, titles);
    remark(version, u"표제와 강조 표시를 정리했습니다"_s, stressed);
}

void douay(VersionText& version)
{
    remark(version, u"시편의 장 번호를 바로잡았습니다"_s, mendDouayPsalms(version));
    remark(version, u"잘못 읽힌 절 번호를 바로잡았습니다"_s, mendDouayNumbers(version));
    static const QRegularExpression lineEnd(uR"(\s*\\$)"_s);
    static const QRegularExpression noteLetter(uR"(^[a-z]\s+(?=[A-Z]))"_s);
    QStringList stray;
    const QSet<QString> words = wordsOf(version);
    const int changed = changeTexts(version, [&stray, &words](VerseText& verse) {
        if (*verse.text == kDouayFiller) {
            verse.text.reset();
            return;
        }
        verse.text->remove(lineEnd);
        verse.text->remove(noteLetter);
        joinDividedWords(*verse.text, words);
        static const QRegularExpression odd(uR"([/<>\\|])"_s);
        if (verse.text->contains(odd))
            stray << shortReference(verse);
    });
    remark(version, u"채움 절과 줄 끝 부호를 뺐습니다"_s, changed);
    remark(version, u"본문에 드문 부호가 있어 그대로 두었습니다"_s, stray);
}

void webster(VersionText& version)
{
    static const QRegularExpression mark(uR"(^\\(\d+):(\d+)\\\s*)"_s);
    const auto fillers =
        std::erase_if(version.verses, [](const VerseText& verse) { return verse.text == u"+"_s; });
    int moved = 0;
    for (VerseText& verse : version.verses) {
        if (!verse.text)
            continue;
        const auto match = mark.match(*verse.text);
        if (match.hasMatch()) {
            verse.chapter = match.captured(1).toInt();
            verse.verse = match.captured(2).toInt();
            ++moved;
        }
        QString text = verse.text->mid(match.capturedLength());
        verse.text = textOrNothing(text.remove(u'\\'));
    }
    remark(version, u"채움 절을 뺐습니다"_s, static_cast<int>(fillers));
    remark(version, u"본문이 말하는 번호로 옮겼습니다"_s, moved);
    PsalmTitles::english(version);
}

void romansDoxology(VersionText& version)
{
    constexpr int kRomans = 44;
    int moved = 0;
    for (VerseText& verse : version.verses) {
        if (verse.book != kRomans || verse.chapter != 14 || verse.verse < 24 || verse.verse > 26)
            continue;
        verse.chapter = 16;
        ++verse.verse;
        ++moved;
    }
    remark(version, u"로마서 14:24-26을 16:25-27로 옮겼습니다"_s, moved);
}

} // namespace lumen::Mending
