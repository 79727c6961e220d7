// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/book_names.h"

#include "canon/canon_table.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace lumen::BookNames {

using namespace Qt::StringLiterals;

namespace {

struct SourceNames
{
    QStringView osis;
    QStringView usfm;
    QStringView english;
};

constexpr std::array<SourceNames, kBookCount> kNames{{
    {u"Gen", u"GEN", u"Genesis"},
    {u"Exod", u"EXO", u"Exodus"},
    {u"Lev", u"LEV", u"Leviticus"},
    {u"Num", u"NUM", u"Numbers"},
    {u"Deut", u"DEU", u"Deuteronomy"},
    {u"Josh", u"JOS", u"Joshua"},
    {u"Judg", u"JDG", u"Judges"},
    {u"Ruth", u"RUT", u"Ruth"},
    {u"1Sam", u"1SA", u"1Samuel"},
    {u"2Sam", u"2SA", u"2Samuel"},
    {u"1Kgs", u"1KI", u"1Kings"},
    {u"2Kgs", u"2KI", u"2Kings"},
    {u"1Chr", u"1CH", u"1Chronicles"},
    {u"2Chr", u"2CH", u"2Chronicles"},
    {u"Ezra", u"EZR", u"Ezra"},
    {u"Neh", u"NEH", u"Nehemiah"},
    {u"Esth", u"EST", u"Esther"},
    {u"Job", u"JOB", u"Job"},
    {u"Ps", u"PSA", u"Psalms"},
    {u"Prov", u"PRO", u"Proverbs"},
    {u"Eccl", u"ECC", u"Ecclesiastes"},
    {u"Song", u"SNG", u"SongofSolomon"},
    {u"Isa", u"ISA", u"Isaiah"},
    {u"Jer", u"JER", u"Jeremiah"},
    {u"Lam", u"LAM", u"Lamentations"},
    {u"Ezek", u"EZK", u"Ezekiel"},
    {u"Dan", u"DAN", u"Daniel"},
    {u"Hos", u"HOS", u"Hosea"},
    {u"Joel", u"JOL", u"Joel"},
    {u"Amos", u"AMO", u"Amos"},
    {u"Obad", u"OBA", u"Obadiah"},
    {u"Jonah", u"JON", u"Jonah"},
    {u"Mic", u"MIC", u"Micah"},
    {u"Nah", u"NAM", u"Nahum"},
    {u"Hab", u"HAB", u"Habakkuk"},
    {u"Zeph", u"ZEP", u"Zephaniah"},
    {u"Hag", u"HAG", u"Haggai"},
    {u"Zech", u"ZEC", u"Zechariah"},
    {u"Mal", u"MAL", u"Malachi"},
    {u"Matt", u"MAT", u"Matthew"},
    {u"Mark", u"MRK", u"Mark"},
    {u"Luke", u"LUK", u"Luke"},
    {u"John", u"JHN", u"John"},
    {u"Acts", u"ACT", u"Acts"},
    {u"Rom", u"ROM", u"Romans"},
    {u"1Cor", u"1CO", u"1Corinthians"},
    {u"2Cor", u"2CO", u"2Corinthians"},
    {u"Gal", u"GAL", u"Galatians"},
    {u"Eph", u"EPH", u"Ephesians"},
    {u"Phil", u"PHP", u"Philippians"},
    {u"Col", u"COL", u"Colossians"},
    {u"1Thess", u"1TH", u"1Thessalonians"},
    {u"2Thess", u"2TH", u"2Thessalonians"},
    {u"1Tim", u"1TI", u"1Timothy"},
    {u"2Tim", u"2TI", u"2Timothy"},
    {u"Titus", u"TIT", u"Titus"},
    {u"Phlm", u"PHM", u"Philemon"},
    {u"Heb", u"HEB", u"Hebrews"},
    {u"Jas", u"JAS", u"James"},
    {u"1Pet", u"1PE", u"1Peter"},
    {u"2Pet", u"2PE", u"2Peter"},
    {u"1John", u"1JN", u"1John"},
    {u"2John", u"2JN", u"2John"},
    {u"3John", u"3JN", u"3John"},
    {u"Jude", u"JUD", u"Jude"},
    {u"Rev", u"REV", u"Revelation"},
}};
static_assert(!kNames.back().english.isEmpty());

struct OtherTitle
{
    QStringView title;
    QStringView osis;
};

// Titles in use beside those of the canon.
constexpr std::array kOtherTitles{
    OtherTitle{u"Psalm", u"Ps"},
    OtherTitle{u"Song of Songs", u"Song"},
    OtherTitle{u"Canticles", u"Song"},
    OtherTitle{u"Acts of the Apostles", u"Acts"},
    OtherTitle{u"Revelation of John", u"Rev"},
    OtherTitle{u"Apocalypse", u"Rev"},
    OtherTitle{u"아가서", u"Song"},
    OtherTitle{u"애가", u"Lam"},
    OtherTitle{u"전도", u"Eccl"},
    OtherTitle{u"요한1서", u"1John"},
    OtherTitle{u"요한2서", u"2John"},
    OtherTitle{u"요한3서", u"3John"},
    OtherTitle{u"계시록", u"Rev"},
};

// Books of OSIS and USFM that other canons have.
constexpr QStringView kOtherBooks[] = {
    u"TOB", u"JDT",   u"ESG",  u"ADDESTH", u"ESTHGR", u"WIS",   u"SIR",    u"SIRP",  u"BAR",
    u"LJE", u"EPJER", u"S3Y",  u"PRAZAR",  u"SUS",    u"BEL",   u"ADDDAN", u"DAG",   u"DANGR",
    u"1MA", u"2MA",   u"3MA",  u"4MA",     u"1MACC",  u"2MACC", u"3MACC",  u"4MACC", u"1ES",
    u"2ES", u"1ESD",  u"2ESD", u"EZA",     u"4EZRA",  u"5EZ",   u"5EZRA",  u"6EZ",   u"6EZRA",
    u"MAN", u"PRMAN", u"PS2",  u"PS3",     u"ADDPS",  u"ODA",   u"ODES",   u"PSS",   u"PSSSOL",
    u"ENO", u"1EN",   u"JUB",  u"1MQ",     u"2MQ",    u"3MQ",   u"1MEQ",   u"2MEQ",  u"3MEQ",
    u"2BA", u"2BAR",  u"LBA",  u"4BA",     u"4BAR",   u"REP",   u"LAO",    u"EPLAO"};

// Files that accompany the books of a USFM Bible.
constexpr QStringView kNoBooks[] = {u"FRT", u"INT", u"BAK", u"CNC", u"GLO", u"TDX", u"NDX", u"OTH",
                                    u"XXA", u"XXB", u"XXC", u"XXD", u"XXE", u"XXF", u"XXG"};

using Index = QHash<QString, int>;

template <typename Key>
Index makeIndex(Key key)
{
    Index index;
    for (int book = 0; book < kBookCount; ++book)
        index.insert(key(kNames[static_cast<std::size_t>(book)]), book);
    return index;
}

// Composed, in small letters and without blanks; "II Kings" is "2kings".
QString folded(QStringView title)
{
    static const QRegularExpression numeral(u"^\\s*(I{1,3})\\s+"_s);
    QString text = title.toString().normalized(QString::NormalizationForm_C);
    if (const auto match = numeral.match(text); match.hasMatch())
        text.replace(0, match.capturedLength(), QString::number(match.capturedLength(1)));
    QString result;
    for (const QChar c : std::as_const(text))
        if (!c.isSpace() && c != u'.')
            result += c.toLower();
    return result;
}

Index titleIndex()
{
    Index index;
    for (int book = 0; book < kBookCount; ++book) {
        const SourceNames& names = kNames[static_cast<std::size_t>(book)];
        const QString titles[] = {names.english.toString(), names.osis.toString(),
                                  names.usfm.toString(), bookName(book), bookAbbreviation(book)};
        for (const QString& title : titles)
            index.insert(folded(title), book);
    }
    for (const OtherTitle& other : kOtherTitles)
        index.insert(folded(other.title), *fromOsis(other.osis));
    return index;
}

std::optional<int> find(const Index& index, const QString& key)
{
    const auto found = index.find(key);
    return found == index.end() ? std::nullopt : std::optional<int>(*found);
}

} // namespace

std::optional<int> fromOsis(QStringView id)
{
    static const Index index = makeIndex([](const SourceNames& n) { return n.osis.toString(); });
    return find(index, id.toString());
}

std::optional<int> fromUsfm(QStringView id)
{
    static const Index index = makeIndex([](const SourceNames& n) { return n.usfm.toString(); });
    return find(index, id.toString().toUpper());
}

std::optional<int> fromEnglish(QStringView title)
{
    static const Index index = makeIndex([](const SourceNames& n) { return folded(n.english); });
    return find(index, folded(title));
}

std::optional<int> fromTitle(QStringView title)
{
    static const Index index = titleIndex();
    return find(index, folded(title));
}

bool isOutsideCanon(QStringView id)
{
    const QString folded = id.toString().toUpper();
    return std::ranges::any_of(kOtherBooks, [&](QStringView other) { return other == folded; });
}

bool isNoBook(QStringView usfmId)
{
    const QString folded = usfmId.toString().toUpper();
    return std::ranges::any_of(kNoBooks, [&](QStringView other) { return other == folded; });
}

QString osis(int book)
{
    return book < 0 || book >= kBookCount ? QString()
                                          : kNames[static_cast<std::size_t>(book)].osis.toString();
}

} // namespace lumen::BookNames
