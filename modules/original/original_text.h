// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "canon/verse_index.h"

#include <QHash>
#include <QString>

#include <vector>

namespace lumen {

/// The written text (ketiv), what is read for it (qere), or a word without such a pair.
enum class Reading { Plain, Ketiv, Qere };

/// One written word with its analysis, or a paragraph mark of the Hebrew text. All texts are font
/// codes in reading order, unscrambled.
struct OriginalWord
{
    QString divided;  ///< Hebrew with "/" between its pieces
    QString parsing;  ///< the parsing code; "" where the source has none
    QString prefixes; ///< the codes of the prefixes, each with ";" behind it
    QString english;  ///< the words of the King James Version, "" where it has none
    int strong = 0;   ///< Strong's number, 0 for none
    Reading reading = Reading::Plain;
    bool isMark = false;
    bool maqaf = false;
    bool sofPasuq = false;

    /// The word without division.
    QString text() const;
};

/// One verse under the keys that all modules share.
struct OriginalVerse
{
    VersePlace place;
    bool isGreek = false;
    std::vector<OriginalWord> words;
};

/// Both testaments or one, in the order of the canon.
using OriginalText = std::vector<OriginalVerse>;

/// Keeps one copy of texts that come again and again, as codes do.
class SharedTexts
{
public:
    QString shared(const QString& text);

private:
    QHash<QString, QString> m_texts;
};

} // namespace lumen
