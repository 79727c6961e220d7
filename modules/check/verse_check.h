// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <utility>

namespace lumen {

/// Counts the verses of a version against the canon. Feed it every row, then ask.
class VerseCheck
{
public:
    /// `key` is a VerseIndex; `hasText` is false for a verse whose text is Null.
    void addVerse(const QString& key, bool hasText);

    /// Keys that are no verse of any book, and keys that stand twice: faults of the module.
    const QStringList& badKeys() const { return m_badKeys; }
    int verses() const { return m_verses; }
    int versesWithoutText() const { return m_withoutText; }
    /// How the module differs from the canon, one line a book that differs, chapters told behind
    /// it. That is no fault: translations differ in a few places, and many hold one testament only.
    QStringList deviations() const;

private:
    QStringList chapterDeviations(int book) const;
    int versesOf(int book) const;

    int m_verses = 0;
    int m_withoutText = 0;
    std::map<QString, bool> m_seen;
    std::map<std::pair<int, int>, int> m_counts; ///< by zero-based book and chapter
    QStringList m_badKeys;
};

} // namespace lumen
