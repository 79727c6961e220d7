// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace lumen {

/// The code of the Korean edition that the book files (JSON) of a folder without a number hold: 101
/// for a text in Hangul, 102 for one in mixed script with its Hangul beside it. Only the wording of
/// the edition of 1961 counts; a newer translation or another language gives nothing.
std::optional<int> koreanEdition(const QStringList& files);

} // namespace lumen
