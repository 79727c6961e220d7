// SPDX-License-Identifier: GPL-2.0-or-later
#include "sources/sword/sword_commentary.h"

#include "canon/canon_table.h"
#include "check/verse_counts.h"
#include "sources/sword/sword_files.h"
#include "sources/sword/sword_index.h"

#include <QFileInfo>

#include <array>

namespace lumen {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kNarrowRecord = 10; // of an index with lengths of two bytes

struct TestamentBooks
{
    QStringView file;
    int first;
    int end;
};
constexpr std::array kTestaments{TestamentBooks{u"ot", 0, kFirstNewTestamentBook},
                                 TestamentBooks{u"nt", kFirstNewTestamentBook, kBookCount}};

// The places of a testament: two headings, then a heading for each book and each chapter before its
// verses. Those of headings have chapter or verse 0.
std::vector<VersePlace> placesOf(const TestamentBooks& testament)
{
    std::vector<VersePlace> places(2, VersePlace{testament.first, 0, 0});
    for (int book = testament.first; book < testament.end; ++book) {
        places.push_back({book, 0, 0});
        for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
            for (int verse = 0; verse <= verseCount(Numbering::English, book, chapter); ++verse)
                places.push_back({book, chapter, verse});
    }
    return places;
}

} // namespace

Result<std::vector<CommentaryEntry>> readSwordCommentary(const QString& folder)
{
    std::vector<CommentaryEntry> entries;
    for (const TestamentBooks& testament : kTestaments) {
        const QString index = folder + u'/' + testament.file.toString() + u".bzv"_s;
        if (!QFileInfo::exists(index))
            return missingSource(index);
        const std::vector<VersePlace> places = placesOf(testament);
        const bool narrow = QFileInfo(index).size() == std::ssize(places) * kNarrowRecord;
        const auto read =
            SwordTestament::read({folder, SwordLayout::Compression::Zip, !narrow, 'b', false},
                                 testament.file.toString(), places.size());
        if (!read)
            return read.failure();
        for (std::size_t place = 0; place < places.size(); ++place)
            if (places[place].verse > 0)
                entries.push_back({places[place],
                                   QString::fromUtf8(read.value().text(static_cast<long>(place)))});
    }
    return entries;
}

} // namespace lumen
