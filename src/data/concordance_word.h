// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace lumen {

/// The versions in Korean and in Western letters, whose index words are listed with their counts.
bool isPlainVersion(int code);

/// A typed word as the index of a version has it: without the signs that no index holds. In the
/// mixed script (102) a word in brackets takes the place of as many characters before it.
QString cleanedConcordanceWord(const QString& word, int code);

} // namespace lumen
