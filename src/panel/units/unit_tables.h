// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

#include <span>

namespace lumen {

enum class UnitFamily { Weight, Length, Volume, Money };

/// The units of a family in the order of their lists.
std::span<const QStringView> unitsOf(UnitFamily family);

/// How many of unit `to` make one of unit `from`, both places in unitsOf(). The factors are rounded
/// one by one: going through a third unit may give another result.
double unitFactor(UnitFamily family, std::size_t from, std::size_t to);

} // namespace lumen
