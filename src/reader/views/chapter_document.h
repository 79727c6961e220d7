// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "data/version_font.h"
#include "reader/views/verse_positions.h"
#include "reader/views/verse_selection.h"
#include "text/rtf/rtf_composer.h"

#include <QString>

#include <functional>
#include <vector>

namespace lumen {

/// One verse of a source, unscrambled; a Null text is "".
struct ChapterVerse
{
    int verse = 0;
    QString cont;
    QString part;      ///< stands in front of cont, of the base version only
    QString miniTitle; ///< "" for none
};

/// The chapter in one version. `slot` is 0 for the base version, 1 to 3 for the parallel ones.
struct ChapterSource
{
    int slot = 0;
    int code = 0;
    std::vector<ChapterVerse> verses;
    /// Why the module could not be read, "" when it could; there are no verses then.
    QString problem = {};

    /// The verse of that number; nullptr where the version has none.
    const ChapterVerse* find(int verse) const;
    /// The highest verse number, 0 without a verse. A chapter may have holes: it is not their
    /// count.
    int lastVerse() const;
};

/// What stands in front of a verse in its first line: number and separator, then the part.
struct VerseHead
{
    QString number;
    QString separator;
    QString part;
};

/// Breaks a stored Hebrew verse into display lines, "\par " between them. Size in half points.
using HebrewDivider = std::function<QString(const QString& stored, const QString& fontName,
                                            int halfPoints, const VerseHead& head)>;

/// Reader: the document of the text view. Preview: that of the preview control, whose headings
/// stand in square brackets.
enum class DocumentKind { Reader, Preview };

/// Twips: the indent behind the verse numbers.
inline constexpr int kChapterTabWidth = 350;

struct ChapterStyle
{
    RtfSettings rtf;
    bool showMiniTitle = true;
    bool languageBar = false; ///< a blank line first keeps the caret's line clear of the bar
    DocumentKind kind = DocumentKind::Reader;
    FontSettings fonts;
    HebrewDivider divideHebrew;
};

/// A chapter as one RTF document, and where its verses stand in the text of it.
struct ComposedChapter
{
    QString rtf; ///< "" when the base version has no row
    VersePositions positions;
    std::vector<ComposedRow> rows; ///< in text order
};

/// The room in twips that a head takes in the document's fonts; the part is drawn in the verse's
/// own font and size (half points).
int headWidth(const VerseHead& head, const RtfSettings& settings, const QString& fontName,
              int halfPoints);

/// Composes a chapter. Behind each verse of the base stand those of the others that have the same
/// number; verses that the base has not are not shown.
ComposedChapter composeChapter(const std::vector<ChapterSource>& sources,
                               const ChapterStyle& style);

} // namespace lumen
