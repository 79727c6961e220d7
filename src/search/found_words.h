// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace lumen {

/// A stretch of a text in UTF-16 units.
struct TextSpan
{
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

/// The words that the rows of the open result were found by, for marking them in the result cells.
class FoundWords
{
public:
    /// A search over a version forgets the earlier words, one within results adds to them. Empty
    /// texts mark nothing.
    void replace(const QStringList& words);
    void add(const QStringList& words);

    /// Where the words stand in a text, in order; spans that overlap or touch are one. Case counts,
    /// as it does in the search.
    std::vector<TextSpan> spans(QStringView text) const;

private:
    QStringList m_words;
};

} // namespace lumen
