// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace lumen {

/// A text as it is compared while one types: small letters without accents or points, Hangul in
/// syllables, full-width letters as plain ones, final forms of Hebrew and Greek as the usual ones,
/// maqaf as a blank. Single consonants of Hangul become initial ones (U+1100 to U+1112).
QString foldedText(const QString& text);

/// A folded text with each syllable of Hangul replaced by its initial consonant; as long as the
/// text.
QString initialsOf(const QString& folded);

/// Whether a folded text has initial consonants that stand alone.
bool hasInitials(QStringView folded);

/// Where a folded word stands in a folded text from a place on, -1 for nowhere. A consonant that
/// stands alone fits each syllable that begins with it.
qsizetype foldedIndexOf(QStringView text, QStringView word, qsizetype from = 0);

} // namespace lumen
