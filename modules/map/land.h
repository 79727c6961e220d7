// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "map/geometry.h"
#include "platform/result.h"

#include <QString>

namespace lumen {

/// The outlines of the land, closed lines; a line within another is water again.
/// `file` is TopoJSON with an object "land", or a table of a line an outline: "lat,lon lat,lon
/// ...". NotFound or Damaged with the file's name.
Result<std::vector<GeoLine>> readLand(const QString& file);

} // namespace lumen
