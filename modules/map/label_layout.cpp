// SPDX-License-Identifier: GPL-2.0-or-later
#include "map/label_layout.h"

#include <algorithm>
#include <numeric>

namespace lumen {

namespace {

constexpr double kGap = 16;    // pixels from the point of a mark to its name
constexpr double kSpace = 3;   // pixels kept free between two names
constexpr int kShiftSteps = 3; // how far a name across its point may give way, in half heights

std::vector<QPointF> centres(const LabelWish& wish)
{
    const double x = wish.size.width() / 2 + kGap;
    const double y = wish.size.height() / 2 + kGap;
    if (!wish.across) {
        const double side = wish.size.width() / 2;
        const double near = wish.size.height() / 2;
        return {{x, 0},      {-x, 0},    {0, -y},    {0, y},    {side, -y},  {side, y},
                {-side, -y}, {-side, y}, {x, -near}, {x, near}, {-x, -near}, {-x, near}};
    }
    std::vector<QPointF> points{{0, 0}};
    for (int step = 1; step <= kShiftSteps; ++step) {
        const double high = step * wish.size.height() / 2;
        const double wide = step * wish.size.width() / 4;
        for (const QPointF& shift : {QPointF(0, -high), QPointF(0, high), QPointF(wide, 0),
                                     QPointF(-wide, 0), QPointF(wide, -high), QPointF(-wide, -high),
                                     QPointF(wide, high), QPointF(-wide, high)})
            points.push_back(shift);
    }
    return points;
}

std::optional<QRectF> roomFor(const LabelWish& wish, const QRectF& frame,
                              const std::vector<QRectF>& taken)
{
    for (const QPointF& centre : centres(wish)) {
        QRectF room(QPointF(), wish.size);
        room.moveCenter(wish.at + centre);
        if (frame.contains(room) && std::ranges::none_of(taken, [&room](const QRectF& other) {
                return other.intersects(room.adjusted(-kSpace, -kSpace, kSpace, kSpace));
            }))
            return room;
    }
    return std::nullopt;
}

} // namespace

std::vector<std::optional<QRectF>> placeLabels(const std::vector<LabelWish>& wishes,
                                               const QRectF& frame, std::vector<QRectF> taken)
{
    std::vector<std::size_t> order(wishes.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::ranges::stable_sort(order, [&wishes](std::size_t a, std::size_t b) {
        return wishes[a].weight > wishes[b].weight;
    });
    std::vector<std::optional<QRectF>> rooms(wishes.size());
    for (const std::size_t i : order) {
        rooms[i] = roomFor(wishes[i], frame, taken);
        if (rooms[i])
            taken.push_back(*rooms[i]);
    }
    return rooms;
}

} // namespace lumen
