// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace lumen {

/// Half of a surrogate pair is no character: it can't be stored, but on its way into a query it
/// would become "?", which fits any character. The non-character in its place fits no verse.
QString withoutLoneSurrogates(QString text);

/// The literal between the wildcards of a search: the word as the modules store it, then quoted, so
/// that a character that is stored as a wildcard stands for itself too. A straight quotation mark,
/// which is all that keyboards have, fits the curved ones of printed texts as well.
QString searchLiteral(const QString& word);

/// A typed or pasted text as modules hold texts: Hangul in syllables rather than single letters, a
/// plain blank for a tab, a line end or a wide blank and those that stand beside it.
QString tidiedSearchText(const QString& typed);

/// "(Cont like '*...*')" for one text; an empty one fits every verse.
QString easyCriterion(const QString& text);

/// How a search comes to its records.
enum class SearchPath {
    Query,    ///< anew, by a query over the version
    Narrow,   ///< by a filter on the open result
    StartOver ///< within results, but there are none: the whole range instead, with a message
};

/// `openCount` is the number of records of the open result, nothing when none is open.
SearchPath searchPath(const QString& scopeTag, std::optional<int> openCount);

} // namespace lumen
