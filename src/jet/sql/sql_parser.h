// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "jet/sql/sql_tree.h"

#include <QString>

namespace lumen {

/// Reads a SELECT or DELETE statement. Names are taken as they stand, also those that other
/// dialects reserve ("index"). Errors: 3075, 3126, 3131 (behind FROM).
SqlTree parseStatement(const QString& sql);

/// Reads a filter or a search criterion: what may stand behind WHERE.
SqlNode parseCriterion(const QString& criterion);

} // namespace lumen
