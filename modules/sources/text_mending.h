// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "sources/version_text.h"

namespace lumen {

/// What single sources need before their text can be shown. Each works on the verses as the reader
/// gave them, in the order of the source, and adds a remark for what it changed.
namespace Mending {

/// "(없음)" and the like, and "{상동}" for a verse that stands in the one before, become no words;
/// text is brought into composed form, so that a typed Hanja finds its compatibility twin; braces
/// become the brackets of the printed text, and a bracket closed twice loses the second. Other
/// stray signs stay and are told.
void korean(VersionText& version);

/// The Korean text with the Baptists' word for baptism.
void baptist(VersionText& version);

/// Marks of added words, `so', are dropped: the text has none otherwise.
void asv(VersionText& version);

/// The tagged text carries the traces of a search and replace ("filter_string_trimmed") and dashes
/// in names ("Beth–el") where the other text has hyphens.
void kjvWithNumbers(VersionText& version);

/// Joins words that a copy has cut ("bold ly") where `witness`, another copy of the same text, has
/// them whole in the same verse.
void joinCutWords(VersionText& version, const VersionText& witness);

/// Titles of Psalms in braces become parts, the letters of Psalm 119 headings, and asterisks around
/// stressed words are dropped.
void darby(VersionText& version);

/// Filler verses become no words; a backslash that ends a line is dropped. The Psalms, some of
/// which the source has mixed up or moved beyond 150, get the chapters of the Hebrew text; within a
/// chapter the title counts as a verse. In some other chapters verses come back to their numbers.
void douay(VersionText& version);

/// Part of the text is numbered as in Hebrew and says so: "\6:1\" tells chapter and verse of what
/// follows. Filler verses ("+") go, and titles of Psalms stand apart.
void webster(VersionText& version);

/// The doxology at the end of Romans 14 moves to where the keys have it, 16:25 to 27.
void romansDoxology(VersionText& version);

} // namespace Mending

} // namespace lumen
