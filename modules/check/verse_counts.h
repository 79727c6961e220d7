// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// How a version counts its verses. They differ in four chapters: 삼상30 has 30 verses in Korean
/// Bibles and 31 in English ones, 아6 14 and 13, 고후13 13 and 14, 요삼1 15 and 14.
enum class Numbering { Korean, English };

/// The verses of a chapter; 0 outside the canon. Books count from 0, chapters from 1.
int verseCount(Numbering numbering, int book, int chapter);

} // namespace lumen
