// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/controls/text/text_range.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace lumen {

/// The words that the rows of the open result were found by, for marking them in the result cells.
class FoundWords
{
public:
    /// A search over a version forgets the earlier words, one within results adds to them. Empty
    /// texts mark nothing.
    void replace(const QStringList& words);
    void add(const QStringList& words);

    /// Where the words stand in a text, in order; ranges that overlap or touch are one. Case
    /// counts, as it does in the search.
    QList<TextRange> ranges(QStringView text) const;

private:
    QStringList m_words;
};

} // namespace lumen
