// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace lumen {

/// A place in the canon: the book counts from 0, chapter and verse from 1.
struct VersePlace
{
    int book = 0;
    int chapter = 0;
    int verse = 0;

    friend bool operator==(const VersePlace&, const VersePlace&) = default;
};

/// The module of shared procedures: keys and short references of verses.
/// A VerseIndex is "43요:003:016", a short reference "요3:16", a CHAP key "창01".
namespace BibleCode {

/// The zero-based number of the book with exactly this abbreviation, -1 if there is none.
int GetBookNum(QStringView abbreviation);

/// The CHAP key: abbreviation and chapter, the chapter padded to two digits only.
QString GetChapKey(int book, int chapter);

/// Short reference to VerseIndex; "" for an empty reference. The abbreviation must be known: a
/// reference that the program didn't make itself goes through ParseRef.
QString RefToIndex(QStringView reference);

/// VerseIndex to short reference; "" for a text that holds no two colons.
QString IndexToRef(QStringView key);

/// Reads a short reference and forgives: an unknown book becomes Genesis, a chapter beyond the
/// book's last one becomes 1. The verse is passed on unchecked, a part that is absent is 0.
VersePlace ParseRef(QStringView reference);

/// The VerseIndex of a zero-based book, a chapter and a verse.
QString verseKey(int book, int chapter, int verse);
/// What all keys of one chapter begin with, "43요:003".
QString chapterPrefix(int book, int chapter);
/// What all keys of one book begin with, "43요".
QString bookPrefix(int book);

} // namespace BibleCode
} // namespace lumen
