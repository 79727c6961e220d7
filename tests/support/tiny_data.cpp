// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/tiny_data.h"

#include "canon/canon_table.h"
#include "data/check_data.h"
#include "data/data_store.h"
#include "data/version_lists.h"
#include "support/module_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace lumen {
namespace {

constexpr int kGenesis = 0;
constexpr int kPsalms = 18;
constexpr int kJohn = 42;

struct Chapter
{
    int book;
    int chapter;
    int verses;
};

// Words of the text; the place of a verse chooses two that differ.
constexpr int kWords = 10;
using Words = std::array<QStringView, kWords>;

constexpr Words kKorean{u"등불", u"나무", u"강물", u"언덕", u"바람",
                        u"씨앗", u"그물", u"우물", u"방패", u"항아리"};
constexpr Words kEnglish{u"lamp", u"tree", u"river", u"hill",   u"wind",
                         u"seed", u"net",  u"well",  u"shield", u"jar"};
constexpr Words kHebrew{u"n2r",   u"e2c",   u"n4h4r", u"g;b`h", u"r5wx",
                        u"z2r1e", u"r3v;t", u"b;a2r", u"m4g28", u"k1d"};
constexpr Words kGreek{u"lu3xnos", u"de3ndron", u"potamo3j", u"bouno3j", u"a1nemoj",
                       u"spo3roj", u"di3ktuon", u"fre3ar",   u"a1spi3j", u"u2dri3a"};

QString word(const Words& words, int place)
{
    return words[static_cast<std::size_t>(place % kWords)].toString();
}

int placeOf(int book, int chapter, int verse)
{
    return 7 * book + 3 * (chapter - 1) + verse - 1;
}

bool isJohn316(int book, int chapter, int verse)
{
    return book == kJohn && chapter == 3 && verse == 16;
}

QString korean(int book, int chapter, int verse)
{
    if (isJohn316(book, chapter, verse))
        return u"온 마을이 함께 읽은 책"_s;
    const int place = placeOf(book, chapter, verse);
    return u"%1 곁에 %2가 있는 %3 %4장 %5절"_s
        .arg(word(kKorean, place), word(kKorean, place + 1), bookName(book))
        .arg(chapter)
        .arg(verse);
}

QString english(QStringView article, int book, int chapter, int verse)
{
    if (isJohn316(book, chapter, verse))
        return u"The book that all the town has read"_s;
    const QString name = book == kGenesis ? u"Genesis"_s : book == kJohn ? u"John"_s : u"Psalm"_s;
    const int place = placeOf(book, chapter, verse);
    return u"%1 %2 beside a %3 in %4 %5:%6"_s
        .arg(article, word(kEnglish, place), word(kEnglish, place + 1), name)
        .arg(chapter)
        .arg(verse);
}

// Stored from the last letter to the first, as it runs on the screen.
QString hebrew(int book, int chapter, int verse)
{
    const int place = placeOf(book, chapter, verse);
    QStringList words;
    // Long enough to fill several lines.
    for (int i = 0; i < 6 + verse % 5; ++i)
        words << word(kHebrew, place + i * i);
    QString text = words.join(u' ') + u':';
    std::reverse(text.begin(), text.end());
    return text;
}

QString greek(int book, int chapter, int verse)
{
    const int place = placeOf(book, chapter, verse);
    return u"o2 %1 kai4 to4 %2."_s.arg(word(kGreek, place), word(kGreek, place + 1));
}

bool isNullVerse(int code, int book, int chapter, int verse)
{
    return book == kGenesis && chapter == 1 &&
           ((code == 101 && verse == 5) || (code == 201 && verse == 7));
}

// Headings and parts stand in the Korean version.
void addHeadings(PlainVerse& verse)
{
    if (verse.book == kGenesis && verse.chapter == 1 && verse.verse == 1)
        verse.miniTitle = u"지어낸 첫째 제목"_s;
    if (verse.book == kGenesis && verse.chapter == 1 && verse.verse == 3)
        verse.miniTitle = u"지어낸 둘째 제목"_s;
    if (verse.book == kPsalms && verse.chapter == 3 && verse.verse == 1) {
        verse.miniTitle = u"지어낸 시 제목"_s;
        verse.part = u"[지어낸 머리글] "_s;
    }
}

void addVersion(const TestServices& services, int code, const QList<Chapter>& chapters)
{
    QList<PlainVerse> verses;
    for (const Chapter& chapter : chapters)
        for (int verse = 1; verse <= chapter.verses; ++verse) {
            PlainVerse row{chapter.book, chapter.chapter, verse, {}, {}, {}};
            if (!isNullVerse(code, chapter.book, chapter.chapter, verse))
                row.cont = TinyData::text(code, chapter.book, chapter.chapter, verse);
            if (code == 101)
                addHeadings(row);
            verses << row;
        }
    writeVersion(services.folders.data(QString::number(code) + u".dts"_s), versionName(code, {}),
                 verses);
}

} // namespace

TinyData::TinyData(TestServices& services)
{
    const QList<Chapter> john{{kJohn, 1, 5}, {kJohn, 3, 16}};
    const QList<Chapter> psalm{{kPsalms, 3, 8}};
    addVersion(services, 101,
               QList<Chapter>{{kGenesis, 1, 31}, {kGenesis, 2, 3}} + psalm +
                   QList<Chapter>{{kPsalms, 119, 176}} + john);
    addVersion(services, 201, QList<Chapter>{{kGenesis, 1, 29}, {kGenesis, 2, 3}} + psalm + john);
    addVersion(services, 215, john);
    addVersion(services, 301, {{kGenesis, 1, 31}, {kGenesis, 2, 3}});
    addVersion(services, 306, john);
    const Result<Done> created = createUserDatabases(services.state.AppPath, services.files,
                                                     services.drives, services.clock.now().date());
    EXPECT_TRUE(created) << "user databases";
    CheckData(services.state, services.files, services.jet);
}

QString TinyData::text(int code, int book, int chapter, int verse)
{
    if (isNullVerse(code, book, chapter, verse))
        return u""_s;
    switch (code) {
    case 201:
        return english(u"A", book, chapter, verse);
    case 215:
        return english(u"The", book, chapter, verse);
    case 301:
        return hebrew(book, chapter, verse);
    case 306:
        return greek(book, chapter, verse);
    default:
        return korean(book, chapter, verse);
    }
}

} // namespace lumen
