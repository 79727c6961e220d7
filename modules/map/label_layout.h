// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <optional>
#include <vector>

namespace lumen {

/// A name that looks for its room.
struct LabelWish
{
    QPointF at;
    QSizeF size;
    int weight = 1;
    bool across = false; ///< written across its point rather than beside it
};

/// Where names are written: within `frame`, over none of `taken` and over no other name. The
/// heavier go first, else the order given. A name that finds no room has none.
std::vector<std::optional<QRectF>> placeLabels(const std::vector<LabelWish>& wishes,
                                               const QRectF& frame, std::vector<QRectF> taken);

} // namespace lumen
