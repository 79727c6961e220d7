// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace lumen {

// Users' words on their way into query texts. The routines differ on purpose: which one a caller
// takes decides whether a word is a pattern or a literal.

/// For a LIKE literal. With keepQuotes the wildcards are put in brackets and apostrophes doubled;
/// without it apostrophes are removed and wildcards stay wildcards.
QString EscapeLikeText(QStringView value, bool keepQuotes);
/// The wildcards in brackets, apostrophes left alone.
QString EscapeLikeKeepQuote(QStringView value);
/// The same as EscapeLikeKeepQuote, on the value itself.
void EscapeLikeInPlace(QString& value);
/// For a plain "=" literal: apostrophes doubled, a bar taken out of the literal as chr(124), since
/// the engine doesn't take one inside.
QString EscapeSqlText(QStringView value);

/// Replaces every match; what was put in is not searched again. Null stays Null, and an empty
/// search text changes nothing.
std::optional<QString> ReplaceText(const std::optional<QString>& text, const QString& find,
                                   const QString& replacement,
                                   Qt::CaseSensitivity compare = Qt::CaseSensitive);

} // namespace lumen
