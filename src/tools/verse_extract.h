// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace lumen {

class Recordset;

/// The verses to take out. The book is zero-based, chapter and verses count from 1; 0 where the
/// user gave no number.
struct ExtractRange
{
    int book = 0;
    int chapter = 0;
    int firstVerse = 0;
    int lastVerse = 0;

    friend bool operator==(const ExtractRange&, const ExtractRange&) = default;
};

/// The last chapter of the book and the last verse of the chapter in the chosen version. 0 when the
/// version lacks the book; nothing is held against it then.
struct ExtractLimits
{
    int chapters = 0;
    int verses = 0;
};

/// What was wrong with a range and has been mended.
enum class RangeMending { Swapped, LastVerse, LastChapter };

/// Mends the range and tells what was done, in the order in which the user is told. A range that
/// lies behind the last verse becomes that verse; a number that was left out is the first verse,
/// and of the last one the chapter's end.
std::vector<RangeMending> mendRange(ExtractRange& range, const ExtractLimits& limits);

/// How the verses are put together.
struct ExtractForm
{
    bool verseNumbers = false;
    bool linePerVerse = false; ///< CR LF behind each verse, else a blank
    bool tail = false;         ///< the reference at the end
};

/// The composed text of the rows that extractQuery gives; Hebrew and Greek of the version `code` as
/// Unicode. A verse without text is left out. Nothing when no row has text.
std::optional<QString> composeExtract(Recordset& rows, int code, const ExtractRange& range,
                                      const ExtractForm& form);

/// "(창세기 1:1~3)", or "(창세기 1:1)" for a single verse.
QString extractTail(const ExtractRange& range);
/// The name that the save dialog proposes, "창세기 1장1~3절".
QString extractFileName(const ExtractRange& range);
/// A text file's content with its last line end: code page 949, or UTF-8 with a byte order mark
/// when the page lacks a character of the text.
QByteArray extractFileContent(const QString& text);

/// The rows of a book; of a chapter; of the range, in verse order. `table` is a version's name.
QString bookRowsQuery(const QString& table, int book);
QString chapterRowsQuery(const QString& table, int book, int chapter);
QString extractQuery(const QString& table, const ExtractRange& range);
/// The highest chapter among the rows of bookRowsQuery, 0 when there is none.
int highestChapter(Recordset& rows, int book);
/// The highest verse number among the rows of chapterRowsQuery, 0 when there is none. Versions
/// leave verses out, so this is not their count.
int highestVerse(Recordset& rows);

} // namespace lumen
