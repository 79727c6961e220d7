// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/place_reference.h"

#include "canon/canon_table.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <optional>
#include <tuple>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr int kHighestVerse = 176; // of the longest psalm, in every division of verses
constexpr qsizetype kShortestPrefix = 3;

constexpr std::array<QStringView, kBookCount> kEnglishNames{
    u"genesis",        u"exodus",       u"leviticus",    u"numbers",
    u"deuteronomy",    u"joshua",       u"judges",       u"ruth",
    u"1samuel",        u"2samuel",      u"1kings",       u"2kings",
    u"1chronicles",    u"2chronicles",  u"ezra",         u"nehemiah",
    u"esther",         u"job",          u"psalms",       u"proverbs",
    u"ecclesiastes",   u"songofsongs",  u"isaiah",       u"jeremiah",
    u"lamentations",   u"ezekiel",      u"daniel",       u"hosea",
    u"joel",           u"amos",         u"obadiah",      u"jonah",
    u"micah",          u"nahum",        u"habakkuk",     u"zephaniah",
    u"haggai",         u"zechariah",    u"malachi",      u"matthew",
    u"mark",           u"luke",         u"john",         u"acts",
    u"romans",         u"1corinthians", u"2corinthians", u"galatians",
    u"ephesians",      u"philippians",  u"colossians",   u"1thessalonians",
    u"2thessalonians", u"1timothy",     u"2timothy",     u"titus",
    u"philemon",       u"hebrews",      u"james",        u"1peter",
    u"2peter",         u"1john",        u"2john",        u"3john",
    u"jude",           u"revelation",
};

struct OtherName
{
    QStringView name;
    QStringView abbreviation;
};

// What neither the names above nor their beginnings cover.
constexpr std::array kOtherNames{
    OtherName{u"gn", u"창"},
    OtherName{u"ex", u"출"},
    OtherName{u"lv", u"레"},
    OtherName{u"nm", u"민"},
    OtherName{u"dt", u"신"},
    OtherName{u"jdg", u"삿"},
    OtherName{u"1sm", u"삼상"},
    OtherName{u"2sm", u"삼하"},
    OtherName{u"1kgs", u"왕상"},
    OtherName{u"2kgs", u"왕하"},
    OtherName{u"ps", u"시"},
    OtherName{u"prv", u"잠"},
    OtherName{u"songofsolomon", u"아"},
    OtherName{u"is", u"사"},
    OtherName{u"mt", u"마"},
    OtherName{u"mk", u"막"},
    OtherName{u"lk", u"눅"},
    OtherName{u"jn", u"요"},
    OtherName{u"rm", u"롬"},
    OtherName{u"phil", u"빌"},
    OtherName{u"phm", u"몬"},
    OtherName{u"jas", u"약"},
    OtherName{u"1pt", u"벧전"},
    OtherName{u"2pt", u"벧후"},
    OtherName{u"1jn", u"요일"},
    OtherName{u"2jn", u"요이"},
    OtherName{u"3jn", u"요삼"},
    OtherName{u"rv", u"계"},
    OtherName{u"revelations", u"계"},
    OtherName{u"마태", u"마"},
    OtherName{u"마가", u"막"},
    OtherName{u"누가", u"눅"},
    OtherName{u"요한", u"요"},
    OtherName{u"애가", u"애"},
    OtherName{u"계시록", u"계"},
    OtherName{u"룻", u"룻"},
};

QHash<QString, int> knownNames()
{
    QHash<QString, int> names;
    for (int book = 0; book < kBookCount; ++book) {
        const QString name = bookName(book);
        names.insert(name, book);
        // "로마" and "이사야서" are as usual as the names of the table.
        names.insert(name.endsWith(u'서') ? name.chopped(1) : name + u'서', book);
        names.insert(kEnglishNames[static_cast<std::size_t>(book)].toString(), book);
    }
    for (const OtherName& other : kOtherNames)
        names.insert(other.name.toString(), BibleCode::GetBookNum(other.abbreviation));
    for (int book = 0; book < kBookCount; ++book)
        names.insert(bookAbbreviation(book), book);
    return names;
}

// -1 when the letters begin no name, or more than one: "jud".
int bookOfEnglishBeginning(const QString& letters)
{
    int found = -1;
    if (letters.size() < kShortestPrefix)
        return -1;
    for (int book = 0; book < kBookCount; ++book) {
        if (!kEnglishNames[static_cast<std::size_t>(book)].startsWith(letters))
            continue;
        if (found >= 0)
            return -1;
        found = book;
    }
    return found;
}

int bookOf(const QString& written)
{
    static const QHash<QString, int> names = knownNames();
    static const QRegularExpression roman(u"^(i{1,3})(?=[a-z])"_s);
    QString name = written;
    name.remove(u' ').remove(u'.');
    if (const auto known = names.constFind(name); known != names.cend())
        return *known;
    if (const int book = bookOfEnglishBeginning(name); book >= 0)
        return book;
    const QRegularExpressionMatch match = roman.match(name);
    if (!match.hasMatch())
        return -1;
    return bookOf(QString::number(match.capturedLength()) + name.sliced(match.capturedLength()));
}

// One sign for what is written in many ways: "창 제1장 1~3절" becomes "창 1:1-3".
QString inOneSpelling(const QString& typed)
{
    static const QRegularExpression dashes(u"[~\u2010-\u2015\u2212\u223C\u301C]"_s);
    static const QRegularExpression chapterMark(u"(?<=\\d)\\s*[장편]"_s);
    static const QRegularExpression verseMark(u"(?<=\\d)\\s*절"_s);
    static const QRegularExpression ordinal(u"제\\s*(?=\\d)"_s);
    static const QRegularExpression point(u"(?<=\\d)\\.(?=\\d)"_s);
    QString text = typed.normalized(QString::NormalizationForm_KC).toLower().simplified();
    text.replace(dashes, u"-"_s).replace(chapterMark, u":"_s).remove(verseMark).remove(ordinal);
    return text.replace(point, u":"_s);
}

// The letters of John with a digit, which would else be the chapter. Without "서" only a blank and
// a whole place behind the digit tell "요1 1:1" from "요1:1".
QString withLettersOfJohn(QString text)
{
    static const QRegularExpression letter(
        u"^요(?:한\\s*)?\\s*([123])(?:\\s*서|\\s+(?=\\d+\\s*:))"_s);
    constexpr std::array<QStringView, 3> kLetters{u"요일 ", u"요이 ", u"요삼 "};
    const QRegularExpressionMatch match = letter.match(text);
    if (match.hasMatch())
        text.replace(0, match.capturedLength(),
                     kLetters[match.capturedView(1).toUInt() - 1].toString());
    return text;
}

/// A chapter and verse as written, 0 where there is none.
struct Numbers
{
    int left = 0;
    bool hasColon = false;
    int right = 0;
};

Numbers numbersAt(const QRegularExpressionMatch& match, int group)
{
    return {match.capturedView(group).toInt(), match.capturedLength(group + 1) > 0,
            match.capturedView(group + 2).toInt()};
}

bool isPossible(const PlaceRange& range)
{
    const auto inCanon = [](const VersePlace& place) {
        return place.chapter >= 1 && place.chapter <= chapterCount(place.book) &&
               place.verse >= 0 && place.verse <= kHighestVerse;
    };
    const int lastVerse = range.last.verse == 0 ? kHighestVerse : range.last.verse;
    return inCanon(range.first) && inCanon(range.last) &&
           std::tie(range.first.chapter, range.first.verse) <=
               std::tie(range.last.chapter, lastVerse);
}

/// Reads the parts of a list one behind the other; each may lean on the one before it.
class PlaceReader
{
public:
    // A number alone behind a comma is a verse, if the part before named one; behind a semicolon
    // it is a chapter.
    std::optional<PlaceRange> read(const QString& part, bool behindSemicolon)
    {
        static const QRegularExpression withBook(
            u"^((?:[123]\\s*)?[\\p{L}][\\p{L} .]*?)\\s*(?=\\d)(.*)$"_s);
        m_leansOnVerse = m_leansOnVerse && !behindSemicolon;
        QString numbers = withLettersOfJohn(part.trimmed());
        if (const QRegularExpressionMatch match = withBook.match(numbers); match.hasMatch()) {
            m_book = bookOf(match.captured(1));
            m_chapter = 1;
            m_leansOnVerse = m_book >= 0 && chapterCount(m_book) == 1;
            numbers = match.captured(2);
        }
        return m_book < 0 ? std::nullopt : readNumbers(numbers);
    }

private:
    std::optional<PlaceRange> readNumbers(const QString& text)
    {
        static const QRegularExpression form(u"^(\\d{1,3})(\\s*:\\s*(\\d{1,3})?)?"
                                             "(?:\\s*-\\s*(\\d{1,3})(\\s*:\\s*(\\d{1,3})?)?)?$"_s);
        const QRegularExpressionMatch match = form.match(text.trimmed());
        if (!match.hasMatch() || namesVerseZero(match))
            return std::nullopt;
        const Numbers from = numbersAt(match, 1);
        const bool isRange = match.capturedLength(4) > 0;
        const Numbers to = isRange ? numbersAt(match, 4) : from;
        // "1-3:5" may mean two things; "1-3장" means chapters.
        if (isRange && !from.hasColon && to.right > 0)
            return std::nullopt;
        const bool areChapters = !from.hasColon && to.hasColon;
        const VersePlace first = placeOf(from, areChapters);
        m_leansOnVerse = first.verse > 0;
        m_chapter = first.chapter;
        const VersePlace last = isRange ? placeOf(to, areChapters) : first;
        m_leansOnVerse = last.verse > 0;
        m_chapter = last.chapter;
        const PlaceRange range{first, last};
        return isPossible(range) ? std::optional(range) : std::nullopt;
    }

    static bool namesVerseZero(const QRegularExpressionMatch& match)
    {
        const auto isZero = [&match](int group) {
            return match.capturedLength(group) > 0 && match.capturedView(group).toInt() == 0;
        };
        return isZero(1) || isZero(3) || isZero(4) || isZero(6);
    }

    [[nodiscard]] VersePlace placeOf(const Numbers& numbers, bool isChapter) const
    {
        if (!numbers.hasColon && !isChapter && m_leansOnVerse)
            return {m_book, m_chapter, numbers.left};
        return {m_book, numbers.left, numbers.right};
    }

    int m_book = -1;
    int m_chapter = 1;
    bool m_leansOnVerse = false;
};

} // namespace

QList<PlaceRange> parsePlaces(const QString& typed)
{
    static const QRegularExpression separator(u"[,;]"_s);
    const QString text = inOneSpelling(typed);
    QList<PlaceRange> places;
    PlaceReader reader;
    qsizetype start = 0;
    while (start <= text.size()) {
        const qsizetype found = text.indexOf(separator, start);
        const qsizetype end = found < 0 ? text.size() : found;
        const bool behindSemicolon = start > 0 && text[start - 1] == u';';
        const auto place = reader.read(text.sliced(start, end - start), behindSemicolon);
        if (!place)
            return {};
        places.append(*place);
        start = end + 1;
    }
    return places;
}

} // namespace lumen
