// SPDX-License-Identifier: GPL-2.0-or-later
#include "canon/canon_table.h"

#include <numeric>

namespace lumen {
namespace {

struct Book
{
    QStringView abbreviation;
    QStringView name;
    int chapters = 0;
};

constexpr std::array kBooks{
    Book{u"창", u"창세기", 50},
    Book{u"출", u"출애굽기", 40},
    Book{u"레", u"레위기", 27},
    Book{u"민", u"민수기", 36},
    Book{u"신", u"신명기", 34},
    Book{u"수", u"여호수아", 24},
    Book{u"삿", u"사사기", 21},
    Book{u"룻", u"룻기", 4},
    Book{u"삼상", u"사무엘상", 31},
    Book{u"삼하", u"사무엘하", 24},
    Book{u"왕상", u"열왕기상", 22},
    Book{u"왕하", u"열왕기하", 25},
    Book{u"대상", u"역대상", 29},
    Book{u"대하", u"역대하", 36},
    Book{u"스", u"에스라", 10},
    Book{u"느", u"느헤미야", 13},
    Book{u"에", u"에스더", 10},
    Book{u"욥", u"욥기", 42},
    Book{u"시", u"시편", 150},
    Book{u"잠", u"잠언", 31},
    Book{u"전", u"전도서", 12},
    Book{u"아", u"아가", 8},
    Book{u"사", u"이사야", 66},
    Book{u"렘", u"예레미야", 52},
    Book{u"애", u"예레미야애가", 5},
    Book{u"겔", u"에스겔", 48},
    Book{u"단", u"다니엘", 12},
    Book{u"호", u"호세아", 14},
    Book{u"욜", u"요엘", 3},
    Book{u"암", u"아모스", 9},
    Book{u"옵", u"오바댜", 1},
    Book{u"욘", u"요나", 4},
    Book{u"미", u"미가", 7},
    Book{u"나", u"나훔", 3},
    Book{u"합", u"하박국", 3},
    Book{u"습", u"스바냐", 3},
    Book{u"학", u"학개", 2},
    Book{u"슥", u"스가랴", 14},
    Book{u"말", u"말라기", 4},
    Book{u"마", u"마태복음", 28},
    Book{u"막", u"마가복음", 16},
    Book{u"눅", u"누가복음", 24},
    Book{u"요", u"요한복음", 21},
    Book{u"행", u"사도행전", 28},
    Book{u"롬", u"로마서", 16},
    Book{u"고전", u"고린도전서", 16},
    Book{u"고후", u"고린도후서", 13},
    Book{u"갈", u"갈라디아서", 6},
    Book{u"엡", u"에베소서", 6},
    Book{u"빌", u"빌립보서", 4},
    Book{u"골", u"골로새서", 4},
    Book{u"살전", u"데살로니가전서", 5},
    Book{u"살후", u"데살로니가후서", 3},
    Book{u"딤전", u"디모데전서", 6},
    Book{u"딤후", u"디모데후서", 4},
    Book{u"딛", u"디도서", 3},
    Book{u"몬", u"빌레몬서", 1},
    Book{u"히", u"히브리서", 13},
    Book{u"약", u"야고보서", 5},
    Book{u"벧전", u"베드로전서", 5},
    Book{u"벧후", u"베드로후서", 3},
    Book{u"요일", u"요한일서", 5},
    Book{u"요이", u"요한이서", 1},
    Book{u"요삼", u"요한삼서", 1},
    Book{u"유", u"유다서", 1},
    Book{u"계", u"요한계시록", 22},
};

static_assert(kBooks.size() == kBookCount);
static_assert(std::accumulate(kBooks.begin(), kBooks.end(), 0, [](int sum, const Book& book) {
                  return sum + book.chapters;
              }) == kChapterTotal);
// The groups follow each other without overlap, and only Acts lies between two of them.
static_assert([] {
    int uncovered = 0;
    int nextKey = 1;
    for (const BookGroup& group : kBookGroups) {
        if (group.firstBookKey < nextKey || group.lastBookKey < group.firstBookKey)
            return false;
        uncovered += group.firstBookKey - nextKey;
        nextKey = group.lastBookKey + 1;
    }
    return uncovered == 1 && nextKey == kBookCount + 1;
}());

constexpr bool isBook(int book)
{
    return book >= 0 && book < kBookCount;
}

const Book& row(int book)
{
    return kBooks[static_cast<std::size_t>(book)];
}

// The tables live as long as the program, so their texts are handed out without a copy.
QString shared(QStringView text)
{
    return QString::fromRawData(reinterpret_cast<const QChar*>(text.utf16()), text.size());
}

} // namespace

QString bookAbbreviation(int book)
{
    return isBook(book) ? shared(row(book).abbreviation) : QString();
}

QString bookName(int book)
{
    return isBook(book) ? shared(row(book).name) : QString();
}

int chapterCount(int book)
{
    return isBook(book) ? row(book).chapters : 0;
}

QString bookGroup(int book)
{
    const int bookKey = book + 1;
    for (const BookGroup& group : kBookGroups)
        if (bookKey >= group.firstBookKey && bookKey <= group.lastBookKey)
            return shared(group.code);
    return {};
}

QString testament(int book)
{
    if (!isBook(book))
        return {};
    return shared(book < kFirstNewTestamentBook ? QStringView(u"구") : QStringView(u"신"));
}

} // namespace lumen
