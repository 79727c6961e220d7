// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/book_names.h"

#include "canon/canon_table.h"

#include <QHash>

#include <array>

namespace lumen::BookNames {

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

using Index = QHash<QString, int>;

template <typename Key>
Index makeIndex(Key key)
{
    Index index;
    for (int book = 0; book < kBookCount; ++book)
        index.insert(key(kNames[static_cast<std::size_t>(book)]), book);
    return index;
}

QString folded(QStringView title)
{
    QString result;
    for (const QChar c : title)
        if (!c.isSpace())
            result += c.toLower();
    return result;
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

QString osis(int book)
{
    return book < 0 || book >= kBookCount ? QString()
                                          : kNames[static_cast<std::size_t>(book)].osis.toString();
}

} // namespace lumen::BookNames
