// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace lumen {

/// One word of an original text, readable as all that is made from it.
struct OriginalWord
{
    QString form;   ///< as the text has it; Hebrew from its last letter to its first
    int strong = 0; ///< 0: the word has none
    QString lemma;  ///< "" without one
    QString code;   ///< parsing code, "" without one
};

/// A verse of the Hebrew books (zero-based book below 39) or of the Greek ones.
struct OriginalVerse
{
    int book = 0;
    int chapter = 1;
    int verse = 1;
    QList<OriginalWord> words;

    bool isHebrew() const;
    QString key() const;
    /// The words with blanks between them.
    QString text() const;
    /// The codes as the pattern search has them, "@..;@..;" or "($..);($..);".
    QString codes() const;
};

/// Writes 301, 310, z101, z102, z103 and the two dictionaries of Strong's numbers with these
/// verses, which must stand in canon order, into a native folder. `without` names a file that is
/// left out, such as "310.dts".
void writeOriginalModules(const QString& folder, const QList<OriginalVerse>& verses,
                          const QString& without = {});

} // namespace lumen
