// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reference/module_task.h"

#include <map>
#include <set>
#include <tuple>

namespace lumen {

/// Book, chapter and verse in an order that sorts as the canon does.
using PlaceOrder = std::tuple<int, int, int>;

/// References by the verse that they stand at; all places are those of the keys.
struct CrossReferences
{
    std::map<PlaceOrder, std::set<PlaceOrder>> targets;
    int outside = 0; ///< references that name no verse of the canon
};

/// Reads the references out of a script file. They count verses as English Bibles do: a source that
/// the keys divide stands at both halves, a target at the first. Damaged when the file has another
/// shape.
Result<CrossReferences> readCrossReferences(const QString& file);

/// The table of cross references out of the script file.
Result<ModuleReport> fillCrossReferences(const QString& file, ModuleStore& store);
/// The same out of a user's table: verse, references ("요1:1;히11:3").
Result<ModuleReport> fillOwnCrossReferences(const QString& file, ModuleStore& store);

} // namespace lumen
