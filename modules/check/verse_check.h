// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/canon_table.h"
#include "check/verse_counts.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>

namespace lumen {

/// What a version lacks and has beyond a numbering. That is no fault of it: translations differ in
/// a few places, and many hold one testament only.
struct CanonCheck
{
    int rows = 0;
    int withoutWords = 0;
    int missing = 0;        ///< verses of the canon that have no row, in books that have one
    int beyond = 0;         ///< rows that the canon doesn't know
    int absentBooks = 0;    ///< books without a row, as in a version of one testament
    QStringList deviations; ///< a Korean line for each book that deviates, one for those absent
};

/// Checks the verses of a version against the canon. Feed it every row, then ask.
class VerseCheck
{
public:
    /// Books count from 0, chapters and verses from 1.
    void addVerse(int book, int chapter, int verse, bool hasText);
    /// `key` is a VerseIndex; `hasText` is false for a verse whose text is Null.
    void addKey(const QString& key, bool hasText);

    /// Keys that are no verse of any book, and keys that stand twice: faults of the module.
    const QStringList& badKeys() const { return m_badKeys; }
    CanonCheck against(Numbering numbering) const;
    /// Against the numbering that the version comes nearer to.
    CanonCheck againstNearest() const;

private:
    struct Verse
    {
        int chapter = 0;
        int verse = 0;
        bool hasText = false;
    };

    int m_rows = 0;
    std::array<std::vector<Verse>, kBookCount> m_books;
    QSet<QString> m_seen;
    QStringList m_badKeys;
};

} // namespace lumen
