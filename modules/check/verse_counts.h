// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace lumen {

/// The number of verses of a chapter in the numbering that all keys use. Books count from 0,
/// chapters from 1; 0 outside the canon.
int verseCount(int book, int chapter);
/// The number of verses of a whole book, 0 outside the canon.
int verseCount(int book);

} // namespace lumen
