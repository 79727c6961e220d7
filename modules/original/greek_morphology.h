// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringView>

namespace lumen {

/// The code of a Robinson tag: "N-NSM" gives "$nnms". "" for a tag whose part of speech can't be
/// told; a position that can't be read is "-".
QString parseGreek(QStringView robinson);

/// What a code stands as in the table of the parsing search: "($nnms);", and behind conjunctions
/// and particles the shorter forms that a searcher may stop at.
QString greekSearchCodes(const QString& code);

} // namespace lumen
