// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace lumen {

/// The query for the words that begin with `word` or, `within`, hold it. `word` is cleaned.
QString concordanceQuery(const QString& word, bool within);

/// A word of the index: the rows of the result that it is spread over, and how often it occurs.
struct ConcordanceWord
{
    QString word;
    std::vector<int> rows;
    int count = 0;
};

/// The rows that really hold `word`, those of one word joined. Column texts in row order, words
/// scrambled.
std::vector<ConcordanceWord> foundWords(const QStringList& words, const QStringList& counts,
                                        const QString& word);

/// How a found word stands in the list of a version.
QString listedWord(const ConcordanceWord& found, int code);

/// The items of a `Pos` text in canon order as the list shows them: keys as short references,
/// anything else as it is.
QStringList listedPlaces(const QString& positions);

} // namespace lumen
